// Binds a window of the program to a top-level widget.
#pragma once

#include "ui/Window.h"

#include <QWidget>

namespace sonavel {

/// Renders title and visibility, opens a sheet so that it blocks its parent alone, and reports which window has the
/// keyboard. The user's wish to close the window is reported, and the window stays until the program hides it. Lives as
/// long as the widget; the window must live longer.
class WindowBinder : public QObject {
public:
    WindowBinder(Window& window, QWidget& widget);
    ~WindowBinder() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void render(const WindowState& state);

    Window& window_;
    QWidget& widget_;
    QWidget* owner_; ///< the window that a sheet is attached to, with which it goes and comes; null for others
    unsigned frontRequestsSeen_ = 0;
    unsigned focusReleasesSeen_ = 0;
};

} // namespace sonavel
