// One client of the data server, bounded in what it may send and in how long it may take.
#pragma once

#include <httplib.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <string>

namespace sonavel {

/// The stream that the server's library reads requests from and writes answers to.
///
/// A request that does not arrive whole within 3 s or is longer than 128 KiB, head and form together, cannot be read
/// on; an answer of which the client takes nothing for 30 s cannot be written on. The library gives up then.
class HttpConnection final : public httplib::Stream {
public:
    /// Takes the socket over, and keeps it from programs that are started meanwhile.
    explicit HttpConnection(socket_t socket);
    /// Closes so that an answer which refuses an unfinished request still arrives.
    ~HttpConnection() override;

    /// Waits for the next request to begin, and gives it its time and size anew. False when none comes within 2 s.
    [[nodiscard]] bool awaitRequest();
    /// Whether a limit was met in reading, so that where the next request begins is not known.
    [[nodiscard]] bool isCutShort() const { return isCutShort_; }
    /// From any thread: every wait of this connection ends, and nothing more is read or written.
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
    std::size_t allowance_ = 0;
    bool isCutShort_ = false;
};

} // namespace sonavel
