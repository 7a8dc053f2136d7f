#include "app/Menus.h"

#include "editor/EditSheet.h"
#include "editor/EditorWindow.h"
#include "editor/StationExport.h"
#include "editor/StationImport.h"
#include "editor/StationRemoval.h"
#include "model/StationList.h"
#include "platform/LocalizedStrings.h"
#include "playback/Player.h"
#include "playback/StationSelection.h"
#include "ui/Controls.h"

#include <algorithm>
#include <array>

namespace sonavel {

namespace {

using Items = MenuControls;
using Targets = const MenuTargets&;

bool always(Targets)
{
    return true;
}

bool whileEditorHasKeyboard(Targets targets)
{
    return targets.list.winWebRadioListEdit.isVisible() && targets.list.winWebRadioListEdit.isKeyWindow();
}

bool whileEditorIsHidden(Targets targets)
{
    return !targets.list.winWebRadioListEdit.isVisible();
}

constexpr int showEditorTag = 1003;
constexpr auto none = ListUse::None; // the user goes on typing after pausing the sound
constexpr auto asShown = ListUse::AsShown;
constexpr auto exclusive = ListUse::Exclusive;

constexpr std::array rows{
    TaggedItem{0, &Items::menuQuit, asShown, [](Targets t) { t.quitApp(); }, always},
    TaggedItem{
        1000, &Items::menuRadioAdd, exclusive, [](Targets t) { t.editSheet.radioAddToList(); }, whileEditorHasKeyboard},
    TaggedItem{1001, &Items::menuRadioEdit, exclusive, [](Targets t) { t.editSheet.radioEditToList(); },
        [](Targets t) { return whileEditorHasKeyboard(t) && t.list.tableViewListRadio.numberOfSelectedRows() == 1; }},
    TaggedItem{1002, &Items::menuRadioRemove, exclusive, [](Targets t) { t.stationRemoval.radioRemoveToList(); },
        [](Targets t) { return whileEditorHasKeyboard(t) && t.list.tableViewListRadio.selectedRow() >= 0; }},
    TaggedItem{showEditorTag, &Items::menuRadioShowEditRadio, asShown,
        [](Targets t) { t.editorWindow.toggleVisibility(); },
        [](Targets t) { return !whileEditorIsHidden(t) || !t.winPreferences.isVisible(); }},
    TaggedItem{2000, &Items::menuPlayPause, none, [](Targets t) { t.player.playPause(); },
        [](Targets t) { return t.popupbuttonRadioList.indexOfSelectedItem() > 0; }},
    TaggedItem{2001, &Items::menuStop, none, [](Targets t) { t.player.stop(); },
        [](Targets t) { return !t.player.isStop || t.player.isPlay; }},
    TaggedItem{2002, &Items::menuMute, none, [](Targets t) { t.player.buttonMute(); }, always},
    TaggedItem{
        2003, &Items::menuPreviousStation, none, [](Targets t) { t.stationSelection.changeStation(true); }, always},
    TaggedItem{2004, &Items::menuNextStation, none, [](Targets t) { t.stationSelection.changeStation(false); }, always},
    TaggedItem{3000, &Items::menuRadioImport, exclusive, [](Targets t) { t.stationImport.importRadioListFromFile(); },
        whileEditorHasKeyboard},
    TaggedItem{3001, &Items::menuRadioExport, exclusive, [](Targets t) { t.stationExport.exportRadioListIntoFile(); },
        [](Targets t) { return whileEditorHasKeyboard(t) && t.stationList.numberOfStations() > 0; }},
    TaggedItem{4000, &Items::menuPreferences, none, [](Targets) {}, whileEditorIsHidden},
    TaggedItem{4001, &Items::menuCheckUpdates, asShown, [](Targets t) { t.checkUpdate(); }, whileEditorIsHidden},
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

int tagOf(MenuItem MenuControls::*item)
{
    const auto* const row =
        std::find_if(rows.begin(), rows.end(), [item](const auto& each) { return each.item == item; });
    return row == rows.end() ? noTag : row->tag;
}

void Menus::menuView(const MenuItem& sender)
{
    if (const TaggedItem* row = rowOf(sender.tag()))
        row->perform(targets_);
}

bool Menus::validateMenuItem(const MenuItem& item)
{
    if (item.tag() == showEditorTag)
        controls_.menuRadioShowEditRadio.setTitle(localizedStrings_.localizedStringForKey(
            whileEditorIsHidden(targets_) ? "SHOW_EDIT_RADIO_LIST" : "CLOSE_EDIT_RADIO_LIST"));
    const TaggedItem* row = rowOf(item.tag());
    return row != nullptr && row->isEnabled(targets_);
}

void Menus::validateItems()
{
    for (const TaggedItem& row : rows)
        (controls_.*row.item).setEnabled(validateMenuItem(controls_.*row.item));
}

} // namespace sonavel
