// A window's bar of tools.
#pragma once

#include "ui/Rendered.h"

namespace sonavel {

struct ToolbarState {
    bool isVisible = false;

    friend bool operator==(const ToolbarState&, const ToolbarState&) = default;
};

class Toolbar : public Rendered<ToolbarState> { };

} // namespace sonavel
