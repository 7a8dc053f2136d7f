// The rows of the station list as Qt's table reads them.
#pragma once

#include "ui/TableView.h"

#include <QAbstractTableModel>

namespace sonavel {

/// Has as many rows as the program's table and reads each cell from there when it is drawn; keeps nothing.
class StationTableModel : public QAbstractTableModel {
public:
    enum Column { Name, Address };

    /// The table has to outlive the model.
    explicit StationTableModel(TableView& table)
        : table_(table)
    {
    }

    /// The table was reloaded; all that was known of the rows is void.
    void rowsReloaded();

    /// What the cell holds, whole; a null string beyond the last row.
    [[nodiscard]] QString textAt(int row, Column column) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The user's edit of a cell. A text that the cell holds already is none.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    TableView& table_;
    int rows_ = 0; ///< as of the last reload that the views were notified of
};

} // namespace sonavel
