// The moment from which the user sees a window.
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace sonavel {

/// Calls `action` once, on the loop's turn after the window has been painted for the first time.
void afterFirstPaint(QWidget& window, std::function<void()> action);

} // namespace sonavel
