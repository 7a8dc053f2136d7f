#include "editor/EditorTable.h"

#include "base/Numbers.h"
#include "editor/EditSheet.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "storage/ListWriter.h"

namespace sonavel {

namespace {

Text valueForKey(const KVStationWebRadio& station, std::string_view key)
{
    if (key == radioKey)
        return station.radio();
    if (key == linkKey)
        return station.link();
    return key == "idRadio" ? decimalText(static_cast<std::int64_t>(station.idRadio())) : Text();
}

using Setter = void (KVStationWebRadio::*)(Text);

/// Null for what cannot be edited.
Setter setterForKey(std::string_view key)
{
    if (key == radioKey)
        return &KVStationWebRadio::setRadio;
    return key == linkKey ? &KVStationWebRadio::setLink : nullptr;
}

} // namespace

EditorTable::EditorTable(const StationList& stationList, ListWriter& listWriter, EditSheet& editSheet, TableView& table)
    : stationList_(stationList)
    , listWriter_(listWriter)
    , editSheet_(editSheet)
    , table_(table)
{
    table.setDataSource(this);
}

long EditorTable::numberOfRowsInTableView(const TableView&) const
{
    return static_cast<long>(stationList_.numberOfStations());
}

Text EditorTable::tableView(const TableView&, std::string_view objectValueForTableColumn, long row) const
{
    const auto station = stationList_.stationAtIndex(row);
    return station == nullptr ? Text() : valueForKey(*station, objectValueForTableColumn);
}

void EditorTable::tableView(
    const TableView& tableView, const Text& setObjectValue, std::string_view forTableColumn, long row)
{
    const auto station = stationList_.stationAtIndex(row);
    const Setter setValue = setterForKey(forTableColumn);
    const Text value = withoutSeparators(setObjectValue);
    if (station == nullptr || setValue == nullptr || value == this->tableView(tableView, forTableColumn, row))
        return;
    const auto changed = std::make_shared<KVStationWebRadio>(*station);
    ((*changed).*setValue)(value);
    listWriter_.perform(ListChange::changed(*stationList_.listRadio(), static_cast<std::size_t>(row), changed),
        ListOperation::CellEdited);
}

void EditorTable::myDoubleClickAction()
{
    if (table_.selectedRow() >= 0)
        editSheet_.radioEditToList();
}

} // namespace sonavel
