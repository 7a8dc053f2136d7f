// One running player for each home directory.
#pragma once

#include "adapters/EventLoop.h"
#include "base/NonCopyable.h"

#include <functional>
#include <memory>
#include <string>

namespace sonavel {

/// Holds the claim on a home directory for as long as it lives; the system takes it back when the process ends, however
/// that ends. Lock and socket lie in a folder for things of the run time, never beside the user's files.
class SingleInstance : private NonCopyable {
public:
    /// The user's folder for such things: $XDG_RUNTIME_DIR unless its path is too long for a socket, else one of his
    /// own under /tmp. Empty when there is none that is his alone.
    [[nodiscard]] static std::string usersRunTimeFolder();

    struct Claim;
    /// Claims the home directory. While another process has it, that one is called, for up to five seconds until it
    /// listens. Without a usable folder every claim succeeds.
    [[nodiscard]] static Claim claim(const std::string& runTimeFolder, const std::string& homeDirectory);

    ~SingleInstance();

    /// Calls `callback` for every later start on the same home directory, those made before this call included.
    void onActivated(EventLoop& eventLoop, std::function<void()> callback);

private:
    SingleInstance(int lock, int socket);

    int lock_;
    int socket_;
    std::unique_ptr<EventLoop::Registration> calls_;
};

/// What came of a claim.
struct SingleInstance::Claim {
    std::unique_ptr<SingleInstance> instance; ///< null when another process has the home directory
    bool isOtherCalled = false; ///< whether that process has heard of this start
};

} // namespace sonavel
