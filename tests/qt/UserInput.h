// What a user does with mouse and keyboard, as events.
#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>
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

/// Shows the window and gives it the keyboard; false when it does not get that.
inline bool activate(QWidget& window)
{
    window.show();
    window.activateWindow();
    return handleEventsUntil([&] { return window.isActiveWindow(); });
}

/// Drags files over the window and drops them there; false when it does not take them.
inline bool dropFiles(QWidget& window, const QList<QUrl>& files)
{
    QMimeData dragged;
    dragged.setUrls(files);
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(&window, &enter);
    QDropEvent drop({50, 50}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &drop);
    return enter.isAccepted();
}

/// Counts the events of one kind that a widget gets.
class EventCounter : public QObject {
public:
    EventCounter(QObject& widget, QEvent::Type type)
        : type_(type)
    {
        widget.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == type_ ? 1 : 0;
        return false;
    }

    int count = 0;

private:
    QEvent::Type type_;
};

} // namespace sonavel
