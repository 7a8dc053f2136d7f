#include "app/Wiring.h"

#include "app/Actions.h"
#include "app/Menus.h"
#include "editor/EditSheet.h"
#include "editor/EditorTable.h"
#include "editor/EditorToolbar.h"
#include "editor/EditorWindow.h"
#include "online/UpdateCheck.h"
#include "playback/Player.h"
#include "playback/StationSelection.h"
#include "prefs/PreferencesWindow.h"
#include "ui/Controls.h"

#include <memory>

namespace sonavel {

void wireMainWindow(Actions& actions, MainControls& controls, Player& player, StationSelection& stationSelection,
    EditorWindow& editorWindow, const std::function<void()>& quit)
{
    actions.wire(controls.winSonavel.action, ListUse::AsShown, quit);
    actions.wire(controls.popupbuttonRadioList.action, ListUse::None,
        [&stationSelection] { stationSelection.popupRadioList(); });
    actions.wire(controls.buttonPlayPause.action, ListUse::None, [&player] { player.buttonPlayPause(); });
    actions.wire(controls.buttonStop.action, ListUse::None, [&player] { player.buttonStop(); });
    actions.wire(controls.buttonMute.action, ListUse::None, [&player] { player.buttonMute(); });
    actions.wire(controls.sliderVolume.action, ListUse::None, [&player] { player.sliderVolume(); });
    actions.wire(
        controls.buttonEditRadioList.action, ListUse::None, [&editorWindow] { editorWindow.buttonEditradio(); });
}

void wireStationList(Actions& actions, StationListControls& controls, EditorWindow& editorWindow,
    EditorTable& editorTable, EditorToolbar& editorToolbar)
{
    TableView& table = controls.tableViewListRadio;
    actions.wire(controls.winWebRadioListEdit.action, ListUse::AsShown, [&editorWindow] { editorWindow.close(); });
    actions.wire(table.action, ListUse::None, [] {});
    actions.wire(table.doubleAction, ListUse::Exclusive, [&editorTable] { editorTable.myDoubleClickAction(); });
    table.setEditAction([&actions, &table, &editorTable](const CellEdit& edit) {
        actions.perform(&table, ListUse::None,
            [&table, &editorTable, edit] { editorTable.tableView(table, edit.value, edit.column.view(), edit.row); });
    });
    for (ToolbarItem* item :
        {&controls.radioAdd, &controls.radioEdit, &controls.radioRemove, &controls.radioImport, &controls.radioExport})
        actions.wire(item->action, ListUse::Exclusive, [item, &editorToolbar] { editorToolbar.toolbar(*item); });
}

void wireEditSheet(Actions& actions, EditSheetControls& controls, EditSheet& editSheet)
{
    for (TextField* field : {&controls.textFieldRadioName, &controls.textFieldRadioLink})
        actions.wire(field->action, ListUse::None, [&editSheet] { editSheet.controlTextDidChange(); });
    actions.wire(controls.buttonAction.action, ListUse::None, [&editSheet] { editSheet.buttonAction(); });
    for (Action* closing : {&controls.buttonCancel.action, &controls.winEditData.action})
        actions.wire(*closing, ListUse::None, [&editSheet] { editSheet.buttonCancel(); });
}

void wirePreferences(Actions& actions, PreferencesControls& controls, PreferencesWindow& preferencesWindow)
{
    const auto at = [&](Action& action, void (PreferencesWindow::*operation)()) {
        actions.wire(action, ListUse::None, [&preferencesWindow, operation] { (preferencesWindow.*operation)(); });
    };
    at(controls.checkBoxDefaultAutoPlayAtStartApp.action, &PreferencesWindow::setAutoPlayAtStart);
    at(controls.checkBoxDefaultAutoPlay.action, &PreferencesWindow::setAutoPlay);
    at(controls.popupDefaultButtonListRadio.action, &PreferencesWindow::setRadioDefault);
    at(controls.sliderDefaultVolume.action, &PreferencesWindow::changeVolumeDefault);
    at(controls.buttonClosePreferences.action, &PreferencesWindow::winPreferenceClose);
    at(controls.winPreferences.action, &PreferencesWindow::winPreferenceClose);
}

void wireUpdateCheck(Actions& actions, UpdateNoticeControls& controls, UpdateCheck& updateCheck,
    const std::function<void()>& closeNotice)
{
    for (Action* closing : {&controls.buttonCloseNotification.action, &controls.winUpdateNotification.action})
        actions.wire(*closing, ListUse::None, closeNotice);
    updateCheck.setObserver([&actions](const std::shared_ptr<AppUpdater>& updater) {
        const auto at = [&actions, weak = std::weak_ptr(updater)](Action& action, void (AppUpdater::*operation)()) {
            actions.wire(action, ListUse::None, [weak, operation] {
                if (const auto present = weak.lock())
                    ((*present).*operation)();
            });
        };
        at(updater->buttonUpdate.action, &AppUpdater::buttnUpdate);
        at(updater->buttonRemind.action, &AppUpdater::buttnRemind);
        at(updater->windowUpdater.action, &AppUpdater::buttnRemind);
    });
}

void wireAbout(Actions& actions, AboutControls& controls)
{
    for (Action* closing : {&controls.buttonCloseAbout.action, &controls.winAbout.action})
        actions.wire(*closing, ListUse::None, [&controls] { controls.winAbout.setIsVisible(false); });
}

void wireMenus(
    Actions& actions, MenuControls& controls, Menus& menus, PreferencesWindow& preferencesWindow, AboutControls& about)
{
    for (const TaggedItem& row : taggedItems()) {
        MenuItem& item = controls.*row.item;
        actions.wire(item.action, row.listUse, [&menus, &item] { menus.menuView(item); });
    }
    actions.wire(
        controls.menuPreferences.action, ListUse::None, [&preferencesWindow] { preferencesWindow.showPreferences(); });
    actions.wire(controls.menuAbout.action, ListUse::None, [&about] { about.winAbout.makeKeyAndOrderFront(); });
}

} // namespace sonavel
