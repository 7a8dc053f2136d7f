#include "qt/WindowMemory.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QWidget>

namespace sonavel {

namespace {

QString keyOf(const QWidget& window)
{
    return window.objectName() + QStringLiteral("/geometry");
}

} // namespace

WindowMemory::WindowMemory(const QString& stateFolder)
    : file_(stateFolder + QStringLiteral("/sonavel/windows.ini"))
{
}

QString WindowMemory::usersStateFolder()
{
    const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + QStringLiteral("/.local/state");
}

void WindowMemory::restore(QWidget& window) const
{
    if (QFile::exists(file_))
        window.restoreGeometry(QSettings(file_, QSettings::IniFormat).value(keyOf(window)).toByteArray());
}

void WindowMemory::keep(const QWidget& window) const
{
    QSettings(file_, QSettings::IniFormat).setValue(keyOf(window), window.saveGeometry());
}

} // namespace sonavel
