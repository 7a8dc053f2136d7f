// A button in a toolbar.
#pragma once

#include "ui/Rendered.h"

namespace sonavel {

struct ToolbarItemState {
    bool isEnabled = false;

    friend bool operator==(const ToolbarItemState&, const ToolbarItemState&) = default;
};

class ToolbarItem : public Rendered<ToolbarItemState> { };

} // namespace sonavel
