#include "qt/desktop/ConnectivityMonitor.h"

#include <QDBusConnection>

#include <utility>

namespace sonavel {

namespace {

/// From this state on the network manager reaches more than the machine itself.
constexpr uint connectedToSite = 60;

} // namespace

ConnectivityMonitor::ConnectivityMonitor(std::function<void()> awakened)
    : awakened_(std::move(awakened))
{
    QDBusConnection bus = QDBusConnection::systemBus();
    bus.connect(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
        SLOT(preparingForSleep(bool)));
    bus.connect(QStringLiteral("org.freedesktop.NetworkManager"), QStringLiteral("/org/freedesktop/NetworkManager"),
        QStringLiteral("org.freedesktop.NetworkManager"), QStringLiteral("StateChanged"), this,
        SLOT(networkChanged(uint)));
}

void ConnectivityMonitor::preparingForSleep(bool isAboutToSleep)
{
    if (!isAboutToSleep)
        awakened_();
}

void ConnectivityMonitor::networkChanged(uint state)
{
    const bool wasConnected = std::exchange(isConnected_, state >= connectedToSite);
    if (isConnected_ && !wasConnected)
        awakened_();
}

} // namespace sonavel
