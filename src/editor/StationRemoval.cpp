#include "editor/StationRemoval.h"

#include "editor/EditorWindow.h"
#include "model/StationList.h"
#include "platform/LocalizedStrings.h"
#include "platform/Questions.h"
#include "playback/Player.h"
#include "playback/StationSelection.h"
#include "storage/StationDatabase.h"
#include "ui/Controls.h"

#include <algorithm>

namespace sonavel {

namespace {

/// In one pass, however many: what stays moves up range by range.
void removeAtIndexes(StationRecords& stations, const IndexSet& indexes)
{
    auto kept = stations.begin();
    std::size_t next = 0;
    const auto keepUpTo = [&](std::size_t end) {
        const auto from = stations.begin() + static_cast<std::ptrdiff_t>(next);
        const auto to = stations.begin() + static_cast<std::ptrdiff_t>(end);
        kept = kept == from ? to : std::move(from, to, kept);
    };
    for (const IndexRange& range : indexes.ranges()) {
        keepUpTo(range.first);
        next = range.end;
    }
    keepUpTo(stations.size());
    stations.erase(kept, stations.end());
}

} // namespace

StationRemoval::StationRemoval(StationList& stationList, StationDatabase& stationDatabase,
    StationSelection& stationSelection, Player& player, EditorWindow& editorWindow, Alerts& alerts,
    const LocalizedStrings& localizedStrings, TableView& table, const PopUpButton& popupbuttonRadioList)
    : stationList_(stationList)
    , stationDatabase_(stationDatabase)
    , stationSelection_(stationSelection)
    , player_(player)
    , editorWindow_(editorWindow)
    , alerts_(alerts)
    , localizedStrings_(localizedStrings)
    , table_(table)
    , popupbuttonRadioList_(popupbuttonRadioList)
{
}

void StationRemoval::radioRemoveToList()
{
    if (table_.numberOfSelectedRows() > 0) {
        const bool isChosen = isSelectedStationChosen();
        if (isAnsweredYes(alerts_, localizedStrings_, question(isChosen)))
            removeSelected(isChosen);
    }
    editorWindow_.updateTitleWebRadioListEdit();
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
    removeAtIndexes(*stationList_.listRadio, rows);
    table_.reloadData();
    stationSelection_.updatePopupListRadioWithListStation();
    stationDatabase_.fileRadioDBupdate();
}

} // namespace sonavel
