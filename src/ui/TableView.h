// A table of rows that shows what its data source holds.
#pragma once

#include "base/IndexSet.h"
#include "base/NonCopyable.h"
#include "base/Text.h"
#include "ui/Rendered.h"

#include <cstddef>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace sonavel {

class TableView;

/// Who holds what a table shows. A row may lie beyond the data, where the table has not been reloaded since they became
/// fewer.
class TableViewDataSource : private NonCopyable {
public:
    virtual ~TableViewDataSource() = default;

    [[nodiscard]] virtual long numberOfRowsInTableView(const TableView& tableView) const = 0;

    /// What a cell shows; columns go by their identifiers.
    [[nodiscard]] virtual Text tableView(
        const TableView& tableView, std::string_view objectValueForTableColumn, long row) const = 0;

    /// The user ended the editing of a cell.
    virtual void tableView(
        const TableView& tableView, const Text& setObjectValue, std::string_view forTableColumn, long row) = 0;
};

/// What the user typed into a cell.
struct CellEdit {
    Text value;
    Text column;
    long row = -1;
};

struct TableViewState {
    /// Counts the reloads: what a toolkit keeps of the rows is void after each.
    unsigned reloads = 0;
    /// As many as the data source had at the last reload.
    std::size_t numberOfRows = 0;
    IndexSet selectedRowIndexes;
    /// The one selected last of those that are; −1 when none is.
    long selectedRow = -1;
    bool allowsMultipleSelection = false;
    /// Counts how often the program asked for a row to be scrolled to, and which.
    unsigned scrollRequests = 0;
    long rowToShow = -1;
    /// Counts how often an open cell was to be closed, with what the user typed.
    unsigned endsOfEditing = 0;

    friend bool operator==(const TableViewState&, const TableViewState&) = default;
};

/// Holds no data: rows are counted when it is reloaded, cells are read from the data source whenever they are drawn.
/// Rows that the data source has dropped stay in the state, and are shown, until the next reload; what is asked about
/// rows and their selection leaves them out.
class TableView : public Rendered<TableViewState> {
public:
    /// Borrowed; has to outlive the table's use.
    void setDataSource(TableViewDataSource* dataSource) { dataSource_ = dataSource; }

    [[nodiscard]] long numberOfRows() const;
    [[nodiscard]] long numberOfSelectedRows() const { return static_cast<long>(selectedRowIndexes().count()); }
    /// The one selected last; −1 when none is.
    [[nodiscard]] long selectedRow() const;
    [[nodiscard]] IndexSet selectedRowIndexes() const;
    /// What a cell shows now; absent without a data source.
    [[nodiscard]] Text textOfCell(std::string_view column, long row) const;

    void setAllowsMultipleSelection(bool allows);
    /// Counts the rows again and draws them anew, changed or not. Selected rows that still exist stay selected.
    void reloadData();
    void scrollRowToVisible(long row);
    enum class Extending { No, Yes };
    /// Selects rows in addition to or instead of the selected ones; those beyond the last row are left out.
    void selectRowIndexes(const IndexSet& rows, Extending byExtendingSelection);
    /// Closes a cell that is being edited, as if the user had ended it.
    void endEditing()
    {
        update([](TableViewState& state) { ++state.endsOfEditing; });
    }

    /// The user selected exactly these rows; `latest` is the one that he touched.
    void selectedByUser(const IndexSet& rows, long latest);
    void doubleClickedByUser() const { doubleAction.send(); }
    /// The user ended the editing of a cell, changed or not.
    void editedByUser(const CellEdit& edit) const
    {
        if (editAction_)
            editAction_(edit);
    }
    /// What happens when the user ended the editing of a cell.
    void setEditAction(std::function<void(const CellEdit&)> editAction) { editAction_ = std::move(editAction); }

    /// The user selected other rows.
    Action action;
    /// The user clicked a row twice.
    Action doubleAction;

private:
    void select(TableViewState& state, IndexSet rows, long latest);
    [[nodiscard]] std::size_t rowsInDataSource() const;

    TableViewDataSource* dataSource_ = nullptr;
    std::function<void(const CellEdit&)> editAction_;
    /// The selected rows as they were selected, each batch at one stroke, the latest last.
    std::vector<IndexSet> batches_;
};

} // namespace sonavel
