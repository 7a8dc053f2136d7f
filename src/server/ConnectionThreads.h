// A thread pool for connections, which grows on demand.
#pragma once

#include "base/NonCopyable.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace sonavel {

/// Runs each task on a thread of its own as long as there are fewer than `maxThreads`; further tasks wait for an idle
/// thread. A listener of a stream occupies a thread for hours.
class ConnectionThreads : private NonCopyable {
public:
    explicit ConnectionThreads(std::size_t maxThreads)
        : maxThreads_(maxThreads)
    {
    }
    ~ConnectionThreads() { finish(); }

    void add(std::function<void()> task);
    /// Waits until every task has been run. Nothing may be added any more.
    void finish();

private:
    void work();

    const std::size_t maxThreads_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> tasks_;
    std::vector<std::thread> threads_;
    std::size_t idle_ = 0;
    bool isFinishing_ = false;
};

} // namespace sonavel
