// The application: the core, its ports and the windows.
#pragma once

#include "base/Text.h"
#include "qt/LaunchOptions.h"

#include <functional>
#include <memory>

namespace sonavel {

class SingleInstance;
class WindowStateStore;

/// Create it after the application object, call `start`, then run the application's loop. It is never destroyed: the
/// program exits through its process.
class Program {
public:
    /// Stores nothing and sends no request, but may start a data server of its own. The error, in one line, says why
    /// that or a temporary home directory failed. `instance` is the claim on the home directory; null when that
    /// is a temporary one. Borrows the store.
    [[nodiscard]] static tl::expected<std::unique_ptr<Program>, QString> create(
        LaunchOptions options, std::unique_ptr<SingleInstance> instance, const WindowStateStore& windowState);
    ~Program();

    /// Both phases of the start-up, with the building of the main window between them. The main window is on the screen
    /// after the loop's first turn; then the engine is started, and `whenVisible` is called. Does not return without
    /// a network.
    void start(std::function<void()> whenVisible);

private:
    struct Parts;
    explicit Program(std::unique_ptr<Parts> parts);

    void joinDesktop();
    void showNowPlaying();
    void showWaiting(const QString& host);
    void keepWhatIsOpen();
    void endAsTheSessionDoes();
    void leaveWindows();

    std::unique_ptr<Parts> parts_;
};

} // namespace sonavel
