#include "qt/binders/Binder.h"
#include "qt/binders/Binders.h"
#include "qt/kit/TextConversion.h"

#include <QEvent>
#include <QWidget>

namespace sonavel {

namespace {

class WindowBinder : public Binder<Window, QWidget> {
public:
    WindowBinder(Window& window, QWidget& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void render(const WindowState& state);

    QWidget* owner_; ///< the window that a sheet is attached to, with which it goes and comes; null for others
    unsigned frontRequestsSeen_ = 0;
    unsigned focusReleasesSeen_ = 0;
};

WindowBinder::WindowBinder(Window& window, QWidget& widget)
    : Binder(window, widget)
    , owner_(widget.parentWidget())
{
    control_.connect(
        {toText(widget.windowTitle()), widget.isVisible()}, [this](const WindowState& state) { render(state); });
    widget.installEventFilter(this);
    if (owner_ != nullptr)
        owner_->installEventFilter(this);
}

bool WindowBinder::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == owner_) {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            QMetaObject::invokeMethod(
                this, [this] { render(control_.state()); }, Qt::QueuedConnection);
        return false;
    }
    switch (event->type()) {
    case QEvent::Close:
        event->ignore();
        control_.closeRequestedByUser();
        return true;
    case QEvent::WindowActivate:
        control_.keyWindowChangedByUser(true);
        break;
    case QEvent::WindowDeactivate: // comes ahead of hiding, too
        control_.keyWindowChangedByUser(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowBinder::render(const WindowState& state)
{
    widget_.setWindowTitle(toQString(state.title));
    if (focusReleasesSeen_ != state.focusReleases)
        widget_.setFocus();
    focusReleasesSeen_ = state.focusReleases;
    if (state.isVisible && !widget_.isVisible())
        widget_.setWindowModality(state.isSheet ? Qt::WindowModal : Qt::NonModal);
    widget_.setVisible(state.isVisible && (owner_ == nullptr || owner_->isVisible()));
    if (frontRequestsSeen_ == state.frontRequests)
        return;
    frontRequestsSeen_ = state.frontRequests;
    if (widget_.isMinimized())
        widget_.setWindowState(widget_.windowState() & ~Qt::WindowMinimized);
    widget_.raise();
    widget_.activateWindow();
}

} // namespace

void bind(Window& window, QWidget& widget)
{
    new WindowBinder(window, widget);
}

} // namespace sonavel
