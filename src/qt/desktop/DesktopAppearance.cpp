#include "qt/desktop/DesktopAppearance.h"

#include "qt/windows/WindowStateStore.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>

namespace sonavel {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");
const QString contrastKey = QStringLiteral("contrast");
constexpr uint prefersDark = 1;
constexpr uint prefersHighContrast = 1;

Appearance appearanceOf(bool isDark, bool isHighContrast)
{
    if (isHighContrast)
        return isDark ? Appearance::HighContrastDark : Appearance::HighContrastLight;
    return isDark ? Appearance::Dark : Appearance::Light;
}

} // namespace

void DesktopAppearance::applySaved()
{
    const Appearance appearance = windowState_.appearance().value_or(Appearance::Light);
    isDark_ = appearance == Appearance::Dark || appearance == Appearance::HighContrastDark;
    isHighContrast_ = appearance == Appearance::HighContrastLight || appearance == Appearance::HighContrastDark;
    QGuiApplication::setPalette(paletteFor(appearance));
}

void DesktopAppearance::follow()
{
    // The bus finds the type of a slot's parameter by its name.
    qRegisterMetaType<QDBusVariant>();
    QDBusConnection::sessionBus().connect(service, path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask(colorSchemeKey);
    ask(contrastKey);
}

void DesktopAppearance::ask(const QString& key)
{
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question << appearanceGroup << key;
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, key, answer] { receive(key, *answer); });
}

/// A desktop without the setting replies with an error.
void DesktopAppearance::receive(const QString& key, QDBusPendingCallWatcher& answer)
{
    const QDBusPendingReply<QDBusVariant> reply = answer;
    answer.deleteLater();
    if (!reply.isValid())
        return;
    // Older portals wrap the value twice.
    const QVariant value = reply.value().variant();
    takeOver(key, value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value);
}

void DesktopAppearance::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == appearanceGroup)
        takeOver(key, value.variant());
}

void DesktopAppearance::takeOver(const QString& key, const QVariant& value)
{
    const Appearance shown = appearanceOf(isDark_, isHighContrast_);
    if (key == colorSchemeKey)
        isDark_ = value.toUInt() == prefersDark;
    else if (key == contrastKey)
        isHighContrast_ = value.toUInt() == prefersHighContrast;
    const Appearance wanted = appearanceOf(isDark_, isHighContrast_);
    if (wanted == shown)
        return;
    QGuiApplication::setPalette(paletteFor(wanted));
    windowState_.saveAppearance(wanted);
}

} // namespace sonavel
