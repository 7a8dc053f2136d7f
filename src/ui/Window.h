// A window.
#pragma once

#include "base/Text.h"
#include "ui/Rendered.h"

namespace sonavel {

struct WindowState {
    Text title;
    bool isVisible = false;
    /// Counts how often the window was asked to come to the front and take the keyboard.
    unsigned frontRequests = 0;
    /// Whether it has the keyboard.
    bool isKeyWindow = false;
    /// Whether it is shown as a sheet: attached to another window, which takes no input meanwhile.
    bool isSheet = false;
    /// Counts how often the keyboard was taken away from whatever control of the window had it.
    unsigned focusReleases = 0;

    friend bool operator==(const WindowState&, const WindowState&) = default;
};

class Window : public Rendered<WindowState> {
public:
    [[nodiscard]] bool isVisible() const { return state().isVisible; }
    [[nodiscard]] bool isKeyWindow() const { return state().isKeyWindow; }

    void setTitle(const Text& title) { set(&WindowState::title, title); }
    void setIsVisible(bool visible) { set(&WindowState::isVisible, visible); }
    /// Shows the window, above the others and with the keyboard.
    void makeKeyAndOrderFront()
    {
        update([&](WindowState& state) {
            state.isVisible = true;
            ++state.frontRequests;
        });
    }

    /// Leaves the keyboard with the window itself and none of its controls.
    void makeFirstResponder()
    {
        update([](WindowState& state) { ++state.focusReleases; });
    }
    /// Shows the window as a sheet of the one that its layout names. Other windows stay usable.
    void beginSheet()
    {
        update([](WindowState& state) { state.isSheet = state.isVisible = true; });
    }
    /// Detaches it again; `close` hides it.
    void endSheet()
    {
        update([](WindowState& state) { state.isSheet = false; });
    }
    void close() { setIsVisible(false); }

    /// The keyboard came to this window or went elsewhere.
    void keyWindowChangedByUser(bool isKeyWindow)
    {
        store([&](WindowState& state) { state.isKeyWindow = isKeyWindow; });
    }
    /// The user asked to close it. The window stays until the program hides it.
    void closeRequestedByUser() const { action.send(); }

    Action action;
};

} // namespace sonavel
