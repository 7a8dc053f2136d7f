// One running player for each home directory.
#pragma once

#include "adapters/EventLoop.h"
#include "base/NonCopyable.h"

#include <tl/expected.hpp>

#include <functional>
#include <memory>
#include <string>

namespace sonavel {

/// Another process that has the claim on a home directory.
enum class OtherInstance { Activated, NotResponding };

/// Holds the claim on a home directory for as long as it lives; the system releases it when the process ends, however
/// that ends. Lock and socket lie in a folder for run-time files, never beside the user's files.
class SingleInstance : private NonCopyable {
public:
    /// The user's folder for such files: $XDG_RUNTIME_DIR unless its path is too long for a socket, else one under
    /// /tmp. Empty when there is none that belongs to the user alone.
    [[nodiscard]] static std::string usersRunTimeFolder();

    /// Claims the home directory. While another process has it, that one is activated, for up to five seconds until it
    /// listens. Without a usable folder every claim succeeds.
    [[nodiscard]] static tl::expected<std::unique_ptr<SingleInstance>, OtherInstance> claim(
        const std::string& runTimeFolder, const std::string& homeDirectory);

    ~SingleInstance();

    /// Calls `callback` for every later start on the same home directory, those made before this call included.
    void onActivated(EventLoop& eventLoop, std::function<void()> callback);

private:
    SingleInstance(int lock, int socket);

    int lock_;
    int socket_;
    std::unique_ptr<EventLoop::Registration> activations_;
};

} // namespace sonavel
