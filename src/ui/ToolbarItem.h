// A button in a toolbar.
#pragma once

#include "ui/Rendered.h"
#include "ui/Tag.h"

namespace sonavel {

struct ToolbarItemState {
    /// Tells the items of a toolbar apart.
    int tag = noTag;
    bool isEnabled = false;

    friend bool operator==(const ToolbarItemState&, const ToolbarItemState&) = default;
};

class ToolbarItem : public Rendered<ToolbarItemState> {
public:
    [[nodiscard]] int tag() const { return state().tag; }

    void setEnabled(bool enabled)
    {
        update([&](ToolbarItemState& state) { state.isEnabled = enabled; });
    }

    /// The user pressed it.
    void pressedByUser() const
    {
        if (state().isEnabled)
            action.send();
    }

    Action action;
};

} // namespace sonavel
