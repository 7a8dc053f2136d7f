#include "qt/windows/stationlist/StationCellDelegate.h"

#include "model/StreamAddress.h"
#include "qt/kit/TextConversion.h"
#include "qt/kit/WrappedText.h"
#include "qt/windows/stationlist/StationTableModel.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyle>

#include <limits>

namespace sonavel {

namespace {

QStringList textsOfRow(const QModelIndex& index)
{
    QStringList texts;
    for (int column = 0; column < index.model()->columnCount(); ++column)
        texts << index.siblingAtColumn(column).data(Qt::EditRole).toString();
    return texts;
}

} // namespace

QWidget* StationCellDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    field_ = new QLineEdit(parent);
    // The text stays where it stood in the cell.
    const QWidget* table = option.widget;
    const int frame = table->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, field_);
    const int besideText = table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, table) - frame - 1;
    field_->setTextMargins(besideText, 0, besideText, 0);
    field_->setAlignment(QStyle::visualAlignment(option.direction, option.displayAlignment));
    // The length that fields have by themselves would cut a longer name without a word.
    field_->setMaxLength(std::numeric_limits<int>::max());
    field_->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    rowWhenOpened_ = textsOfRow(index);
    return field_;
}

void StationCellDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    field_.clear();
    QStyledItemDelegate::destroyEditor(editor, index);
}

/// Once, when the cell is opened: what the user typed since is not overwritten by a later change of the data.
void StationCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* field = static_cast<QLineEdit*>(editor);
    if (field->isModified())
        return;
    field->setText(index.data(Qt::EditRole).toString());
    field->selectAll();
}

void StationCellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const auto* field = static_cast<const QLineEdit*>(editor);
    if (field->isModified() && textsOfRow(index) == rowWhenOpened_)
        model->setData(index, field->text(), Qt::EditRole);
}

bool StationCellDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const bool fits = sizeHint(option, index).width() <= option.rect.width();
    QString text = index.data(Qt::DisplayRole).toString();
    if (index.column() == StationTableModel::Address)
        text = toQString(withoutUserInformation(toText(text)));
    showPlainToolTip(*event, fits ? QString() : text, *view);
    return true;
}

/// The focus frame shows which cell of the selected row F2 opens; on any other row it has no meaning.
void StationCellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!(option->state & QStyle::State_Selected))
        option->state &= ~QStyle::State_HasFocus;
}

} // namespace sonavel
