#include "qt/kit/ElidedLabel.h"

#include "qt/kit/WrappedText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>

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
    const QStringList lines = wrappedLines(text(), font(), textArea().width(), linesThatFit());
    int width = 0;
    for (const QString& line : lines)
        width = qMax(width, fontMetrics().horizontalAdvance(line));
    const int besideText = contentsRect().width() - textArea().width();
    // The mark stands beside the text, wherever that is aligned to.
    const QRect area = QStyle::alignedRect(
        layoutDirection(), alignment(), {width + besideText, contentsRect().height()}, contentsRect());
    const QSize markSize(fontMetrics().height(), fontMetrics().height());
    mark_.paint(&painter, QStyle::alignedRect(layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter, markSize, area));
    const QRect textPart = QStyle::visualRect(layoutDirection(), area, area.adjusted(besideText, 0, 0, 0));
    style()->drawItemText(&painter, textPart, static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())),
        palette(), isEnabled(), lines.join(u'\n'), foregroundRole());
}

int ElidedLabel::linesThatFit() const
{
    return qMax(1, contentsRect().height() / fontMetrics().lineSpacing());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const int lines = linesThatFit();
    const bool fits = wrappedLines(text(), font(), textArea().width(), lines + 1).size() <= lines;
    showPlainToolTip(*static_cast<QHelpEvent*>(event), fits ? QString() : text(), *this);
    return true;
}

} // namespace sonavel
