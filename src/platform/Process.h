// The end of the program.
#pragma once

#include "base/NonCopyable.h"

namespace sonavel {

class Process : private NonCopyable {
public:
    virtual ~Process() = default;

    /// Ends the process at once with the given status, without any clean-up. Does not return.
    [[noreturn]] virtual void exit(int status) = 0;
};

} // namespace sonavel
