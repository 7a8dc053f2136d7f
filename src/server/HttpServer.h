// The HTTP server of the data server: the library's, with limits for connections and a quick shutdown.
#pragma once

#include <httplib.h>
#include <tl/expected.hpp>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <string>
#include <thread>

namespace sonavel {

class HttpConnection;

/// Lifecycle: `listenAt`, the library's `Get` and `Post`, `start`, `end`. Each connection has a thread of its own
/// as long as there are fewer than `maxConnections`; further ones wait. Range requests get the whole content.
class HttpServer final : public httplib::Server {
public:
    static constexpr int maxConnections = 64;

    ~HttpServer() override { end(); }

    /// The port that it listens at, `port` or a free one for 0. An error is one sentence for the user.
    [[nodiscard]] tl::expected<int, std::string> listenAt(const std::string& address, int port);

    /// Starts serving. Its threads block all signals.
    void start();

    /// For handlers of long responses: waits until `moment` or until the server ends; returns whether to continue.
    [[nodiscard]] bool waitUntil(std::chrono::steady_clock::time_point moment);

    /// Aborts all responses and waits in progress, and returns when all threads have ended.
    void end();

private:
    bool process_and_close_socket(socket_t socket) override;
    void serve(HttpConnection& connection);
    [[nodiscard]] bool add(HttpConnection& connection);
    void remove(HttpConnection& connection);

    std::mutex mutex_;
    std::condition_variable ending_;
    bool isEnding_ = false;
    std::set<HttpConnection*> connections_;
    std::thread listening_;
};

} // namespace sonavel
