// The items of a pop-up as Qt's lists read them.
#pragma once

#include "ui/PopUpButton.h"

#include <QAbstractListModel>

namespace sonavel {

/// Shows the shared titles of a pop-up without copying them; each is converted when it is drawn.
class StationTitlesModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    /// Replaces all rows at once; the very same titles again change nothing.
    void setTitles(const ItemTitles& titles);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    ItemTitles titles_;
};

} // namespace sonavel
