#include "editor/EditorWindow.h"

#include "base/Numbers.h"
#include "model/StationList.h"
#include "platform/LocalizedStrings.h"
#include "platform/RunLoop.h"
#include "ui/Window.h"

namespace sonavel {

void EditorWindow::updateTitleWebRadioListEdit()
{
    const auto count = static_cast<long>(stationList_.numberOfStations());
    std::string title = localizedStrings_.localizedStringForKey("WIN_EDIT_RADIO_LIST").string();
    title.append(" (").append(decimalText(count).view()).append(")");
    window_.setTitle(title);
}

void EditorWindow::buttonEditradio()
{
    updateTitleWebRadioListEdit();
    if (window_.isVisible())
        runLoop_.performOnNextTurn([this] { window_.makeKeyAndOrderFront(); });
    else
        window_.setIsVisible(true);
}

void EditorWindow::toggleVisibility()
{
    updateTitleWebRadioListEdit();
    window_.setIsVisible(!window_.isVisible());
}

void EditorWindow::close()
{
    window_.setIsVisible(false);
}

} // namespace sonavel
