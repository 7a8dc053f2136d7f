#include "qt/windows/main/FirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace sonavel {

namespace {

class PaintWatcher : public QObject {
public:
    PaintWatcher(QWidget& window, std::function<void()> action)
        : QObject(&window)
        , action_(std::move(action))
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // A timer, unlike a posted event, lets the picture reach the screen first.
            QTimer::singleShot(0, this, [this] {
                action_();
                deleteLater();
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> action_;
};

} // namespace

void afterFirstPaint(QWidget& window, std::function<void()> action)
{
    new PaintWatcher(window, std::move(action));
}

} // namespace sonavel
