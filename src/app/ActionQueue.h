// The queue through which every user action passes: one at a time.
#pragma once

#include <deque>
#include <functional>

namespace sonavel {

/// While an action shows a question or waits for a server, other events of the program are handled; an action that one
/// of them brings must not run in the middle of it. Main thread.
class ActionQueue {
public:
    /// Runs `action` at once when none is running; else it waits until the running one has returned. For each `control`
    /// one action waits at most: a later one takes the place of an earlier one.
    void perform(const void* control, std::function<void()> action);

private:
    struct Waiting {
        const void* control;
        std::function<void()> action;
    };

    void wait(const void* control, std::function<void()> action);

    bool isRunning_ = false;
    std::deque<Waiting> waiting_;
};

} // namespace sonavel
