#include "editor/EditSheet.h"

#include "editor/InputFilter.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "platform/LocalizedStrings.h"
#include "prefs/PreferenceFields.h"
#include "storage/ListWriter.h"
#include "ui/Controls.h"

namespace sonavel {

namespace {

// In UTF-16 code units; one of the two is enough.
constexpr std::size_t minNameLength = 2;
constexpr std::size_t minAddressLength = 10;
constexpr std::int32_t maxAddressLength = 2048;

} // namespace

void EditSheet::radioAddToList()
{
    controls_.buttonAction.setTitle(localizedStrings_.localizedStringForKey("BUTTON_ADD"));
    open();
}

void EditSheet::radioEditToList()
{
    const auto station = stationList_.stationAtIndex(table_.selectedRow());
    if (station == nullptr)
        return;
    controls_.buttonAction.setTitle(localizedStrings_.localizedStringForKey("BUTTON_EDIT"));
    controls_.textFieldRadioName.setStringValue(station->radio());
    controls_.textFieldRadioLink.setStringValue(station->link());
    open();
}

void EditSheet::open()
{
    controls_.winEditData.makeFirstResponder();
    controls_.winEditData.beginSheet();
}

void EditSheet::buttonAction()
{
    const StationRecords& present = *stationList_.listRadio();
    StationRecords stations = present;
    const Text mode = controls_.buttonAction.title();
    if (mode == localizedStrings_.localizedStringForKey("BUTTON_ADD"))
        addStation(stations);
    else if (mode == localizedStrings_.localizedStringForKey("BUTTON_EDIT"))
        changeSelectedStation(stations);
    sortRecords(stations, radioKey);
    listWriter_.perform(ListChange::replaced(present, stations), ListOperation::SheetConfirmed);
}

void EditSheet::addStation(StationRecords& stations) const
{
    const Text name = controls_.textFieldRadioName.stringValue();
    const Text address = controls_.textFieldRadioLink.stringValue();
    if (name.length() < minNameLength && address.length() < minAddressLength)
        return;
    stations.push_back(
        std::make_shared<KVStationWebRadio>(stations.size() + 1, withoutSeparators(name), withoutSeparators(address)));
}

void EditSheet::changeSelectedStation(StationRecords& stations) const
{
    const long row = table_.selectedRow();
    if (row < 0)
        return;
    StationRecord& station = stations.at(static_cast<std::size_t>(row));
    station = std::make_shared<KVStationWebRadio>(station->idRadio(),
        withoutSeparators(controls_.textFieldRadioName.stringValue()),
        withoutSeparators(controls_.textFieldRadioLink.stringValue()));
}

void EditSheet::selectLastRow()
{
    if (stationList_.numberOfStations() == 0)
        return;
    const std::size_t last = stationList_.numberOfStations() - 1;
    table_.scrollRowToVisible(static_cast<long>(last));
    table_.selectRowIndexes({last}, TableView::Extending::No);
}

void EditSheet::winEditDataCloseAndResetField()
{
    controls_.textFieldRadioName.setStringValue("");
    controls_.textFieldRadioLink.setStringValue("");
    controls_.winEditData.endSheet();
    controls_.winEditData.close();
}

void EditSheet::controlTextDidChange()
{
    filteredInputToField(
        controls_.textFieldRadioName, static_cast<std::int32_t>(preferences_.PREF_MAX_NAME_RADIO_LENGHT));
    filteredInputToField(controls_.textFieldRadioLink, maxAddressLength);
}

void EditSheet::filteredInputToField(TextField& field, std::int32_t limitByteANumber)
{
    field.setStringValue(filteredInput(field.stringValue(), limitByteANumber));
}

} // namespace sonavel
