#include "qt/WindowBinder.h"

#include "qt/TextConversion.h"

#include <QEvent>

namespace sonavel {

WindowBinder::WindowBinder(Window& window, QWidget& widget)
    : QObject(&widget)
    , window_(window)
    , widget_(widget)
{
    window_.connect(
        {toText(widget.windowTitle()), widget.isVisible()}, [this](const WindowState& state) { render(state); });
    widget.installEventFilter(this);
}

WindowBinder::~WindowBinder()
{
    window_.disconnect();
}

bool WindowBinder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    event->ignore();
    window_.closeRequestedByUser();
    return true;
}

void WindowBinder::render(const WindowState& state)
{
    widget_.setWindowTitle(toQString(state.title));
    widget_.setVisible(state.isVisible);
    if (frontRequestsSeen_ == state.frontRequests)
        return;
    frontRequestsSeen_ = state.frontRequests;
    if (widget_.isMinimized())
        widget_.setWindowState(widget_.windowState() & ~Qt::WindowMinimized);
    widget_.raise();
    widget_.activateWindow();
}

} // namespace sonavel
