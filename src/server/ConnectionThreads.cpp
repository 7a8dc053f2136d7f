#include "server/ConnectionThreads.h"

#include <utility>

namespace sonavel {

void ConnectionThreads::add(std::function<void()> task)
{
    const std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
    if (tasks_.size() > idle_ && threads_.size() < maxThreads_)
        threads_.emplace_back([this] { work(); });
    changed_.notify_one();
}

void ConnectionThreads::finish()
{
    {
        const std::lock_guard lock(mutex_);
        isFinishing_ = true;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_)
        thread.join();
    threads_.clear();
}

void ConnectionThreads::work()
{
    std::unique_lock lock(mutex_);
    for (;;) {
        ++idle_;
        changed_.wait(lock, [this] { return isFinishing_ || !tasks_.empty(); });
        --idle_;
        if (tasks_.empty())
            return;
        const std::function<void()> task = std::move(tasks_.front());
        tasks_.pop_front();
        lock.unlock();
        task();
        lock.lock();
    }
}

} // namespace sonavel
