#include "qt/ports/QtProcess.h"

#include <QApplication>
#include <QWidget>

#include <unistd.h>

namespace sonavel {

void QtProcess::exit(int status)
{
    for (const auto& step : steps_)
        step();
    for (QWidget* window : QApplication::topLevelWidgets())
        window->hide();
    QGuiApplication::sync();
    ::_exit(status);
}

} // namespace sonavel
