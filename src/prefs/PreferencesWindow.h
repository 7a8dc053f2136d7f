// The window of the preferences, a sheet of the main window.
#pragma once

#include "base/NonCopyable.h"

namespace sonavel {

class StationList;
struct PreferenceFields;
struct PreferencesControls;

/// Its actions change the fields alone; they are stored at the next store of the preferences.
class PreferencesWindow : private NonCopyable {
public:
    PreferencesWindow(PreferenceFields& preferences, const StationList& stationList, PreferencesControls& controls)
        : preferences_(preferences)
        , stationList_(stationList)
        , controls_(controls)
    {
    }

    /// Opens the sheet; does nothing while it is open.
    void showPreferences();
    void winPreferenceClose();

    /// Inverts whether the default station plays at the start.
    void setAutoPlayAtStart();
    /// Inverts whether choosing a station plays it.
    void setAutoPlay();
    /// Takes the station that is selected, by its name, for the default one. The placeholder's title is kept like a
    /// name, and selects no station at the next start.
    void setRadioDefault();
    /// Takes the slider's value for the volume at the start; what is heard now stays.
    void changeVolumeDefault();

    /// Whether a default station can be chosen, that is, whether there are stations.
    [[nodiscard]] bool setAutoEnablePopupDefaultButtonListRadio() const;

private:
    PreferenceFields& preferences_;
    const StationList& stationList_;
    PreferencesControls& controls_;
};

} // namespace sonavel
