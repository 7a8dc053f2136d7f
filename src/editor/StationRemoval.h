// The removal of stations, after a question.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

namespace sonavel {

class Alerts;
class ListWriter;
class LocalizedStrings;
class Player;
class PopUpButton;
class StationList;
class TableView;

class StationRemoval : private NonCopyable {
public:
    StationRemoval(const StationList& stationList, ListWriter& listWriter, Player& player, Alerts& alerts,
        const LocalizedStrings& localizedStrings, TableView& table, const PopUpButton& popupbuttonRadioList)
        : stationList_(stationList)
        , listWriter_(listWriter)
        , player_(player)
        , alerts_(alerts)
        , localizedStrings_(localizedStrings)
        , table_(table)
        , popupbuttonRadioList_(popupbuttonRadioList)
    {
    }

    /// Asks whether to remove the stations of the table's selected rows, removes what is selected then, and stores. A
    /// single station whose name is the chosen one's is stopped first; among several none is. The order of the others
    /// stays. Asks nothing when no row is selected.
    void radioRemoveToList();

private:
    [[nodiscard]] bool isSelectedStationChosen() const;
    [[nodiscard]] Text question(bool isChosen) const;
    void removeSelected(bool isChosen);

    const StationList& stationList_;
    ListWriter& listWriter_;
    Player& player_;
    Alerts& alerts_;
    const LocalizedStrings& localizedStrings_;
    TableView& table_;
    const PopUpButton& popupbuttonRadioList_;
};

} // namespace sonavel
