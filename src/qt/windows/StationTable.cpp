#include "qt/windows/StationTable.h"

#include "qt/windows/StationCellDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

namespace sonavel {

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
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    takeProportions();
}

void StationTable::takeProportions()
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
/// an arrow selects the one that has the keyboard, instead of going past it.
void StationTable::keyPressEvent(QKeyEvent* event)
{
    if (cells_->openField() != nullptr)
        return;
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (isArrow && currentIndex().isValid() && !selectionModel()->hasSelection())
        selectAndShow(currentIndex().row());
    else
        QTableView::keyPressEvent(event);
}

void StationTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        takeProportions();
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
