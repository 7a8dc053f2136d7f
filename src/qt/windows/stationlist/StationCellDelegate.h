// How a cell of the station list is edited in place, and shown whole in a tool tip where it does not fit.
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QStringList>
#include <QStyledItemDelegate>

namespace sonavel {

/// At most one cell is open at a time. What was typed goes to the model unless the row shows another station by then.
class StationCellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The field of the open cell; null when none is open.
    [[nodiscard]] QLineEdit* openField() const { return field_; }

    [[nodiscard]] QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    mutable QPointer<QLineEdit> field_;
    mutable QStringList rowWhenOpened_;
};

} // namespace sonavel
