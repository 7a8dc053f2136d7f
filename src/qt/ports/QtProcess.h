// The end of the program.
#pragma once

#include "platform/Process.h"

#include <functional>
#include <utility>
#include <vector>

namespace sonavel {

/// Ends without destroying anything: nothing of what the program holds needs more than the end of the process.
class QtProcess : public Process {
public:
    /// Called before the windows are hidden, in the order given.
    void beforeExit(std::function<void()> step) { steps_.push_back(std::move(step)); }

    [[noreturn]] void exit(int status) override;

private:
    std::vector<std::function<void()>> steps_;
};

} // namespace sonavel
