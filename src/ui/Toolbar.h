// A window's bar of tools, and its buttons.
#pragma once

#include "ui/Rendered.h"
#include "ui/Tag.h"

namespace sonavel {

struct ToolbarState {
    bool isVisible = false;

    friend bool operator==(const ToolbarState&, const ToolbarState&) = default;
};

class Toolbar : public Rendered<ToolbarState> { };

struct ToolbarItemState {
    /// Tells the items of a toolbar apart.
    int tag = noTag;
    bool isEnabled = false;

    friend bool operator==(const ToolbarItemState&, const ToolbarItemState&) = default;
};

class ToolbarItem : public Rendered<ToolbarItemState> {
public:
    [[nodiscard]] int tag() const { return state().tag; }

    void setEnabled(bool enabled) { set(&ToolbarItemState::isEnabled, enabled); }

    /// The user pressed it.
    void pressedByUser() const
    {
        if (state().isEnabled)
            action.send();
    }

    Action action;
};

} // namespace sonavel
