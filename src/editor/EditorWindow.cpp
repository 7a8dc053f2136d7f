#include "editor/EditorWindow.h"

#include "base/Numbers.h"
#include "model/StationList.h"
#include "platform/LocalizedStrings.h"
#include "platform/RunLoop.h"
#include "ui/Outlets.h"

namespace sonavel {

EditorWindow::EditorWindow(
    const StationList& stationList, const LocalizedStrings& localizedStrings, RunLoop& runLoop, Outlets& outlets)
    : stationList_(stationList)
    , localizedStrings_(localizedStrings)
    , runLoop_(runLoop)
    , outlets_(outlets)
{
}

void EditorWindow::updateTitleWebRadioListEdit()
{
    const auto count = static_cast<long>(stationList_.numberOfStations());
    std::string title = localizedStrings_.localizedStringForKey("WIN_EDIT_RADIO_LIST").string();
    title.append(" (").append(decimalText(count).view()).append(")");
    outlets_.winWebRadioListEdit.setTitle(title);
}

void EditorWindow::buttonEditradio()
{
    updateTitleWebRadioListEdit();
    if (outlets_.winWebRadioListEdit.isVisible())
        runLoop_.performOnNextTurn([this] { outlets_.winWebRadioListEdit.makeKeyAndOrderFront(); });
    else
        outlets_.winWebRadioListEdit.setIsVisible(true);
}

void EditorWindow::toggleVisibility()
{
    updateTitleWebRadioListEdit();
    outlets_.winWebRadioListEdit.setIsVisible(!outlets_.winWebRadioListEdit.isVisible());
}

void EditorWindow::close()
{
    outlets_.winWebRadioListEdit.setIsVisible(false);
}

} // namespace sonavel
