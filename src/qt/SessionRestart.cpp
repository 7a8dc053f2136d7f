#include "qt/SessionRestart.h"

#include "qt/LaunchOptions.h"
#include "qt/desktop/Session.h"

#include <QCoreApplication>

namespace sonavel {

void restartWithSession(const LaunchOptions& options)
{
    restartWithSession(QStringList(QCoreApplication::applicationFilePath()) + options.arguments,
        options.isDemo ? Restart::Never : Restart::WithSession);
}

} // namespace sonavel
