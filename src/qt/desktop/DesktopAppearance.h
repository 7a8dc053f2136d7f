// Light or dark and how much contrast, as the user has set the desktop.
#pragma once

#include "qt/kit/Palettes.h"

#include <QObject>

class QDBusPendingCallWatcher;
class QDBusVariant;

namespace sonavel {

class WindowStateStore;

/// Follows the desktop's colour scheme and contrast with the program's own palettes. What the desktop answers is
/// saved for the next start, so that asking it delays no window. A desktop that does not answer leaves everything
/// as it is.
class DesktopAppearance : public QObject {
    Q_OBJECT

public:
    /// Borrows the store.
    explicit DesktopAppearance(const WindowStateStore& windowState);

    /// Gives the application the palette of the saved appearance; light when there is none.
    void applySaved();
    /// Asks the desktop now, and listens to changes from then on.
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
