// A client that sends what no library would: half a request, one without an end, or nothing at all.
#pragma once

#include "base/NonCopyable.h"
#include "server/DataServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace sonavel::test {

/// Connected to a server on loopback. No wait is longer than 30 s.
class RawClient : private NonCopyable {
public:
    explicit RawClient(const DataServer& server)
        : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        const std::string address = server.baseAddress().string();
        sockaddr_in peer{};
        peer.sin_family = AF_INET;
        peer.sin_port = htons(static_cast<std::uint16_t>(std::stoi(address.substr(address.rfind(':') + 1))));
        peer.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (connect(socket_, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) != 0)
            throw std::runtime_error("the server takes no connection");
    }
    ~RawClient() { close(socket_); }

    /// False when the server takes no more.
    bool send(std::string_view bytes) const
    {
        while (!bytes.empty() && waitFor(POLLOUT)) {
            const ssize_t sent = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
            if (sent < 0)
                return false;
            bytes.remove_prefix(static_cast<std::size_t>(sent));
        }
        return bytes.empty();
    }

    /// The next `size` bytes; fewer when the server closes before.
    [[nodiscard]] std::string read(std::size_t size) const
    {
        std::string received;
        std::array<char, 16 * 1024> piece{};
        while (received.size() < size && waitFor(POLLIN)) {
            const ssize_t count = recv(socket_, piece.data(), std::min(piece.size(), size - received.size()), 0);
            if (count <= 0)
                break;
            received.append(piece.data(), static_cast<std::size_t>(count));
        }
        return received;
    }

private:
    [[nodiscard]] bool waitFor(short events) const
    {
        pollfd waiting{socket_, events, 0};
        return poll(&waiting, 1, 30'000) > 0;
    }

    int socket_;
};

} // namespace sonavel::test
