#include "ui/TableView.h"

#include <algorithm>
#include <utility>

namespace sonavel {

std::size_t TableView::rowsInDataSource() const
{
    return dataSource_ == nullptr ? 0 : static_cast<std::size_t>(dataSource_->numberOfRowsInTableView(*this));
}

long TableView::numberOfRows() const
{
    return static_cast<long>(std::min(state().numberOfRows, rowsInDataSource()));
}

IndexSet TableView::selectedRowIndexes() const
{
    return state().selectedRowIndexes.below(rowsInDataSource());
}

long TableView::selectedRow() const
{
    const long row = state().selectedRow;
    if (row < numberOfRows())
        return row;
    for (auto batch = batches_.rbegin(); batch != batches_.rend(); ++batch) {
        const IndexSet present = batch->below(rowsInDataSource());
        if (!present.isEmpty())
            return static_cast<long>(present.last());
    }
    return -1;
}

Text TableView::textOfCell(std::string_view column, long row) const
{
    return dataSource_ == nullptr ? Text() : dataSource_->tableView(*this, column, row);
}

void TableView::setAllowsMultipleSelection(bool allows)
{
    update([&](TableViewState& state) {
        state.allowsMultipleSelection = allows;
        if (!allows && state.selectedRow >= 0)
            select(state, {static_cast<std::size_t>(state.selectedRow)}, state.selectedRow);
    });
}

void TableView::reloadData()
{
    update([&](TableViewState& state) {
        ++state.reloads;
        state.numberOfRows = rowsInDataSource();
        select(state, state.selectedRowIndexes, state.selectedRow);
    });
}

void TableView::scrollRowToVisible(long row)
{
    update([&](TableViewState& state) {
        ++state.scrollRequests;
        state.rowToShow = row;
    });
}

void TableView::selectRowIndexes(const IndexSet& rows, Extending byExtendingSelection)
{
    update([&](TableViewState& state) {
        IndexSet selected = rows;
        if (byExtendingSelection == Extending::Yes)
            for (const IndexRange& range : state.selectedRowIndexes.ranges())
                selected.insert(range);
        select(state, selected, rows.isEmpty() ? state.selectedRow : static_cast<long>(rows.last()));
    });
}

void TableView::selectedByUser(const IndexSet& rows, long latest)
{
    if (store([&](TableViewState& state) { select(state, rows, latest); }))
        action.send();
}

/// Keeps the batches in step, so that the row selected before the last one is known when the last one no longer is.
void TableView::select(TableViewState& state, IndexSet rows, long latest)
{
    rows = rows.below(state.numberOfRows);
    const IndexSet added = rows.without(state.selectedRowIndexes);
    for (IndexSet& batch : batches_)
        batch = batch.intersectedWith(rows);
    batches_.push_back(added);
    std::erase_if(batches_, [](const IndexSet& batch) { return batch.isEmpty(); });

    state.selectedRowIndexes = rows;
    const bool isSelected = latest >= 0 && rows.contains(static_cast<std::size_t>(latest));
    if (isSelected)
        state.selectedRow = latest;
    else
        state.selectedRow = batches_.empty() ? -1 : static_cast<long>(batches_.back().last());
}

} // namespace sonavel
