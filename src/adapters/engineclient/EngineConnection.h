// The engine's process, and the line to it.
#pragma once

#include "adapters/EventLoop.h"
#include "base/NonCopyable.h"
#include "engine/LineReader.h"
#include "engine/Protocol.h"

#include <sys/types.h>

#include <functional>
#include <memory>
#include <string>

namespace sonavel {

/// One run of the engine program. Main thread; nothing blocks.
class EngineConnection : private NonCopyable {
public:
    using Receive = std::function<void(const EngineEvent&)>;
    using Lost = std::function<void()>;

    /// Starts the program. `receive` gets its events. `lost` is called once when it is gone or does not listen any
    /// more, never from inside `send`; it may destroy the connection. Null when the program cannot be started.
    [[nodiscard]] static std::unique_ptr<EngineConnection> create(
        EventLoop& eventLoop, const std::string& program, Receive receive, Lost lost);

    /// Ends the program at once, and with it its sound.
    ~EngineConnection();

    void send(const EngineCommand& command);

private:
    EngineConnection(EventLoop& eventLoop, int socket, pid_t process, Receive receive, Lost lost);

    void read();
    void lose();

    EventLoop& eventLoop_;
    const int socket_;
    const pid_t process_;
    Receive receive_;
    Lost lost_;
    LineReader lines_;
    std::unique_ptr<EventLoop::Registration> reading_;
    std::unique_ptr<EventLoop::Registration> losing_;
};

} // namespace sonavel
