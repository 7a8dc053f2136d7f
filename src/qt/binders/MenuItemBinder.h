// Binds an item of the program's menus to an action of Qt's.
#pragma once

#include "ui/MenuItem.h"

#include <QAction>

namespace sonavel {

/// Renders title and enabled state and reports when the item is chosen. Lives as long as the action; the item must live
/// longer.
class MenuItemBinder : public QObject {
public:
    /// The title that the action has keeps its mnemonic for as long as the program gives it no other.
    MenuItemBinder(MenuItem& item, int tag, QAction& action);
    ~MenuItemBinder() override;

private:
    void render(const MenuItemState& state);

    MenuItem& item_;
    QAction& action_;
    Text titleShown_;
};

} // namespace sonavel
