#include "prefs/PreferencesWindow.h"

#include "model/StationList.h"
#include "prefs/PreferenceFields.h"
#include "ui/Controls.h"

namespace sonavel {

void PreferencesWindow::showPreferences()
{
    controls_.winPreferences.beginSheet();
}

void PreferencesWindow::winPreferenceClose()
{
    controls_.winPreferences.endSheet();
    controls_.winPreferences.close();
}

void PreferencesWindow::setAutoPlayAtStart()
{
    preferences_.PREF_IS_AUTOPLAY_OPEN_APP = !preferences_.PREF_IS_AUTOPLAY_OPEN_APP;
    controls_.checkBoxDefaultAutoPlayAtStartApp.setState(preferences_.PREF_IS_AUTOPLAY_OPEN_APP);
    controls_.popupDefaultButtonListRadio.setEnabled(setAutoEnablePopupDefaultButtonListRadio());
}

void PreferencesWindow::setAutoPlay()
{
    preferences_.PREF_IS_AUTOPLAY = !preferences_.PREF_IS_AUTOPLAY;
    controls_.checkBoxDefaultAutoPlay.setState(preferences_.PREF_IS_AUTOPLAY);
}

void PreferencesWindow::setRadioDefault()
{
    const Text title = controls_.popupDefaultButtonListRadio.titleOfSelectedItem();
    if (!title.isAbsent())
        preferences_.PREF_DEFAULT_STATION = title;
}

void PreferencesWindow::changeVolumeDefault()
{
    preferences_.PREF_DEFAULT_VOLUME = controls_.sliderDefaultVolume.floatValue();
}

bool PreferencesWindow::setAutoEnablePopupDefaultButtonListRadio() const
{
    return stationList_.numberOfStations() > 0;
}

} // namespace sonavel
