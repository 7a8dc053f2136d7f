#include "app/Actions.h"

#include "app/Gate.h"
#include "app/WinSonavelController.h"
#include "ui/Outlets.h"

namespace sonavel {

using Controller = WinSonavelController;

Actions::Actions(WinSonavelController& controller, Outlets& outlets, Gate& gate)
    : controller_(controller)
    , outlets_(outlets)
    , gate_(gate)
{
    wireMainWindow();
    wireEditor();
    wireItems();
}

void Actions::wireMainWindow()
{
    wire(outlets_.winSonavel.action, OpenCell::IsEnded, [](Controller& c) { c.quitApp(); });
    wire(outlets_.popupbuttonRadioList.action, OpenCell::Stays,
        [](Controller& c) { c.stationSelection.popupRadioList(); });
    wire(outlets_.buttonPlayPause.action, OpenCell::Stays, [](Controller& c) { c.player.buttonPlayPause(); });
    wire(outlets_.buttonStop.action, OpenCell::Stays, [](Controller& c) { c.player.buttonStop(); });
    wire(outlets_.buttonMute.action, OpenCell::Stays, [](Controller& c) { c.player.buttonMute(); });
    wire(outlets_.sliderVolume.action, OpenCell::Stays, [](Controller& c) { c.player.sliderVolume(); });
    wire(outlets_.buttonEditRadioList.action, OpenCell::Stays, [](Controller& c) { c.editorWindow.buttonEditradio(); });
}

void Actions::wireEditor()
{
    TableView& table = outlets_.tableViewListRadio;
    wire(outlets_.winWebRadioListEdit.action, OpenCell::IsEnded, [](Controller& c) { c.editorWindow.close(); });
    wire(table.action, OpenCell::Stays, [](Controller&) {});
    wire(table.editAction, OpenCell::Stays, [&table](Controller&) { table.passEditOn(); });
    wire(table.doubleAction, OpenCell::IsEnded, [](Controller& c) { c.editorTable.myDoubleClickAction(); });

    wire(
        outlets_.textFieldRadioName.action, OpenCell::Stays, [](Controller& c) { c.editSheet.controlTextDidChange(); });
    wire(
        outlets_.textFieldRadioLink.action, OpenCell::Stays, [](Controller& c) { c.editSheet.controlTextDidChange(); });
    wire(outlets_.buttonAction.action, OpenCell::Stays, [](Controller& c) { c.editSheet.buttonAction(); });
    wire(outlets_.buttonCancel.action, OpenCell::Stays, [](Controller& c) { c.editSheet.buttonCancel(); });
    wire(outlets_.winEditData.action, OpenCell::Stays, [](Controller& c) { c.editSheet.buttonCancel(); });
}

void Actions::wireItems()
{
    for (ToolbarItem* item :
        {&outlets_.radioAdd, &outlets_.radioEdit, &outlets_.radioRemove, &outlets_.radioImport, &outlets_.radioExport})
        wire(item->action, OpenCell::IsEnded, [item](Controller& c) { c.editorToolbar.toolbar(*item); });
    for (MenuItem* item : controller_.menus.items())
        wire(item->action, OpenCell::IsEnded, [item](Controller& c) { c.menus.menuView(*item); });
}

void Actions::wire(Action& action, OpenCell openCell, std::function<void(Controller&)> operation)
{
    action.set([this, &action, openCell, operation = std::move(operation)] {
        if (openCell == OpenCell::IsEnded)
            outlets_.tableViewListRadio.endEditing();
        perform(&action, operation);
    });
}

void Actions::perform(const void* source, std::function<void(Controller&)> operation)
{
    gate_.perform(source, [this, operation = std::move(operation)] {
        operation(controller_);
        validateItems();
        if (observer_)
            observer_();
    });
}

void Actions::validateItems()
{
    controller_.editorToolbar.validateVisibleItems();
    controller_.menus.validateItems();
}

} // namespace sonavel
