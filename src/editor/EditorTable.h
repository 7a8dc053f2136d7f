// The table of stations: what its cells show, and the editing in place.
#pragma once

#include "ui/TableView.h"

namespace sonavel {

class EditSheet;
class ListWriter;
class StationList;

/// Row r shows the station at position r of the list. The columns are "radio", the name, and "link", the address; any
/// other shows the station's property of that name.
class EditorTable final : public TableViewDataSource {
public:
    EditorTable(const StationList& stationList, ListWriter& listWriter, EditSheet& editSheet, TableView& table);

    [[nodiscard]] long numberOfRowsInTableView(const TableView& tableView) const override;

    /// Absent for a row beyond the present list.
    [[nodiscard]] Text tableView(
        const TableView& tableView, std::string_view objectValueForTableColumn, long row) const override;

    /// Changes name or address, shows it in the pop-ups and stores the list. The station keeps its row. Separators of
    /// the list text are left out; a text that stays the same is no change, and nor is one for a row beyond the list.
    void tableView(
        const TableView& tableView, const Text& setObjectValue, std::string_view forTableColumn, long row) override;

    /// Opens the edit sheet for the selected row, if there is one.
    void myDoubleClickAction();

private:
    const StationList& stationList_;
    ListWriter& listWriter_;
    EditSheet& editSheet_;
    TableView& table_;
};

} // namespace sonavel
