#include "qt/windows/stationlist/StationTableModel.h"

#include "model/KVStationWebRadio.h"
#include "qt/kit/TextConversion.h"

#include <array>

namespace sonavel {

namespace {

constexpr std::array columnIdentifiers{radioKey, linkKey};
/// A text that is longer than any window is wide is drawn cut, since laying out a very long one takes seconds.
constexpr std::size_t maxBytesDrawn = 2'000;

QString drawn(const Text& text)
{
    const Text beginning = text.slice(utf8Prefix(text.view(), maxBytesDrawn));
    const QString line = onOneLine(toQString(beginning));
    return beginning.isSameObject(text) ? line : line + u'…';
}

} // namespace

void StationTableModel::rowsReloaded()
{
    beginResetModel();
    rows_ = static_cast<int>(table_.numberOfRows());
    endResetModel();
}

QString StationTableModel::textAt(int row, Column column) const
{
    return row < table_.numberOfRows() ? toQString(table_.textOfCell(columnIdentifiers.at(column), row)) : QString();
}

int StationTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : rows_;
}

int StationTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columnIdentifiers.size());
}

QVariant StationTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto column = static_cast<Column>(index.column());
    if (role == Qt::DisplayRole)
        return drawn(table_.textOfCell(columnIdentifiers.at(column), index.row()));
    if (role == Qt::EditRole)
        return textAt(index.row(), column);
    return {};
}

QVariant StationTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return section == Name ? qtTrId("LABEL_NAME") : qtTrId("LABEL_ADDRESS");
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignLeading | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags StationTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.isValid() ? usual | Qt::ItemIsEditable : usual;
}

bool StationTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    const auto column = static_cast<Column>(index.column());
    const QString text = value.toString();
    if (text == textAt(index.row(), column))
        return false;
    table_.editedByUser({toText(text), columnIdentifiers.at(column), index.row()});
    emit dataChanged(index, index);
    return true;
}

} // namespace sonavel
