#include "qt/binders/Binder.h"
#include "qt/binders/Binders.h"
#include "qt/windows/stationlist/StationTable.h"
#include "qt/windows/stationlist/StationTableModel.h"

#include <QItemSelection>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace sonavel {

namespace {

IndexSet rowsOf(const QItemSelection& selection)
{
    std::vector<IndexRange> ranges;
    ranges.reserve(static_cast<std::size_t>(selection.size()));
    for (const QItemSelectionRange& range : selection)
        ranges.push_back({static_cast<std::size_t>(range.top()), static_cast<std::size_t>(range.bottom()) + 1});
    std::sort(ranges.begin(), ranges.end(), [](const auto& one, const auto& other) { return one.first < other.first; });
    IndexSet rows;
    for (const IndexRange& range : ranges)
        rows.insert(range);
    return rows;
}

QItemSelection selectionOf(const IndexSet& rows, const QAbstractItemModel& model)
{
    QItemSelection selection;
    const int lastColumn = model.columnCount() - 1;
    for (const IndexRange& range : rows.ranges())
        selection.append(QItemSelectionRange(
            model.index(static_cast<int>(range.first), 0), model.index(static_cast<int>(range.end) - 1, lastColumn)));
    return selection;
}

class TableBinder : public Binder<TableView, StationTable> {
public:
    TableBinder(TableView& table, StationTable& widget);

private:
    void render(const TableViewState& state);
    void renderSelection(const TableViewState& state);
    void report(const QItemSelection& selected);

    StationTableModel model_;
    bool isRendering_ = false;
    unsigned reloadsSeen_ = 0;
    unsigned scrollRequestsSeen_ = 0;
    unsigned endsOfEditingSeen_ = 0;
};

TableBinder::TableBinder(TableView& table, StationTable& widget)
    : Binder(table, widget)
    , model_(table)
{
    widget.setModel(&model_);
    TableViewState initialState;
    initialState.allowsMultipleSelection = widget.selectionMode() == QAbstractItemView::ExtendedSelection;
    control_.connect(initialState, [this](const TableViewState& state) { render(state); });
    connect(widget.selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this](const QItemSelection& selected) { report(selected); });
    connect(&widget, &QAbstractItemView::doubleClicked, this, [this] { control_.doubleClickedByUser(); });
}

void TableBinder::render(const TableViewState& state)
{
    const bool isReloaded = std::exchange(reloadsSeen_, state.reloads) != state.reloads;
    const bool isEditEnded = std::exchange(endsOfEditingSeen_, state.endsOfEditing) != state.endsOfEditing;
    if (isReloaded || isEditEnded)
        widget_.endEditing();
    const QScopedValueRollback<bool> rendering(isRendering_, true);
    widget_.setSelectionMode(
        state.allowsMultipleSelection ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    if (isReloaded)
        model_.rowsReloaded();
    if (rowsOf(widget_.selectionModel()->selection()) != state.selectedRowIndexes)
        renderSelection(state);
    if (std::exchange(scrollRequestsSeen_, state.scrollRequests) != state.scrollRequests)
        widget_.showRow(static_cast<int>(state.rowToShow));
}

void TableBinder::renderSelection(const TableViewState& state)
{
    QItemSelectionModel& selection = *widget_.selectionModel();
    selection.select(selectionOf(state.selectedRowIndexes, model_), QItemSelectionModel::ClearAndSelect);
    if (state.selectedRow >= 0)
        selection.setCurrentIndex(model_.index(static_cast<int>(state.selectedRow), 0), QItemSelectionModel::NoUpdate);
}

/// Qt moves its current row before the selection for the mouse and after it for most keys; the row that is new to the
/// selection is the same in either case.
void TableBinder::report(const QItemSelection& selected)
{
    if (isRendering_)
        return;
    const QModelIndex current = widget_.selectionModel()->currentIndex();
    const bool isCurrentNew = selected.isEmpty() || selected.contains(current);
    const int latest = isCurrentNew ? current.row() : selected.constLast().bottom();
    control_.selectedByUser(rowsOf(widget_.selectionModel()->selection()), latest);
}

} // namespace

void bind(TableView& table, StationTable& widget)
{
    new TableBinder(table, widget);
}

} // namespace sonavel
