// What the system says when streams that broke can be had again: it has slept, or the network is back.
#pragma once

#include <QObject>

#include <functional>

namespace sonavel {

/// Listens on the system's message bus to the login manager and the network manager, as far as they are there.
class ConnectivityMonitor : public QObject {
    Q_OBJECT

public:
    explicit ConnectivityMonitor(std::function<void()> awakened);

private slots:
    void preparingForSleep(bool isAboutToSleep);
    void networkChanged(uint state);

private:
    std::function<void()> awakened_;
    bool isConnected_ = true;
};

} // namespace sonavel
