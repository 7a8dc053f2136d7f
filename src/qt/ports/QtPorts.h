// The small ports of the core, as Qt provides them.
#pragma once

#include "platform/Alerts.h"
#include "platform/Interfaces.h"
#include "platform/Process.h"
#include "platform/RunLoop.h"
#include "platform/WebBrowser.h"

#include <functional>
#include <utility>

namespace sonavel {

/// Questions and notices as message boxes.
class QtAlerts : public Alerts {
public:
    /// Over the active window; closing the box by Escape or its title bar answers for the last button.
    int runModal(const Alert& alert) override;
};

class QtInterfaces : public Interfaces {
public:
    [[nodiscard]] std::shared_ptr<void> loadAppUpdater(const UpdaterControls& owner) override;
};

/// Ends without destroying anything: nothing of what the program holds needs more than the end of the process.
class QtProcess : public Process {
public:
    /// Called before the windows are hidden.
    void beforeExit(std::function<void()> step) { beforeExit_ = std::move(step); }

    [[noreturn]] void exit(int status) override;

private:
    std::function<void()> beforeExit_;
};

class QtRunLoop : public RunLoop {
public:
    void performOnNextTurn(std::function<void()> action) override;
};

/// The browser that the desktop opens web addresses with.
class QtWebBrowser : public WebBrowser {
public:
    void openAddress(const Text& address) override;
};

} // namespace sonavel
