// The desktop's colour scheme and contrast.
#pragma once

#include "qt/kit/Palettes.h"

#include <QObject>

class QDBusPendingCallWatcher;
class QDBusVariant;

namespace sonavel {

class WindowStateStore;

/// Follows the desktop's colour scheme and contrast with the program's own palettes. The desktop's reply is saved for
/// the next start, so that the query delays no window. Without a reply nothing changes.
class DesktopAppearance : public QObject {
    Q_OBJECT

public:
    /// Borrows the store.
    explicit DesktopAppearance(const WindowStateStore& windowState)
        : windowState_(windowState)
    {
    }

    /// Gives the application the palette of the saved appearance; light when there is none.
    void applySaved();
    /// Queries the desktop and subscribes to changes.
    void follow();

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask(const QString& key);
    void receive(const QString& key, QDBusPendingCallWatcher& answer);
    void takeOver(const QString& key, const QVariant& value);

    const WindowStateStore& windowState_;
    bool isDark_ = false;
    bool isHighContrast_ = false;
};

} // namespace sonavel
