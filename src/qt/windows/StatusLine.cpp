#include "qt/windows/StatusLine.h"

#include "qt/kit/Palettes.h"

#include <QEvent>
#include <QTimer>

#include <chrono>

namespace sonavel {

namespace {

constexpr std::chrono::seconds timeToReadText{20};
constexpr double textSize = 0.9; // times the usual size of the font

QFont scaled(QFont font, double factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : ElidedLabel(parent)
    , timeToRead_(new QTimer(this))
{
    setFont(scaled(font(), textSize));
    takeColor();
    timeToRead_->setSingleShot(true);
    timeToRead_->setInterval(timeToReadText);
    connect(timeToRead_, &QTimer::timeout, this, [this] {
        clear();
        if (whenGone_)
            whenGone_();
    });
}

void StatusLine::tell(const QString& text, Tone tone)
{
    const bool coversFailure = tone_ == Tone::Failure && timeToRead_->isActive() && tone == Tone::Usual;
    if (coversFailure && !text.isEmpty())
        return;
    setText(text);
    tone_ = tone;
    takeColor();
    if (text.isEmpty())
        timeToRead_->stop();
    else
        timeToRead_->start();
}

void StatusLine::changeEvent(QEvent* event)
{
    ElidedLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColor();
}

void StatusLine::takeColor()
{
    QPalette colors;
    if (tone_ == Tone::Failure)
        colors.setColor(QPalette::WindowText, readableRed());
    setPalette(colors);
}

} // namespace sonavel
