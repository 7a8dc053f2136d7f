#include "qt/windows/stationlist/StationTable.h"

#include "qt/windows/stationlist/StationCellDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

namespace sonavel {

namespace {

bool isArrow(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down;
}

bool goesToARow(int key)
{
    return isArrow(key) || key == Qt::Key_Home || key == Qt::Key_End || key == Qt::Key_PageUp
        || key == Qt::Key_PageDown;
}

} // namespace

StationTable::StationTable(QWidget* parent)
    : QTableView(parent)
    , cells_(new StationCellDelegate(this))
{
    setItemDelegate(cells_);
    setSelectionBehavior(SelectRows);
    setEditTriggers(EditKeyPressed | SelectedClicked);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideRight);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    updateProportions();
}

void StationTable::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    if (model != nullptr)
        horizontalHeader()->setSectionResizeMode(model->columnCount() - 1, QHeaderView::Stretch);
}

void StationTable::updateProportions()
{
    const int line = fontMetrics().height();
    verticalHeader()->setDefaultSectionSize(line * 3 / 2);
    horizontalHeader()->setMinimumSectionSize(line * 4);
    horizontalHeader()->setFixedHeight(line * 7 / 4);
}

void StationTable::endEditing()
{
    if (QWidget* field = cells_->openField()) {
        commitData(field);
        closeEditor(field, QAbstractItemDelegate::NoHint);
    }
}

void StationTable::showRow(int row, ScrollHint hint)
{
    executeDelayedItemsLayout();
    scrollTo(model()->index(row, 0), hint);
}

void StationTable::selectAndShow(int row)
{
    const QModelIndex index = model()->index(row, qMax(0, currentIndex().column()));
    if (!viewport()->rect().contains(visualRect(index)))
        showRow(row, PositionAtCenter);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

/// Return in an open cell reaches the table too, and so does Escape: neither is meant for it. Where no row is selected
/// an arrow selects the one that has the keyboard, instead of going past it. A key that finds the keyboard where it
/// goes selects that row alone all the same.
void StationTable::keyPressEvent(QKeyEvent* event)
{
    if (cells_->openField() != nullptr)
        return;
    const QModelIndex before = currentIndex();
    const bool isPlainMove = before.isValid() && event->modifiers() == Qt::NoModifier && goesToARow(event->key());
    const bool staysForNow = isPlainMove && isArrow(event->key()) && !selectionModel()->hasSelection();
    if (!staysForNow)
        QTableView::keyPressEvent(event);
    if (isPlainMove && currentIndex() == before)
        selectAndShow(before.row());
}

QModelIndex StationTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int column = qMax(0, currentIndex().column());
    switch (action) {
    case MoveHome:
        return model()->index(0, column);
    case MoveEnd:
        return model()->index(model()->rowCount() - 1, column);
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

/// A click on one of several selected rows is meant to select it alone.
bool StationTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const auto isOnlyRow = [this] {
        const QItemSelection selected = selectionModel()->selection();
        return selected.size() == 1 && selected.constFirst().height() == 1;
    };
    return (trigger != SelectedClicked || isOnlyRow()) && QTableView::edit(index, trigger, event);
}

void StationTable::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    keepColumnsInView();
}

/// Beside the first column, however wide, the last one keeps its least width.
void StationTable::keepColumnsInView()
{
    QHeaderView& columns = *horizontalHeader();
    columns.setMaximumSectionSize(
        qMax(columns.minimumSectionSize(), viewport()->width() - columns.minimumSectionSize()));
}

void StationTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateProportions();
}

void StationTable::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (model() == nullptr || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, qtTrId("LIST_EMPTY"));
}

} // namespace sonavel
