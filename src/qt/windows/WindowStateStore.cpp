#include "qt/windows/WindowStateStore.h"

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QSettings>
#include <QTableView>

namespace sonavel {

namespace {

QString geometryKey(const QWidget& window)
{
    return window.objectName() + QStringLiteral("/geometry");
}

/// Of the first column; the last one takes what is left.
QString columnKey(const QWidget& window, const QTableView& table)
{
    return window.objectName() + u'/' + table.objectName() + QStringLiteral("FirstColumn");
}

QTableView* tableIn(const QWidget& window)
{
    return window.findChild<QTableView*>();
}

} // namespace

WindowStateStore::WindowStateStore(const QString& stateFolder)
    : file_(stateFolder + QStringLiteral("/sonavel/windows.ini"))
{
}

QString WindowStateStore::usersStateFolder()
{
    const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + QStringLiteral("/.local/state");
}

void WindowStateStore::restore(QWidget& window) const
{
    if (!QFile::exists(file_))
        return;
    const QSettings settings(file_, QSettings::IniFormat);
    window.restoreGeometry(settings.value(geometryKey(window)).toByteArray());
    if (QTableView* table = tableIn(window)) {
        const int width = settings.value(columnKey(window, *table)).toInt();
        if (width > 0)
            table->horizontalHeader()->setDefaultSectionSize(qMin(width, window.width()));
    }
}

void WindowStateStore::keep(const QWidget& window) const
{
    if (window.windowHandle() == nullptr)
        return;
    QSettings settings(file_, QSettings::IniFormat);
    settings.setValue(geometryKey(window), window.saveGeometry());
    if (const QTableView* table = tableIn(window))
        settings.setValue(columnKey(window, *table), table->columnWidth(0));
}

} // namespace sonavel
