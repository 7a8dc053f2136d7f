#include "qt/kit/StatusLine.h"

#include "qt/kit/Fonts.h"
#include "qt/kit/Palettes.h"

#include <QEvent>
#include <QTimer>

#include <chrono>

namespace sonavel {

namespace {

constexpr std::chrono::seconds timeToReadText{20};
constexpr double textSize = 0.9; // times the usual size of the font

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : ElidedLabel(parent)
{
    setFont(scaledFont(font(), textSize));
    for (Message* message : {&usual_, &failure_}) {
        message->time = new QTimer(this);
        message->time->setInterval(timeToReadText);
        connect(message->time, &QTimer::timeout, this, [this, message] { hold(*message, {}); });
    }
}

void StatusLine::hold(Message& message, const QString& text)
{
    message.text = text;
    if (text.isEmpty())
        message.time->stop();
    else
        message.time->start();
    setText(failure_.text.isEmpty() ? usual_.text : failure_.text);
    updateColor();
}

void StatusLine::changeEvent(QEvent* event)
{
    ElidedLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateColor();
}

void StatusLine::updateColor()
{
    QPalette colors;
    if (!failure_.text.isEmpty())
        colors.setColor(QPalette::WindowText, readableRed());
    setPalette(colors);
}

} // namespace sonavel
