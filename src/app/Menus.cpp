#include "app/Menus.h"

#include "app/WinSonavelController.h"
#include "platform/LocalizedStrings.h"
#include "ui/Outlets.h"

#include <algorithm>
#include <array>

namespace sonavel {

namespace {

using Controller = WinSonavelController;

bool always(const Controller&, const Outlets&)
{
    return true;
}

bool whileEditorHasKeyboard(const Controller&, const Outlets& outlets)
{
    return outlets.winWebRadioListEdit.isVisible() && outlets.winWebRadioListEdit.isKeyWindow();
}

bool whileEditorIsHidden(const Controller&, const Outlets& outlets)
{
    return !outlets.winWebRadioListEdit.isVisible();
}

constexpr int showEditorTag = 1003;
constexpr auto none = ListUse::None; // whoever types goes on typing when he pauses the sound
constexpr auto asShown = ListUse::AsShown;
constexpr auto exclusive = ListUse::Exclusive;

constexpr std::array rows{
    TaggedItem{0, &Outlets::menuQuit, asShown, [](Controller& c) { c.quitApp(); }, always},
    TaggedItem{1000, &Outlets::menuRadioAdd, exclusive, [](Controller& c) { c.editSheet.radioAddToList(); },
        whileEditorHasKeyboard},
    TaggedItem{1001, &Outlets::menuRadioEdit, exclusive, [](Controller& c) { c.editSheet.radioEditToList(); },
        [](const Controller& c, const Outlets& o) {
            return whileEditorHasKeyboard(c, o) && o.tableViewListRadio.numberOfSelectedRows() == 1;
        }},
    TaggedItem{1002, &Outlets::menuRadioRemove, exclusive, [](Controller& c) { c.stationRemoval.radioRemoveToList(); },
        [](const Controller& c, const Outlets& o) {
            return whileEditorHasKeyboard(c, o) && o.tableViewListRadio.selectedRow() >= 0;
        }},
    TaggedItem{showEditorTag, &Outlets::menuRadioShowEditRadio, asShown,
        [](Controller& c) { c.editorWindow.toggleVisibility(); },
        [](const Controller&, const Outlets& o) {
            return o.winWebRadioListEdit.isVisible() || !o.winPreferences.isVisible();
        }},
    TaggedItem{2000, &Outlets::menuPlayPause, none, [](Controller& c) { c.player.playPause(); },
        [](const Controller&, const Outlets& o) { return o.popupbuttonRadioList.indexOfSelectedItem() > 0; }},
    TaggedItem{2001, &Outlets::menuStop, none, [](Controller& c) { c.player.stop(); },
        [](const Controller& c, const Outlets&) { return !c.player.isStop || c.player.isPlay; }},
    TaggedItem{2002, &Outlets::menuMute, none, [](Controller& c) { c.player.buttonMute(); }, always},
    TaggedItem{2003, &Outlets::menuPreviousStation, none, [](Controller& c) { c.stationSelection.changeStation(true); },
        always},
    TaggedItem{
        2004, &Outlets::menuNextStation, none, [](Controller& c) { c.stationSelection.changeStation(false); }, always},
    TaggedItem{3000, &Outlets::menuRadioImport, exclusive,
        [](Controller& c) { c.stationImport.importRadioListFromFile(); }, whileEditorHasKeyboard},
    TaggedItem{3001, &Outlets::menuRadioExport, exclusive,
        [](Controller& c) { c.stationExport.exportRadioListIntoFile(); },
        [](const Controller& c, const Outlets& o) {
            return whileEditorHasKeyboard(c, o) && c.stationList.numberOfStations() > 0;
        }},
    TaggedItem{4000, &Outlets::menuPreferences, none, [](Controller&) {}, whileEditorIsHidden},
    TaggedItem{
        4001, &Outlets::menuCheckUpdates, asShown, [](Controller& c) { c.checkUpdateOnDemand(); }, whileEditorIsHidden},
};

const TaggedItem* rowOf(int tag)
{
    const auto* const row = std::find_if(rows.begin(), rows.end(), [tag](const auto& each) { return each.tag == tag; });
    return row == rows.end() ? nullptr : row;
}

} // namespace

std::span<const TaggedItem> taggedItems()
{
    return rows;
}

int tagOf(MenuItem Outlets::*item)
{
    const auto* const row =
        std::find_if(rows.begin(), rows.end(), [item](const auto& each) { return each.item == item; });
    return row == rows.end() ? -1 : row->tag;
}

Menus::Menus(WinSonavelController& controller, const LocalizedStrings& localizedStrings, Outlets& outlets)
    : controller_(controller)
    , localizedStrings_(localizedStrings)
    , outlets_(outlets)
{
}

void Menus::menuView(const MenuItem& sender)
{
    if (const TaggedItem* row = rowOf(sender.tag()))
        row->perform(controller_);
}

bool Menus::validateMenuItem(const MenuItem& item)
{
    if (item.tag() == showEditorTag)
        outlets_.menuRadioShowEditRadio.setTitle(localizedStrings_.localizedStringForKey(
            outlets_.winWebRadioListEdit.isVisible() ? "CLOSE_EDIT_RADIO_LIST" : "SHOW_EDIT_RADIO_LIST"));
    const TaggedItem* row = rowOf(item.tag());
    return row != nullptr && row->isEnabled(controller_, outlets_);
}

void Menus::validateItems()
{
    for (const TaggedItem& row : rows)
        (outlets_.*row.item).setEnabled(validateMenuItem(outlets_.*row.item));
}

} // namespace sonavel
