// An event loop over poll(2), for tests of what waits for descriptors and timers.
#pragma once

#include "adapters/EventLoop.h"

#include <poll.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace sonavel::test {

/// Calls back from inside `runUntil` alone.
class PollEventLoop : public EventLoop {
public:
    [[nodiscard]] std::unique_ptr<Registration> whenReadable(int fileDescriptor, Callback callback) override
    {
        return add({fileDescriptor, Clock::time_point::max(), std::move(callback)});
    }

    [[nodiscard]] std::unique_ptr<Registration> after(std::chrono::milliseconds delay, Callback callback) override
    {
        return add({-1, Clock::now() + delay, std::move(callback)});
    }

    /// Whether `isDone`, which may also wait for other threads and processes, came to hold within `limit`.
    template <class Condition>
    bool runUntil(Condition isDone, std::chrono::milliseconds limit = std::chrono::seconds(20))
    {
        const auto end = Clock::now() + limit;
        while (!isDone()) {
            if (Clock::now() >= end)
                return false;
            turn(std::min(end, Clock::now() + std::chrono::milliseconds(10)));
        }
        return true;
    }

    void runFor(std::chrono::milliseconds time)
    {
        runUntil([] { return false; }, time);
    }

private:
    using Clock = std::chrono::steady_clock;

    struct Waiting {
        int descriptor;
        Clock::time_point due;
        Callback callback;
    };

    class Entry : public Registration {
    public:
        Entry(PollEventLoop& loop, int number)
            : loop_(loop)
            , number_(number)
        {
        }
        ~Entry() override { loop_.waiting_.erase(number_); }

    private:
        PollEventLoop& loop_;
        int number_;
    };

    std::unique_ptr<Registration> add(Waiting waiting)
    {
        waiting_.emplace(++lastNumber_, std::move(waiting));
        return std::make_unique<Entry>(*this, lastNumber_);
    }

    void turn(Clock::time_point end)
    {
        std::vector<pollfd> descriptors;
        std::vector<int> numbers;
        for (const auto& [number, waiting] : waiting_) {
            end = std::min(end, waiting.due);
            descriptors.push_back({waiting.descriptor, POLLIN, 0});
            numbers.push_back(number);
        }
        const auto wait = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        ::poll(descriptors.data(), descriptors.size(), static_cast<int>(std::max<decltype(wait)>(wait, 0)));
        for (std::size_t index = 0; index < numbers.size(); ++index)
            callIfDue(numbers[index], descriptors[index].revents != 0);
    }

    /// An earlier callback may have ended the registration.
    void callIfDue(int number, bool isReadable)
    {
        const auto found = waiting_.find(number);
        if (found == waiting_.end() || !(isReadable || found->second.due <= Clock::now()))
            return;
        found->second.due = Clock::time_point::max();
        const Callback callback = found->second.callback;
        callback();
    }

    std::map<int, Waiting> waiting_;
    int lastNumber_ = 0;
};

} // namespace sonavel::test
