#include "qt/ports/QtRunLoop.h"

#include <QCoreApplication>
#include <QMetaObject>

namespace sonavel {

void QtRunLoop::performOnNextTurn(std::function<void()> action)
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(action), Qt::QueuedConnection);
}

} // namespace sonavel
