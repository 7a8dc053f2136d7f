// Light or dark and how much contrast, as the user has set the desktop.
#pragma once

#include "qt/kit/Palettes.h"

#include <QObject>

class QDBusPendingCallWatcher;
class QDBusVariant;

namespace sonavel {

/// Follows the desktop's colour scheme and contrast with the program's own palettes. What the desktop said is
/// remembered for the next start, so that asking it delays no window. A desktop that does not answer leaves everything
/// as it is.
class DesktopAppearance : public QObject {
    Q_OBJECT

public:
    /// `stateFolder` is where it is remembered; empty for nowhere.
    explicit DesktopAppearance(const QString& stateFolder);

    /// Gives the application the palette of the remembered appearance; light when there is none.
    void applyRemembered();
    /// Asks the desktop now, and listens to changes from then on.
    void follow();

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask(const QString& key);
    void receive(const QString& key, QDBusPendingCallWatcher& answer);
    void takeOver(const QString& key, const QVariant& value);
    void remember(Appearance appearance) const;

    QString file_;
    bool isDark_ = false;
    bool isHighContrast_ = false;
};

} // namespace sonavel
