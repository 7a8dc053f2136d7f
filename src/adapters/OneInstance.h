// One running player for each home directory.
#pragma once

#include "adapters/EventLoop.h"

#include <functional>
#include <memory>
#include <string>

namespace sonavel {

/// Holds the claim on a home directory for as long as it lives; the system takes it back when the process ends, however
/// that ends. Lock and socket lie in a folder for things of the run time, never beside the user's files.
class OneInstance {
public:
    /// The user's folder for such things: $XDG_RUNTIME_DIR unless its path is too long for a socket, else one of his
    /// own under /tmp. Empty when there is none that is his alone.
    [[nodiscard]] static std::string usersRunTimeFolder();

    /// Claims the home directory. Null when another process has it; that one has then been called, if it
    /// listened within five seconds. Without a usable
    /// folder every claim succeeds.
    [[nodiscard]] static std::unique_ptr<OneInstance> claim(
        const std::string& runTimeFolder, const std::string& homeDirectory);

    OneInstance(const OneInstance&) = delete;
    OneInstance& operator=(const OneInstance&) = delete;
    ~OneInstance();

    /// Calls `callback` for every later start on the same home directory, those made before this call included.
    void whenCalled(EventLoop& eventLoop, std::function<void()> callback);

private:
    OneInstance(int lock, int socket);

    int lock_;
    int socket_;
    std::unique_ptr<EventLoop::Registration> calls_;
};

} // namespace sonavel
