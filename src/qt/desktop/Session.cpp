#include "qt/desktop/Session.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

#include <utility>

namespace sonavel {

QString takeSessionId(QStringList& arguments)
{
    const qsizetype at =
        qMax(arguments.indexOf(QStringLiteral("-session")), arguments.indexOf(QStringLiteral("--session")));
    if (at < 0)
        return {};
    arguments.removeAt(at);
    return at < arguments.size() ? arguments.takeAt(at) : QString();
}

void restartWithSession(const QStringList& command, Restart restart)
{
    const auto inform = [command, restart](QSessionManager& manager) {
        manager.setRestartHint(
            restart == Restart::Never ? QSessionManager::RestartNever : QSessionManager::RestartIfRunning);
        manager.setRestartCommand(
            command + QStringList{QStringLiteral("-session"), manager.sessionId() + u'_' + manager.sessionKey()});
    };
    QObject::connect(qGuiApp, &QGuiApplication::saveStateRequest, qGuiApp, inform, Qt::DirectConnection);
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, qGuiApp, inform, Qt::DirectConnection);
}

SessionEnd::SessionEnd(std::function<void()> saveRequested, std::function<void()> endRequested)
    : endRequested_(std::move(endRequested))
{
    qGuiApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, std::move(saveRequested), Qt::DirectConnection);
}

bool SessionEnd::eventFilter(QObject* watched, QEvent* event)
{
    const bool isEnd = watched == qGuiApp && event->type() == QEvent::Quit;
    if (isEnd)
        endRequested_();
    return isEnd;
}

} // namespace sonavel
