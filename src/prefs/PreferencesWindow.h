// The window of the preferences.
#pragma once

namespace sonavel {

class StationList;

class PreferencesWindow {
public:
    explicit PreferencesWindow(const StationList& stationList);

    /// Whether a default station can be chosen, that is, whether there are stations.
    [[nodiscard]] bool setAutoEnablePopupDefaultButtonListRadio() const;

private:
    const StationList& stationList_;
};

} // namespace sonavel
