#include "app/Menus.h"

#include "app/WinSonavelController.h"
#include "platform/LocalizedStrings.h"
#include "ui/Outlets.h"

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

struct Row {
    int tag;
    void (*perform)(Controller&);
    bool (*isEnabled)(const Controller&, const Outlets&);
};

constexpr int showEditorTag = 1003;

const std::array rows{
    Row{0, [](Controller& c) { c.quitApp(); }, always},
    Row{1000, [](Controller& c) { c.editSheet.radioAddToList(); }, whileEditorHasKeyboard},
    Row{1001, [](Controller& c) { c.editSheet.radioEditToList(); },
        [](const Controller& c, const Outlets& o) {
            return whileEditorHasKeyboard(c, o) && o.tableViewListRadio.numberOfSelectedRows() == 1;
        }},
    Row{1002, [](Controller& c) { c.stationRemoval.radioRemoveToList(); },
        [](const Controller& c, const Outlets& o) {
            return whileEditorHasKeyboard(c, o) && o.tableViewListRadio.selectedRow() >= 0;
        }},
    Row{showEditorTag, [](Controller& c) { c.editorWindow.toggleVisibility(); },
        [](const Controller&, const Outlets& o) {
            return o.winWebRadioListEdit.isVisible() || !o.winPreferences.isVisible();
        }},
    Row{2000, [](Controller& c) { c.player.playPause(); },
        [](const Controller&, const Outlets& o) { return o.popupbuttonRadioList.indexOfSelectedItem() > 0; }},
    Row{2001, [](Controller& c) { c.player.stop(); },
        [](const Controller& c, const Outlets&) { return !c.player.isStop || c.player.isPlay; }},
    Row{2002, [](Controller& c) { c.player.buttonMute(); }, always},
    Row{2003, [](Controller& c) { c.stationSelection.changeStation(true); }, always},
    Row{2004, [](Controller& c) { c.stationSelection.changeStation(false); }, always},
    Row{3000, [](Controller& c) { c.stationImport.importRadioListFromFile(); }, whileEditorHasKeyboard},
    Row{3001, [](Controller& c) { c.stationExport.exportRadioListIntoFile(); },
        [](const Controller& c, const Outlets& o) {
            return whileEditorHasKeyboard(c, o) && c.stationList.numberOfStations() > 0;
        }},
    Row{4000, [](Controller&) {}, whileEditorIsHidden},
    Row{4001, [](Controller& c) { c.checkUpdateOnDemand(); }, whileEditorIsHidden},
};

const Row* rowOf(int tag)
{
    for (const Row& row : rows) {
        if (row.tag == tag)
            return &row;
    }
    return nullptr;
}

} // namespace

Menus::Menus(WinSonavelController& controller, const LocalizedStrings& localizedStrings, Outlets& outlets)
    : controller_(controller)
    , localizedStrings_(localizedStrings)
    , outlets_(outlets)
{
}

void Menus::menuView(const MenuItem& sender)
{
    if (const Row* row = rowOf(sender.tag()))
        row->perform(controller_);
}

bool Menus::validateMenuItem(const MenuItem& item)
{
    if (item.tag() == showEditorTag)
        outlets_.menuRadioShowEditRadio.setTitle(localizedStrings_.localizedStringForKey(
            outlets_.winWebRadioListEdit.isVisible() ? "CLOSE_EDIT_RADIO_LIST" : "SHOW_EDIT_RADIO_LIST"));
    const Row* row = rowOf(item.tag());
    return row != nullptr && row->isEnabled(controller_, outlets_);
}

void Menus::validateItems()
{
    for (MenuItem* item : items())
        item->setEnabled(validateMenuItem(*item));
}

std::array<MenuItem*, 14> Menus::items() const
{
    return {&outlets_.menuRadioAdd, &outlets_.menuRadioEdit, &outlets_.menuRadioRemove, &outlets_.menuRadioImport,
        &outlets_.menuRadioExport, &outlets_.menuRadioShowEditRadio, &outlets_.menuPlayPause, &outlets_.menuStop,
        &outlets_.menuMute, &outlets_.menuPreviousStation, &outlets_.menuNextStation, &outlets_.menuCheckUpdates,
        &outlets_.menuPreferences, &outlets_.menuQuit};
}

} // namespace sonavel
