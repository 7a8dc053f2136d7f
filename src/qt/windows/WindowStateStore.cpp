#include "qt/windows/WindowStateStore.h"

#include "platform/UserFile.h"

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QSettings>
#include <QTableView>

namespace sonavel {

namespace {

const QString appearanceKey = QStringLiteral("desktop/appearance");

QString geometryKey(const QWidget& window)
{
    return window.objectName() + QStringLiteral("/geometry");
}

/// Of the first column; the last one takes what is left.
QString columnKey(const QWidget& window, const QTableView& table)
{
    return window.objectName() + u'/' + table.objectName() + QStringLiteral("FirstColumn");
}

} // namespace

WindowStateStore::WindowStateStore(const QString& stateFolder)
    : file_(stateFolder.isEmpty() ? QString() : stateFolder + u'/' + QLatin1String(windowStateName.data()))
{
}

QString WindowStateStore::usersStateFolder()
{
    const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + QStringLiteral("/.local/state");
}

void WindowStateStore::restore(QWidget& window) const
{
    window.restoreGeometry(value(geometryKey(window)).toByteArray());
    if (const auto* table = window.findChild<QTableView*>()) {
        const int width = value(columnKey(window, *table)).toInt();
        if (width > 0)
            table->horizontalHeader()->setDefaultSectionSize(qMin(width, window.width()));
    }
}

void WindowStateStore::save(const QWidget& window) const
{
    if (file_.isEmpty() || window.windowHandle() == nullptr)
        return;
    QSettings settings(file_, QSettings::IniFormat);
    settings.setValue(geometryKey(window), window.saveGeometry());
    if (const auto* table = window.findChild<QTableView*>())
        settings.setValue(columnKey(window, *table), table->columnWidth(0));
}

std::optional<Appearance> WindowStateStore::appearance() const
{
    return appearanceNamed(value(appearanceKey).toString());
}

void WindowStateStore::saveAppearance(Appearance appearance) const
{
    if (!file_.isEmpty())
        QSettings(file_, QSettings::IniFormat).setValue(appearanceKey, nameOf(appearance));
}

QVariant WindowStateStore::value(const QString& key) const
{
    return QFile::exists(file_) ? QSettings(file_, QSettings::IniFormat).value(key) : QVariant();
}

} // namespace sonavel
