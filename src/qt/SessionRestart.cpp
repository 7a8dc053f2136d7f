#include "qt/SessionRestart.h"

#include "qt/Settings.h"
#include "qt/desktop/Session.h"

#include <QCoreApplication>

namespace sonavel {

void restartWithSession(const Settings& settings)
{
    restartWithSession(QStringList(QCoreApplication::applicationFilePath()) + settings.options,
        settings.isDemo ? Restart::Never : Restart::WithSession);
}

} // namespace sonavel
