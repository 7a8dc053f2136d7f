// An item of a menu.
#pragma once

#include "base/Text.h"
#include "ui/Rendered.h"
#include "ui/Tag.h"

namespace sonavel {

struct MenuItemState {
    Text title;
    /// Tells the items of all menus apart.
    int tag = noTag;
    bool isEnabled = false;
    /// Whether it bears a check mark.
    bool isOn = false;

    friend bool operator==(const MenuItemState&, const MenuItemState&) = default;
};

class MenuItem : public Rendered<MenuItemState> {
public:
    [[nodiscard]] int tag() const { return state().tag; }

    void setTitle(const Text& title) { set(&MenuItemState::title, title); }
    void setEnabled(bool enabled) { set(&MenuItemState::isEnabled, enabled); }
    void setState(bool on) { set(&MenuItemState::isOn, on); }

    /// The user chose it, or pressed its key.
    void chosenByUser() const
    {
        if (state().isEnabled)
            action.send();
    }

    Action action;
};

} // namespace sonavel
