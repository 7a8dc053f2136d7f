#include "editor/StationRemoval.h"

#include "model/StationList.h"
#include "platform/Alerts.h"
#include "platform/LocalizedStrings.h"
#include "playback/Player.h"
#include "storage/ListWriter.h"
#include "ui/Controls.h"

namespace sonavel {

void StationRemoval::radioRemoveToList()
{
    if (table_.numberOfSelectedRows() > 0) {
        const bool isChosen = isSelectedStationChosen();
        if (isAnsweredYes(alerts_, localizedStrings_, question(isChosen)))
            return removeSelected(isChosen);
    }
    listWriter_.follow(ListOperation::RemovalDeclined);
}

/// Asked of a single station; several are removed without a look at what plays.
bool StationRemoval::isSelectedStationChosen() const
{
    const auto station = stationList_.stationAtIndex(table_.selectedRow());
    return table_.numberOfSelectedRows() < 2 && popupbuttonRadioList_.titleOfSelectedItem() == station->radio();
}

Text StationRemoval::question(bool isChosen) const
{
    const long rows = table_.numberOfSelectedRows();
    if (rows >= 2)
        return filledIn(localizedStrings_.localizedStringForKey("REMOVE_ALL_RADIO_SELECTED"), rows);
    const auto station = stationList_.stationAtIndex(table_.selectedRow());
    return filledIn(
        localizedStrings_.localizedStringForKey(isChosen ? "REMOVE_RADIO_TO_PLAY" : "REMOVE_RADIO"), station->radio());
}

void StationRemoval::removeSelected(bool isChosen)
{
    const IndexSet rows = table_.selectedRowIndexes();
    if (isChosen && rows.count() < 2)
        player_.stop();
    listWriter_.perform(ListChange::removed(*stationList_.listRadio(), rows), ListOperation::StationsRemoved);
}

} // namespace sonavel
