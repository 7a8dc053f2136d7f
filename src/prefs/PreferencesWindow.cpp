#include "prefs/PreferencesWindow.h"

#include "model/StationList.h"

namespace sonavel {

PreferencesWindow::PreferencesWindow(const StationList& stationList)
    : stationList_(stationList)
{
}

bool PreferencesWindow::setAutoEnablePopupDefaultButtonListRadio() const
{
    return stationList_.numberOfStations() > 0;
}

} // namespace sonavel
