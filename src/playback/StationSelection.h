// The choice of a station: the two pop-ups of stations, and stepping to the neighbours.
#pragma once

#include "base/NonCopyable.h"

namespace sonavel {

class LocalizedStrings;
class Player;
class PopUpButton;
class StationList;
struct MainControls;
struct PreferenceFields;

/// Item 0 of both pop-ups is a placeholder, item i shows the station at position i − 1 of the list. No selected item,
/// or one beyond the present list, counts as the placeholder.
class StationSelection : private NonCopyable {
public:
    StationSelection(const StationList& stationList, const PreferenceFields& preferences, Player& player,
        const LocalizedStrings& localizedStrings, MainControls& controls, PopUpButton& popupDefaultButtonListRadio);

    /// Fills both pop-ups from the list and selects the placeholder; they, the volume slider and the Mute button are
    /// enabled when there are stations. What is playing goes on.
    void updatePopupListRadioWithListStation();

    /// Makes the selected station the chosen one and plays it, or stops the player where choosing does not play. The
    /// placeholder always stops it.
    void popupRadioList();

    /// Selects the previous or the next station, from either end to the other, and goes on as `popupRadioList`. From
    /// the placeholder that is the last or the first one; without stations the placeholder stays.
    void changeStation(bool previous);

    /// Selects the station that is the default, if there is one, makes it the chosen one and plays it when the
    /// preferences say so.
    void selectDefaultStation();

    /// Disables what would act on a station that is gone while its item is still shown: Play/Pause of a stopped player,
    /// and the choice of a default station when there is none.
    void validateControls();

private:
    void choose(int item);
    [[nodiscard]] int selectedItem() const;

    const StationList& stationList_;
    const PreferenceFields& preferences_;
    Player& player_;
    const LocalizedStrings& localizedStrings_;
    MainControls& controls_;
    PopUpButton& popupDefaultButtonListRadio_;
};

} // namespace sonavel
