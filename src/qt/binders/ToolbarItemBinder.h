// Binds a tool of the program's toolbar to an action of Qt's.
#pragma once

#include "ui/Toolbar.h"

#include <QAction>

namespace sonavel {

/// Renders the enabled state and reports when the tool is used. Lives as long as the action; the item must live longer.
class ToolbarItemBinder : public QObject {
public:
    /// The action's property "tag" is the item's tag.
    ToolbarItemBinder(ToolbarItem& item, QAction& action);
    ~ToolbarItemBinder() override;

private:
    ToolbarItem& item_;
};

} // namespace sonavel
