// Binds the program's table to the one of the station list window.
#pragma once

#include "qt/windows/stationlist/StationTable.h"
#include "qt/windows/stationlist/StationTableModel.h"

#include <QItemSelection>

namespace sonavel {

/// Renders rows, selection and scroll requests, and reports what the user selects, opens and edits; all of it by
/// ranges, never row by row. Lives as long as the widget; the table must live longer.
class TableBinder : public QObject {
public:
    TableBinder(TableView& table, StationTable& widget);
    ~TableBinder() override;

private:
    void render(const TableViewState& state);
    void renderSelection(const TableViewState& state);
    void report(const QItemSelection& selected);

    TableView& table_;
    StationTable& widget_;
    StationTableModel model_;
    bool isRendering_ = false;
    unsigned reloadsSeen_ = 0;
    unsigned scrollRequestsSeen_ = 0;
    unsigned endsOfEditingSeen_ = 0;
};

} // namespace sonavel
