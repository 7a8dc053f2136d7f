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
    const QRect area = contentsRect();
    const QString shown = fontMetrics().elidedText(onOneLine(text()), Qt::ElideRight, area.width());
    style()->drawItemText(&painter, area, static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())),
        palette(), isEnabled(), shown, foregroundRole());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const bool fits = fontMetrics().horizontalAdvance(onOneLine(text())) <= contentsRect().width();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), fits ? QString() : asPlainToolTip(text()), this);
    return true;
}

} // namespace sonavel
