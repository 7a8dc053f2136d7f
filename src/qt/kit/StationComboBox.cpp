#include "qt/kit/StationComboBox.h"

#include "qt/kit/WrappedText.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QListView>
#include <QStyleOption>
#include <QStyledItemDelegate>

namespace sonavel {

namespace {

constexpr int minContentsLength = 24; // characters
constexpr int visibleItems = 16;

/// Rows that are high enough to aim at.
class AiryItemDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        // As wide as the list is: a wider item would be cut by its edge.
        return {0, option.fontMetrics.height() * 3 / 2};
    }
};

bool movesThroughItems(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
    }
}

bool isCommand(const QKeyEvent& event)
{
    return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

bool opensList(const QKeyEvent& event)
{
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier
        && (event.key() == Qt::Key_Down || event.key() == Qt::Key_Up);
}

bool isTyping(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().at(0).isPrint() && event.key() != Qt::Key_Space;
}

} // namespace

StationComboBox::StationComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(minContentsLength);
    auto* list = new QListView(this);
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideRight);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setView(list);
    list->window()->setFocusProxy(this); // the keys of the window go on working while the list is open
    setItemDelegate(new AiryItemDelegate(this));
    setMaxVisibleItems(visibleItems);
}

/// Left to whatever lies behind the box.
void StationComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void StationComboBox::keyPressEvent(QKeyEvent* event)
{
    if (opensList(*event))
        showPopup();
    else if (isCommand(*event))
        event->ignore();
    else if (movesThroughItems(*event) || isTyping(*event))
        openListAndPass(*event);
    else
        QComboBox::keyPressEvent(event);
}

void StationComboBox::openListAndPass(QKeyEvent& event)
{
    showPopup();
    if (view()->isVisible())
        QCoreApplication::sendEvent(view(), &event);
    event.accept();
}

/// A name that does not fit is whole in the tool tip.
bool StationComboBox::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QComboBox::event(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const bool fits = fontMetrics().horizontalAdvance(currentText()) <= field.width() - 2;
    const QString tip = fits ? toolTip() : currentText();
    showPlainToolTip(*static_cast<QHelpEvent*>(event), tip, *this);
    return true;
}

} // namespace sonavel
