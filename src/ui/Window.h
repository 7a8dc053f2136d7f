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

    friend bool operator==(const WindowState&, const WindowState&) = default;
};

class Window : public Rendered<WindowState> {
public:
    [[nodiscard]] bool isVisible() const { return state().isVisible; }

    void setTitle(const Text& title)
    {
        update([&](WindowState& state) { state.title = title; });
    }
    void setIsVisible(bool visible)
    {
        update([&](WindowState& state) { state.isVisible = visible; });
    }
    /// Shows the window, above the others and with the keyboard.
    void makeKeyAndOrderFront()
    {
        update([&](WindowState& state) {
            state.isVisible = true;
            ++state.frontRequests;
        });
    }

    /// The user asked to close it. The window stays until the program hides it.
    void closeRequestedByUser() const { action.send(); }

    Action action;
};

} // namespace sonavel
