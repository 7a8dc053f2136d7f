// A TCP server on loopback that does to its clients whatever a test scripts.
#pragma once

#include "base/NonCopyable.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace sonavel::test {

/// Listens on 127.0.0.1 on a free port from construction to destruction, and calls the handler for each connection on
/// a thread of the connection's own. The end of the server ends every wait of every handler, so that destruction never
/// hangs; a handler captures only what outlives the server.
class ScriptedServer : private NonCopyable {
public:
    /// One client, as the handler sees it. Closed when the handler returns. A wait ends early when the server ends.
    class Connection : private NonCopyable {
    public:
        ~Connection() { close(); }

        /// Everything up to and with the blank line; shorter when the client closed before.
        std::string readRequestHead()
        {
            while (received_.find("\r\n\r\n") == std::string::npos && receiveMore()) { }
            return take(received_.find("\r\n\r\n"), 4);
        }

        /// The next `size` bytes, as those of a body; fewer when the client closed before.
        std::string read(std::size_t size)
        {
            while (received_.size() < size && receiveMore()) { }
            return take(size, 0);
        }

        /// False when the client or the server is gone.
        bool send(std::string_view bytes)
        {
            while (!bytes.empty()) {
                const ssize_t sent = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
                if (sent >= 0)
                    bytes.remove_prefix(static_cast<std::size_t>(sent));
                else if (errno != EAGAIN || waitFor(POLLOUT, -1) != Woken::BySocket)
                    return false;
            }
            return !isEnding();
        }

        /// Lets time pass with the connection open. False when the client or the server is gone.
        bool wait(std::chrono::milliseconds time)
        {
            return waitFor(POLLRDHUP, static_cast<int>(time.count())) == Woken::ByTime;
        }

        /// Waits with the connection open until the client closes it or the server ends.
        void waitUntilClosed()
        {
            while (receiveMore()) { }
        }

        /// The socket, for a handler that speaks TLS over it.
        [[nodiscard]] int descriptor() const { return socket_; }

        /// What the client sent and nobody read makes this a reset.
        void close()
        {
            if (socket_ >= 0)
                ::close(std::exchange(socket_, -1));
        }

        /// Closes so that the client sees a reset connection.
        void reset()
        {
            const linger atOnce{.l_onoff = 1, .l_linger = 0};
            ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
            close();
        }

    private:
        friend class ScriptedServer;
        enum class Woken { BySocket, ByTime, ByEnd };

        Connection(int socket, const ScriptedServer& server)
            : socket_(socket)
            , server_(server)
        {
        }

        [[nodiscard]] bool isEnding() { return waitFor(0, 0) == Woken::ByEnd; }

        Woken waitFor(short events, int milliseconds)
        {
            std::array<pollfd, 2> waited{{{server_.end_, POLLIN, 0}, {socket_, events, 0}}};
            int ready = 0;
            do
                ready = ::poll(waited.data(), waited.size(), milliseconds);
            while (ready < 0 && errno == EINTR);
            if (waited[0].revents != 0)
                return Woken::ByEnd;
            return ready > 0 ? Woken::BySocket : Woken::ByTime;
        }

        bool receiveMore()
        {
            if (waitFor(POLLIN, -1) != Woken::BySocket)
                return false;
            std::array<char, 4096> piece{};
            const ssize_t size = ::recv(socket_, piece.data(), piece.size(), 0);
            if (size > 0)
                received_.append(piece.data(), static_cast<std::size_t>(size));
            return size > 0;
        }

        std::string take(std::size_t end, std::size_t separator)
        {
            const std::size_t size = end >= received_.size() ? received_.size() : end + separator;
            std::string taken = received_.substr(0, size);
            received_.erase(0, size);
            return taken;
        }

        int socket_;
        const ScriptedServer& server_;
        std::string received_;
    };

    using Handler = std::function<void(Connection&)>;

    explicit ScriptedServer(Handler handler)
        : handler_(std::move(handler))
        , end_(::eventfd(0, EFD_CLOEXEC))
        , listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* const generic = reinterpret_cast<sockaddr*>(&address);
        if (::bind(listener_, generic, size) != 0 || ::listen(listener_, SOMAXCONN) != 0
            || ::getsockname(listener_, generic, &size) != 0)
            throw std::runtime_error("no loopback port for the scripted server");
        port_ = ntohs(address.sin_port);
        acceptor_ = std::thread([this] { acceptConnections(); });
    }

    ~ScriptedServer()
    {
        ::eventfd_write(end_, 1);
        acceptor_.join();
        for (std::thread& connection : connections_)
            connection.join();
        for (const int descriptor : {listener_, end_})
            ::close(descriptor);
    }

    /// A handler that reads the request head, sends `answer` and closes.
    static Handler answering(std::string answer)
    {
        return [answer = std::move(answer)](Connection& connection) {
            connection.readRequestHead();
            connection.send(answer);
        };
    }

    [[nodiscard]] std::uint16_t port() const { return port_; }

    /// "http://127.0.0.1:PORT" and `path`, which begins with "/".
    [[nodiscard]] std::string address(std::string_view path = "/") const
    {
        return "http://127.0.0.1:" + std::to_string(port_) + std::string(path);
    }

    /// How many clients have connected so far.
    [[nodiscard]] int connectionCount() const { return connectionCount_; }
    /// How many handlers have not returned.
    [[nodiscard]] int openConnectionCount() const { return openConnectionCount_; }

private:
    void acceptConnections()
    {
        std::array<pollfd, 2> waited{{{end_, POLLIN, 0}, {listener_, POLLIN, 0}}};
        while (true) {
            if (::poll(waited.data(), waited.size(), -1) < 0)
                continue;
            if (waited[0].revents != 0)
                return;
            const int client = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
            if (client < 0)
                continue;
            ++connectionCount_;
            ++openConnectionCount_;
            connections_.emplace_back([this, client] {
                Connection connection(client, *this);
                handler_(connection);
                --openConnectionCount_;
            });
        }
    }

    Handler handler_;
    int end_;
    int listener_;
    std::uint16_t port_ = 0;
    std::atomic<int> connectionCount_ = 0;
    std::atomic<int> openConnectionCount_ = 0;
    std::vector<std::thread> connections_; // the acceptor's alone until it has ended
    std::thread acceptor_;
};

} // namespace sonavel::test
