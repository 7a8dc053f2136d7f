// One connection of the data server, with limits on size and time.
#pragma once

#include <httplib.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <string>

namespace sonavel {

/// The stream from which the server's library reads requests and to which it writes responses.
///
/// Reading fails when a request is not complete within 3 s or exceeds 128 KiB, header and form together; writing fails
/// when the client accepts nothing for 30 s. The library gives up then.
class HttpConnection final : public httplib::Stream {
public:
    /// Owns the socket, and marks it close-on-exec.
    explicit HttpConnection(socket_t socket);
    /// Closes so that a response to an incomplete request still arrives.
    ~HttpConnection() override;

    /// Waits for the next request to begin, and resets the limits. False when none comes within 2 s.
    [[nodiscard]] bool awaitRequest();
    /// Whether reading failed at a limit, so that where the next request begins is not known.
    [[nodiscard]] bool isLimitExceeded() const { return isLimitExceeded_; }
    /// Ends every wait of this connection; nothing more is read or written. Any thread.
    void abort() const;

    [[nodiscard]] bool is_readable() const override;
    [[nodiscard]] bool is_writable() const override;
    ssize_t read(char* bytes, std::size_t size) override;
    ssize_t write(const char* bytes, std::size_t size) override;
    void get_remote_ip_and_port(std::string& ip, int& port) const override;
    void get_local_ip_and_port(std::string& ip, int& port) const override;
    [[nodiscard]] socket_t socket() const override { return socket_; }

private:
    using Clock = std::chrono::steady_clock;

    [[nodiscard]] bool waitFor(short events, Clock::duration time) const;
    [[nodiscard]] bool receive();
    void drain();

    const socket_t socket_;
    std::array<char, 4096> received_{};
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    Clock::time_point deadline_;
    std::size_t bytesLeft_ = 0;
    bool isLimitExceeded_ = false;
};

} // namespace sonavel
