// The sheet in which one station is added or changed.
#pragma once

#include "base/NonCopyable.h"
#include "model/KVStationWebRadio.h"

#include <cstdint>

namespace sonavel {

class ListWriter;
class LocalizedStrings;
class StationList;
class TableView;
class TextField;
struct EditSheetControls;
struct PreferenceFields;

/// Whether it adds or changes depends on the title of its confirm button alone. Both fields are empty whenever it is
/// closed.
class EditSheet : private NonCopyable {
public:
    EditSheet(const StationList& stationList, ListWriter& listWriter, const PreferenceFields& preferences,
        const LocalizedStrings& localizedStrings, EditSheetControls& controls, TableView& table)
        : stationList_(stationList)
        , listWriter_(listWriter)
        , preferences_(preferences)
        , localizedStrings_(localizedStrings)
        , controls_(controls)
        , table_(table)
    {
    }

    /// Opens the sheet for a new station.
    void radioAddToList();
    /// Opens the sheet for the station of the table's selected row; does nothing without one.
    void radioEditToList();

    /// Confirms: adds or changes, sorts the list, shows it, selects its last row, stores it and closes the sheet. A new
    /// station needs a name of 2 or an address of 10 UTF-16 code units; with neither nothing is added, silently.
    void buttonAction();
    /// Closes the sheet and changes nothing.
    void buttonCancel() { winEditDataCloseAndResetField(); }

    /// Selects the list's last row in the table and scrolls to it.
    void selectLastRow();
    /// Empties both fields and closes the sheet.
    void winEditDataCloseAndResetField();

    /// Filters both fields, whichever of them changed.
    void controlTextDidChange();
    /// Puts what the filter leaves of the field's text back into it. The limit is in UTF-16 code units.
    static void filteredInputToField(TextField& field, std::int32_t limitByteANumber);

private:
    void open();
    void addStation(StationRecords& stations) const;
    void changeSelectedStation(StationRecords& stations) const;

    const StationList& stationList_;
    ListWriter& listWriter_;
    const PreferenceFields& preferences_;
    const LocalizedStrings& localizedStrings_;
    EditSheetControls& controls_;
    TableView& table_;
};

} // namespace sonavel
