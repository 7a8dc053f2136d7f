#include "storage/ListWriter.h"

#include "model/StationList.h"
#include "storage/StationDatabase.h"

#include <map>
#include <vector>

namespace sonavel {

namespace {

/// In their order.
const std::vector<ListStep>& stepsAfter(ListOperation operation)
{
    using enum ListStep;
    using enum ListOperation;
    static const std::map<ListOperation, std::vector<ListStep>> steps{
        {SheetConfirmed, {ReloadTable, RefillPopUps, SelectLastRow, Save, CloseSheet, UpdateTitle}},
        {CellEdited, {RefillPopUps, Save}},
        {StationsRemoved, {ReloadTable, RefillPopUps, Save, UpdateTitle}},
        {RemovalDeclined, {UpdateTitle}},
        {ImportBegun, {ReloadTable}},
        {ImportShown, {RefillPopUps, ReloadTable}},
        {ImportEnded, {Save}},
        {Refreshed, {Save}},
        {RefreshShown, {RefillPopUps, ReloadTable, UpdateTitle}},
        {LegacyFileRead, {Save}},
    };
    return steps.at(operation);
}

} // namespace

void ListWriter::load(StationRecords records)
{
    stationList_.setListRadio(std::move(records));
    stationList_.sortingRadioWithKey(radioKey);
}

void ListWriter::apply(const ListChange& change)
{
    stationList_.apply(change);
    ++changes_;
}

void ListWriter::follow(ListOperation operation)
{
    for (const ListStep step : stepsAfter(operation)) {
        if (step == ListStep::Save)
            stationDatabase_.fileRadioDBupdate();
        else if (observer_)
            observer_(step);
    }
}

void ListWriter::perform(const ListChange& change, ListOperation operation)
{
    apply(change);
    follow(operation);
}

} // namespace sonavel
