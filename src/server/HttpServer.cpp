#include "server/HttpServer.h"

#include "base/NonCopyable.h"
#include "server/HttpConnection.h"

#include <sys/socket.h>

#include <cerrno>
#include <csignal>
#include <deque>
#include <functional>
#include <future>
#include <vector>

namespace sonavel {

namespace {

constexpr std::size_t maxRequestsPerConnection = 20;
constexpr std::size_t maxFormSize = 65'536;
constexpr int maxBacklog = 128;

/// Runs each task on a thread of its own as long as there are fewer than `maxConnections`; further tasks wait for an
/// idle thread. A listener of a stream occupies a thread for hours.
class ConnectionThreads final : public httplib::TaskQueue, private NonCopyable {
public:
    void enqueue(std::function<void()> task) override
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
        if (tasks_.size() > idle_ && threads_.size() < HttpServer::maxConnections)
            threads_.emplace_back([this] { work(); });
        changed_.notify_one();
    }

    /// Returns when every task has been run.
    void shutdown() override
    {
        {
            const std::lock_guard lock(mutex_);
            isFinishing_ = true;
        }
        changed_.notify_all();
        for (std::thread& thread : threads_)
            thread.join();
    }

private:
    void work()
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

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> tasks_;
    std::vector<std::thread> threads_;
    std::size_t idle_ = 0;
    bool isFinishing_ = false;
};

/// By default the library lets several servers share a port, and a port in use would not be reported.
void disablePortSharing(socket_t socket)
{
    const int yes = 1;
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
}

/// Blocks all signals for this thread, and so for threads created during its lifetime.
class AllSignalsBlocked : private NonCopyable {
public:
    AllSignalsBlocked()
    {
        sigset_t all{};
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, &before_);
    }
    ~AllSignalsBlocked() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

private:
    sigset_t before_{};
};

/// Empty for errors that are of no use to a user.
std::string reasonFrom(int error)
{
    switch (error) {
    case EADDRINUSE:
        return ": another program does";
    case EADDRNOTAVAIL:
        return ": this machine has no such address";
    case EACCES:
        return ": it needs more rights";
    default:
        return "";
    }
}

} // namespace

tl::expected<int, std::string> HttpServer::listenAt(const std::string& address, int port)
{
    set_payload_max_length(maxFormSize);
    set_keep_alive_max_count(maxRequestsPerConnection);
    set_socket_options(disablePortSharing);
    errno = 0;
    const bool anyPort = port == 0;
    const int bound = anyPort ? bind_to_any_port(address) : bind_to_port(address, port) ? port : -1;
    if (bound <= 0)
        return tl::unexpected("The server cannot listen at " + address
            + (anyPort ? "" : ", port " + std::to_string(port)) + reasonFrom(errno) + '.');
    ::listen(svr_sock_, maxBacklog); // With the library's own backlog a fifth client would wait for a second.
    return bound;
}

void HttpServer::start()
{
    std::promise<void> isServing;
    new_task_queue = [&isServing] {
        auto* queue = new ConnectionThreads;
        isServing.set_value();
        return queue;
    };
    const AllSignalsBlocked blocked;
    listening_ = std::thread([this] { listen_after_bind(); });
    isServing.get_future().wait(); // before this, the library would ignore a request to stop
}

bool HttpServer::waitUntil(std::chrono::steady_clock::time_point moment)
{
    std::unique_lock lock(mutex_);
    return !ending_.wait_until(lock, moment, [this] { return isEnding_; });
}

void HttpServer::end()
{
    if (!listening_.joinable())
        return;
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
        for (const HttpConnection* connection : connections_)
            connection->abort();
    }
    ending_.notify_all();
    stop();
    listening_.join();
}

bool HttpServer::process_and_close_socket(socket_t socket)
{
    HttpConnection connection(socket);
    if (!add(connection))
        return false;
    serve(connection);
    remove(connection);
    return true;
}

void HttpServer::serve(HttpConnection& connection)
{
    const auto ignoreRanges = [](httplib::Request& request) { request.ranges.clear(); };
    for (std::size_t left = maxRequestsPerConnection; left > 0 && connection.awaitRequest(); --left) {
        bool isClosed = false;
        if (!process_request(connection, left == 1, isClosed, ignoreRanges) || isClosed || connection.isLimitExceeded())
            return;
    }
}

/// False when the server is ending: a later connection would not be aborted.
bool HttpServer::add(HttpConnection& connection)
{
    const std::lock_guard lock(mutex_);
    if (!isEnding_)
        connections_.insert(&connection);
    return !isEnding_;
}

void HttpServer::remove(HttpConnection& connection)
{
    const std::lock_guard lock(mutex_);
    connections_.erase(&connection);
}

} // namespace sonavel
