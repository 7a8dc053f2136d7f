// The table of the station list window.
#pragma once

#include <QTableView>

namespace sonavel {

class StationCellDelegate;

/// Selects whole rows; Home and End go to the first and the last one. A cell is opened by F2 or a slow second click
/// on the only selected row, never by a double click. Draws a hint in place of rows while there are none. Shows 100,000
/// rows as quickly as ten.
class StationTable : public QTableView {
public:
    explicit StationTable(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

    /// Ends the editing of a cell as a loss of the focus does: what was typed counts. Does nothing when none is open.
    void endEditing();

    /// Brings a row into view that may be as new as the last reload.
    void showRow(int row, ScrollHint hint = EnsureVisible);
    /// Selects the row alone, as the user does, and shows it in the middle unless it is in view.
    void selectAndShow(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void updateProportions();
    void keepColumnsInView();

    StationCellDelegate* cells_;
};

} // namespace sonavel
