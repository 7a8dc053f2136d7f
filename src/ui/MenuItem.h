// An item of a menu.
#pragma once

#include "base/Text.h"
#include "ui/Rendered.h"

namespace sonavel {

struct MenuItemState {
    Text title;
    bool isEnabled = false;

    friend bool operator==(const MenuItemState&, const MenuItemState&) = default;
};

class MenuItem : public Rendered<MenuItemState> { };

} // namespace sonavel
