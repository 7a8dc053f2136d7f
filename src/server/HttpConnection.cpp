#include "server/HttpConnection.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace sonavel {

using namespace std::chrono_literals;

namespace {

constexpr auto keepAliveTimeout = 2s;
/// When clients with incomplete requests occupy all connections, another is still served within the 5 s of a player's
/// probe.
constexpr auto requestTimeout = 3s;
constexpr auto writeTimeout = 30s;
constexpr auto lingerTimeout = 500ms;
constexpr std::size_t maxRequestSize = 131'072;
constexpr std::size_t maxDrainedSize = 1'048'576;

} // namespace

HttpConnection::HttpConnection(socket_t socket)
    : socket_(socket)
{
    fcntl(socket_, F_SETFD, FD_CLOEXEC);
    // Header and body are written separately; the body must not wait for the acknowledgement of the header.
    const int yes = 1;
    setsockopt(socket_, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
}

HttpConnection::~HttpConnection()
{
    shutdown(socket_, SHUT_WR);
    if (isLimitExceeded_)
        drain();
    close(socket_);
}

bool HttpConnection::awaitRequest()
{
    if (begin_ == end_ && !waitFor(POLLIN, keepAliveTimeout))
        return false;
    deadline_ = Clock::now() + requestTimeout;
    bytesLeft_ = maxRequestSize;
    return true;
}

void HttpConnection::abort() const
{
    shutdown(socket_, SHUT_RDWR);
}

bool HttpConnection::is_readable() const
{
    return begin_ < end_ || waitFor(POLLIN, deadline_ - Clock::now());
}

bool HttpConnection::is_writable() const
{
    return waitFor(POLLOUT, writeTimeout);
}

ssize_t HttpConnection::read(char* bytes, std::size_t size)
{
    if (begin_ == end_ && !receive())
        return isLimitExceeded_ ? -1 : 0;
    const std::size_t count = std::min(size, end_ - begin_);
    std::copy_n(received_.data() + begin_, count, bytes);
    begin_ += count;
    return static_cast<ssize_t>(count);
}

/// False at the end of what the client sends, or at a limit.
bool HttpConnection::receive()
{
    if (bytesLeft_ == 0 || !waitFor(POLLIN, deadline_ - Clock::now())) {
        isLimitExceeded_ = true;
        return false;
    }
    const ssize_t count = recv(socket_, received_.data(), std::min(received_.size(), bytesLeft_), 0);
    if (count <= 0)
        return false;
    begin_ = 0;
    end_ = static_cast<std::size_t>(count);
    bytesLeft_ -= end_;
    return true;
}

ssize_t HttpConnection::write(const char* bytes, std::size_t size)
{
    if (!waitFor(POLLOUT, writeTimeout))
        return -1;
    return send(socket_, bytes, size, MSG_NOSIGNAL | MSG_DONTWAIT);
}

/// Closing with unread bytes resets the connection, and the client may lose the response: reads some of them first.
void HttpConnection::drain()
{
    const auto end = Clock::now() + lingerTimeout;
    for (std::size_t taken = 0; taken < maxDrainedSize && waitFor(POLLIN, end - Clock::now());) {
        const ssize_t count = recv(socket_, received_.data(), received_.size(), 0);
        if (count <= 0)
            return;
        taken += static_cast<std::size_t>(count);
    }
}

bool HttpConnection::waitFor(short events, Clock::duration time) const
{
    const auto end = Clock::now() + time;
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
        pollfd waiting{socket_, events, 0};
        const int ready = poll(&waiting, 1, std::max(0, static_cast<int>(left.count())));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

// The handlers of this server do not need the client's address.

void HttpConnection::get_remote_ip_and_port(std::string& ip, int& port) const
{
    ip.clear();
    port = 0;
}

void HttpConnection::get_local_ip_and_port(std::string& ip, int& port) const
{
    get_remote_ip_and_port(ip, port);
}

} // namespace sonavel
