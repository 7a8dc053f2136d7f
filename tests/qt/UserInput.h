// What a user does with mouse and keyboard, as events.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include <functional>

namespace sonavel {

/// Whether the widget took it.
inline bool pressKey(
    QWidget& widget, Qt::Key key, const QString& text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(&widget, &release);
    return press.isAccepted();
}

inline void turnWheel(QWidget& widget)
{
    const QPointF middle = widget.rect().center();
    QWheelEvent turn(
        middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turn);
}

/// Handles events until `done` says so; false when it does not within ten seconds.
inline bool handleEventsUntil(const std::function<bool()>& done)
{
    QElapsedTimer time;
    for (time.start(); !done(); QApplication::processEvents(QEventLoop::AllEvents, 10)) {
        if (time.elapsed() > 10'000)
            return false;
    }
    return true;
}

} // namespace sonavel
