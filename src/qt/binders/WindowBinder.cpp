#include "qt/binders/WindowBinder.h"

#include "qt/kit/TextConversion.h"

#include <QEvent>

namespace sonavel {

WindowBinder::WindowBinder(Window& window, QWidget& widget)
    : QObject(&widget)
    , window_(window)
    , widget_(widget)
    , owner_(widget.parentWidget())
{
    window_.connect(
        {toText(widget.windowTitle()), widget.isVisible()}, [this](const WindowState& state) { render(state); });
    widget.installEventFilter(this);
    if (owner_ != nullptr)
        owner_->installEventFilter(this);
}

WindowBinder::~WindowBinder()
{
    window_.disconnect();
}

bool WindowBinder::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == owner_) {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            QMetaObject::invokeMethod(
                this, [this] { render(window_.state()); }, Qt::QueuedConnection);
        return false;
    }
    switch (event->type()) {
    case QEvent::Close:
        event->ignore();
        window_.closeRequestedByUser();
        return true;
    case QEvent::WindowActivate:
        window_.keyWindowChangedByUser(true);
        break;
    case QEvent::WindowDeactivate: // comes ahead of hiding, too
        window_.keyWindowChangedByUser(false);
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

} // namespace sonavel
