// The callbacks for the beginning and the end of the application loop.
#pragma once

#include <memory>

namespace sonavel {

class AppUpdater;
class Window;

/// Takes no action: everything at the start is done by the controller, and nothing is left to do at the end.
class AppDelegate {
public:
    /// The main window, while it is there.
    Window* window = nullptr;
    /// Absent: update checks belong to the controller.
    std::shared_ptr<AppUpdater> updaterApp;

    void applicationDidFinishLaunching() const { }
    void applicationWillTerminate() const { }
};

} // namespace sonavel
