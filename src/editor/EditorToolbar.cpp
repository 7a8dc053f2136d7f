#include "editor/EditorToolbar.h"

#include "editor/EditSheet.h"
#include "editor/StationExport.h"
#include "editor/StationImport.h"
#include "editor/StationRemoval.h"
#include "ui/Controls.h"

namespace sonavel {

namespace {

enum Tag { adding, editing, removing, importing, exporting };

} // namespace

void EditorToolbar::toolbar(const ToolbarItem& sender)
{
    switch (sender.tag()) {
    case adding:
        return editSheet_.radioAddToList();
    case editing:
        return editSheet_.radioEditToList();
    case removing:
        return stationRemoval_.radioRemoveToList();
    case importing:
        return stationImport_.importRadioListFromFile();
    case exporting:
        return stationExport_.exportRadioListIntoFile();
    default:
        return;
    }
}

bool EditorToolbar::validateToolbarItem(const ToolbarItem& item) const
{
    const TableView& table = controls_.tableViewListRadio;
    switch (item.tag()) {
    case adding:
    case importing:
        return true;
    case editing:
        return table.numberOfSelectedRows() == 1;
    case removing:
        return table.numberOfSelectedRows() >= 1;
    case exporting:
        return table.numberOfRows() >= 1;
    default:
        return false;
    }
}

void EditorToolbar::validateVisibleItems()
{
    for (ToolbarItem* item : {&controls_.radioAdd, &controls_.radioEdit, &controls_.radioRemove, &controls_.radioImport,
             &controls_.radioExport})
        item->setEnabled(validateToolbarItem(*item));
}

} // namespace sonavel
