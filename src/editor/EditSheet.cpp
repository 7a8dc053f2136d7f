#include "editor/EditSheet.h"

#include "editor/EditorWindow.h"
#include "editor/InputFilter.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "platform/LocalizedStrings.h"
#include "playback/StationSelection.h"
#include "prefs/PreferenceFields.h"
#include "storage/StationDatabase.h"
#include "ui/Controls.h"

namespace sonavel {

namespace {

// In UTF-16 code units; one of the two is enough.
constexpr std::size_t shortestName = 2;
constexpr std::size_t shortestAddress = 10;
constexpr std::int32_t longestAddress = 2048;

} // namespace

EditSheet::EditSheet(StationList& stationList, StationDatabase& stationDatabase, StationSelection& stationSelection,
    EditorWindow& editorWindow, const PreferenceFields& preferences, const LocalizedStrings& localizedStrings,
    EditSheetControls& controls, TableView& table)
    : stationList_(stationList)
    , stationDatabase_(stationDatabase)
    , stationSelection_(stationSelection)
    , editorWindow_(editorWindow)
    , preferences_(preferences)
    , localizedStrings_(localizedStrings)
    , controls_(controls)
    , table_(table)
{
}

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
    const Text mode = controls_.buttonAction.title();
    if (mode == localizedStrings_.localizedStringForKey("BUTTON_ADD"))
        addStation();
    else if (mode == localizedStrings_.localizedStringForKey("BUTTON_EDIT"))
        changeSelectedStation();

    stationList_.sortingRadioWithKey("radio");
    table_.reloadData();
    stationSelection_.updatePopupListRadioWithListStation();
    selectLastRow();
    stationDatabase_.fileRadioDBupdate();
    winEditDataCloseAndResetField();
    editorWindow_.updateTitleWebRadioListEdit();
}

void EditSheet::addStation()
{
    const Text name = controls_.textFieldRadioName.stringValue();
    const Text address = controls_.textFieldRadioLink.stringValue();
    if (name.length() < shortestName && address.length() < shortestAddress)
        return;
    stationList_.listRadio->push_back(std::make_shared<KVStationWebRadio>(
        stationList_.numberOfStations() + 1, withoutSeparators(name), withoutSeparators(address)));
}

void EditSheet::changeSelectedStation()
{
    const auto station = stationList_.stationAtIndex(table_.selectedRow());
    if (station == nullptr)
        return;
    station->setRadio(withoutSeparators(controls_.textFieldRadioName.stringValue()));
    station->setLink(withoutSeparators(controls_.textFieldRadioLink.stringValue()));
}

void EditSheet::selectLastRow()
{
    if (stationList_.numberOfStations() == 0)
        return;
    const std::size_t last = stationList_.numberOfStations() - 1;
    table_.scrollRowToVisible(static_cast<long>(last));
    table_.selectRowIndexes({last}, TableView::Extending::No);
}

void EditSheet::buttonCancel()
{
    winEditDataCloseAndResetField();
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
    filteredInputToField(controls_.textFieldRadioLink, longestAddress);
}

void EditSheet::filteredInputToField(TextField& field, std::int32_t limitByteANumber)
{
    field.setStringValue(filteredInput(field.stringValue(), limitByteANumber));
}

} // namespace sonavel
