#include "app/Actions.h"

#include "app/Gate.h"
#include "app/WinSonavelController.h"
#include "ui/Outlets.h"

#include <memory>

namespace sonavel {

using Controller = WinSonavelController;

Actions::Actions(WinSonavelController& controller, Outlets& outlets, Gate& gate)
    : controller_(controller)
    , outlets_(outlets)
    , gate_(gate)
{
    wireMainWindow();
    wireEditor();
    wirePreferences();
    wireItems();
    wireUpdates();
}

void Actions::wireMainWindow()
{
    wire(outlets_.winSonavel.action, ListUse::AsShown, [](Controller& c) { c.quitApp(); });
    wire(outlets_.popupbuttonRadioList.action, ListUse::None,
        [](Controller& c) { c.stationSelection.popupRadioList(); });
    wire(outlets_.buttonPlayPause.action, ListUse::None, [](Controller& c) { c.player.buttonPlayPause(); });
    wire(outlets_.buttonStop.action, ListUse::None, [](Controller& c) { c.player.buttonStop(); });
    wire(outlets_.buttonMute.action, ListUse::None, [](Controller& c) { c.player.buttonMute(); });
    wire(outlets_.sliderVolume.action, ListUse::None, [](Controller& c) { c.player.sliderVolume(); });
    wire(outlets_.buttonEditRadioList.action, ListUse::None, [](Controller& c) { c.editorWindow.buttonEditradio(); });
}

void Actions::wireEditor()
{
    TableView& table = outlets_.tableViewListRadio;
    wire(outlets_.winWebRadioListEdit.action, ListUse::AsShown, [](Controller& c) { c.editorWindow.close(); });
    wire(table.action, ListUse::None, [](Controller&) {});
    wire(table.editAction, ListUse::None, [&table](Controller&) { table.passEditOn(); });
    wire(table.doubleAction, ListUse::Exclusive, [](Controller& c) { c.editorTable.myDoubleClickAction(); });

    wire(outlets_.textFieldRadioName.action, ListUse::None, [](Controller& c) { c.editSheet.controlTextDidChange(); });
    wire(outlets_.textFieldRadioLink.action, ListUse::None, [](Controller& c) { c.editSheet.controlTextDidChange(); });
    wire(outlets_.buttonAction.action, ListUse::None, [](Controller& c) { c.editSheet.buttonAction(); });
    wire(outlets_.buttonCancel.action, ListUse::None, [](Controller& c) { c.editSheet.buttonCancel(); });
    wire(outlets_.winEditData.action, ListUse::None, [](Controller& c) { c.editSheet.buttonCancel(); });
}

void Actions::wirePreferences()
{
    const auto at = [this](Action& action, void (PreferencesWindow::*operation)()) {
        wire(action, ListUse::None, [operation](Controller& c) { (c.preferencesWindow.*operation)(); });
    };
    at(outlets_.checkBoxDefaultAutoPlayAtStartApp.action, &PreferencesWindow::setAutoPlayAtStart);
    at(outlets_.checkBoxDefaultAutoPlay.action, &PreferencesWindow::setAutoPlay);
    at(outlets_.popupDefaultButtonListRadio.action, &PreferencesWindow::setRadioDefault);
    at(outlets_.sliderDefaultVolume.action, &PreferencesWindow::changeVolumeDefault);
    at(outlets_.buttonClosePreferences.action, &PreferencesWindow::winPreferenceClose);
    at(outlets_.winPreferences.action, &PreferencesWindow::winPreferenceClose);
}

/// The windows of a check come and go with it.
void Actions::wireUpdates()
{
    wire(outlets_.buttonCloseNotification.action, ListUse::None, [](Controller& c) { c.buttonClose(); });
    wire(outlets_.winUpdateNotification.action, ListUse::None, [](Controller& c) { c.buttonClose(); });
    controller_.updateCheck.setObserver([this](const std::shared_ptr<AppUpdater>& updater) {
        const auto at = [this, weak = std::weak_ptr(updater)](Action& action, void (AppUpdater::*operation)()) {
            wire(action, ListUse::None, [weak, operation](Controller&) {
                if (const auto present = weak.lock())
                    ((*present).*operation)();
            });
        };
        at(updater->buttonUpdate.action, &AppUpdater::buttnUpdate);
        at(updater->buttonRemind.action, &AppUpdater::buttnRemind);
        at(updater->windowUpdater.action, &AppUpdater::buttnRemind);
    });
}

/// The tag of the preferences' item tells when it is enabled, and nothing to do: its own action takes the place of the
/// tag's.
void Actions::wireItems()
{
    for (ToolbarItem* item :
        {&outlets_.radioAdd, &outlets_.radioEdit, &outlets_.radioRemove, &outlets_.radioImport, &outlets_.radioExport})
        wire(item->action, ListUse::Exclusive, [item](Controller& c) { c.editorToolbar.toolbar(*item); });
    for (const TaggedItem& row : taggedItems()) {
        MenuItem& item = outlets_.*row.item;
        wire(item.action, row.listUse, [&item](Controller& c) { c.menus.menuView(item); });
    }
    wire(outlets_.menuPreferences.action, ListUse::None, [](Controller& c) { c.preferencesWindow.showPreferences(); });
    wire(outlets_.menuAbout.action, ListUse::None, [this](Controller&) { outlets_.winAbout.makeKeyAndOrderFront(); });
    for (Action* closing : {&outlets_.buttonCloseAbout.action, &outlets_.winAbout.action})
        wire(*closing, ListUse::None, [this](Controller&) { outlets_.winAbout.setIsVisible(false); });
}

void Actions::wire(Action& action, ListUse listUse, Operation operation)
{
    action.set([this, &action, listUse, operation = std::move(operation)] { perform(&action, listUse, operation); });
}

void Actions::perform(const void* source, ListUse listUse, Operation operation)
{
    if (listUse != ListUse::None)
        outlets_.tableViewListRadio.endEditing();
    gate_.perform(source, [this, listUse, operation = std::move(operation)] {
        isListInUse_ = listUse == ListUse::Exclusive;
        run(operation);
    });
}

void Actions::performAtOnce(const void* source, Operation operation)
{
    if (isListInUse_)
        perform(source, ListUse::None, std::move(operation));
    else
        run(operation);
}

void Actions::run(const Operation& operation)
{
    operation(controller_);
    validateItems();
    if (observer_)
        observer_();
}

void Actions::validateItems()
{
    controller_.stationSelection.validateControls();
    controller_.editorToolbar.validateVisibleItems();
    controller_.menus.validateItems();
}

} // namespace sonavel
