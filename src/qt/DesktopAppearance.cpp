#include "qt/DesktopAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>
#include <QGuiApplication>
#include <QSettings>

namespace sonavel {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");
constexpr uint prefersDark = 1;

const QString rememberedKey = QStringLiteral("desktop/appearance");
const QString dark = QStringLiteral("dark");
const QString light = QStringLiteral("light");

} // namespace

DesktopAppearance::DesktopAppearance(const QString& stateFolder)
    : file_(stateFolder.isEmpty() ? QString() : stateFolder + QStringLiteral("/sonavel/windows.ini"))
{
}

void DesktopAppearance::applyRemembered()
{
    const bool isDark = QFile::exists(file_) && QSettings(file_, QSettings::IniFormat).value(rememberedKey) == dark;
    QGuiApplication::setPalette(paletteFor(isDark ? Appearance::Dark : Appearance::Light));
}

void DesktopAppearance::follow()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question << appearanceGroup << colorSchemeKey;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] { receive(*answer); });
}

void DesktopAppearance::receive(QDBusPendingCallWatcher& answer)
{
    const QDBusPendingReply<QDBusVariant> reply = answer;
    answer.deleteLater();
    if (!reply.isValid())
        return;
    // Older portals wrap the value twice.
    const QVariant value = reply.value().variant();
    takeOver(value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value);
}

void DesktopAppearance::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == appearanceGroup && key == colorSchemeKey)
        takeOver(value.variant());
}

void DesktopAppearance::takeOver(const QVariant& colorScheme)
{
    const Appearance wanted = colorScheme.toUInt() == prefersDark ? Appearance::Dark : Appearance::Light;
    if (wanted == presentAppearance())
        return;
    QGuiApplication::setPalette(paletteFor(wanted));
    if (!file_.isEmpty())
        QSettings(file_, QSettings::IniFormat).setValue(rememberedKey, wanted == Appearance::Dark ? dark : light);
}

} // namespace sonavel
