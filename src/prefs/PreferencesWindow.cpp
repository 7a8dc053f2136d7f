#include "prefs/PreferencesWindow.h"

#include "model/StationList.h"
#include "prefs/PreferenceFields.h"
#include "ui/Outlets.h"

namespace sonavel {

PreferencesWindow::PreferencesWindow(PreferenceFields& preferences, const StationList& stationList, Outlets& outlets)
    : preferences_(preferences)
    , stationList_(stationList)
    , outlets_(outlets)
{
}

void PreferencesWindow::showPreferences()
{
    outlets_.winPreferences.beginSheet();
}

void PreferencesWindow::winPreferenceClose()
{
    outlets_.winPreferences.endSheet();
    outlets_.winPreferences.close();
}

void PreferencesWindow::setAutoPlayAtStart()
{
    preferences_.PREF_IS_AUTOPLAY_OPEN_APP = !preferences_.PREF_IS_AUTOPLAY_OPEN_APP;
    outlets_.checkBoxDefaultAutoPlayAtStartApp.setState(preferences_.PREF_IS_AUTOPLAY_OPEN_APP);
    outlets_.popupDefaultButtonListRadio.setEnabled(setAutoEnablePopupDefaultButtonListRadio());
}

void PreferencesWindow::setAutoPlay()
{
    preferences_.PREF_IS_AUTOPLAY = !preferences_.PREF_IS_AUTOPLAY;
    outlets_.checkBoxDefaultAutoPlay.setState(preferences_.PREF_IS_AUTOPLAY);
}

void PreferencesWindow::setRadioDefault()
{
    const Text title = outlets_.popupDefaultButtonListRadio.titleOfSelectedItem();
    if (!title.isAbsent())
        preferences_.PREF_DEFAULT_STATION = title;
}

void PreferencesWindow::changeVolumeDefault()
{
    preferences_.PREF_DEFAULT_VOLUME = outlets_.sliderDefaultVolume.floatValue();
}

bool PreferencesWindow::setAutoEnablePopupDefaultButtonListRadio() const
{
    return stationList_.numberOfStations() > 0;
}

} // namespace sonavel
