// The end of the program.
#pragma once

namespace sonavel {

class Process {
public:
    Process() = default;
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    virtual ~Process() = default;

    /// Ends the process at once with the given status, without any clean-up. Does not return.
    [[noreturn]] virtual void exit(int status) = 0;
};

} // namespace sonavel
