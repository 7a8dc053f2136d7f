#include "app/ActionQueue.h"

#include <algorithm>
#include <utility>

namespace sonavel {

void ActionQueue::perform(const void* control, std::function<void()> action)
{
    wait(control, std::move(action));
    if (isRunning_)
        return;
    isRunning_ = true;
    while (!waiting_.empty()) {
        const std::function<void()> next = std::move(waiting_.front().action);
        waiting_.pop_front();
        next();
    }
    isRunning_ = false;
}

void ActionQueue::wait(const void* control, std::function<void()> action)
{
    const auto earlier = std::find_if(
        waiting_.begin(), waiting_.end(), [control](const Waiting& waiting) { return waiting.control == control; });
    if (earlier == waiting_.end())
        waiting_.push_back({control, std::move(action)});
    else
        earlier->action = std::move(action);
}

} // namespace sonavel
