#include "qt/kit/ElidedLabel.h"

#include "qt/kit/TextConversion.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace sonavel {

namespace {

constexpr int usualLength = 24; // characters

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ElidedLabel::setMark(const QIcon& mark)
{
    mark_ = mark;
    update();
}

QRect ElidedLabel::textArea() const
{
    const int height = fontMetrics().height();
    const int taken = mark_.isNull() ? 0 : height + height / 3;
    return QStyle::visualRect(layoutDirection(), contentsRect(), contentsRect().adjusted(taken, 0, 0, 0));
}

QSize ElidedLabel::sizeHint() const
{
    const QMargins margins = contentsMargins();
    return {fontMetrics().averageCharWidth() * usualLength + margins.left() + margins.right(),
        fontMetrics().height() + margins.top() + margins.bottom()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 4, sizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect area = textArea();
    const QSize markSize(fontMetrics().height(), fontMetrics().height());
    mark_.paint(&painter,
        QStyle::alignedRect(layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter, markSize, contentsRect()));
    const QString shown = fontMetrics().elidedText(onOneLine(text()), Qt::ElideRight, area.width());
    style()->drawItemText(&painter, area, static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())),
        palette(), isEnabled(), shown, foregroundRole());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const bool fits = fontMetrics().horizontalAdvance(onOneLine(text())) <= textArea().width();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), fits ? QString() : asPlainToolTip(text()), this);
    return true;
}

} // namespace sonavel
