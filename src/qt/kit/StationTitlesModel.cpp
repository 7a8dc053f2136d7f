#include "qt/kit/StationTitlesModel.h"

#include "qt/kit/TextConversion.h"

namespace sonavel {

void StationTitlesModel::setTitles(const ItemTitles& titles)
{
    if (titles == titles_)
        return;
    beginResetModel();
    titles_ = titles;
    endResetModel();
}

int StationTitlesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !titles_ ? 0 : static_cast<int>(titles_->size());
}

QVariant StationTitlesModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return onOneLine(toQString(titles_->at(static_cast<std::size_t>(index.row()))));
}

} // namespace sonavel
