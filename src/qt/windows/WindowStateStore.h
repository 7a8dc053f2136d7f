// What the windows were like the last time.
#pragma once

#include "base/NonCopyable.h"
#include "qt/kit/Palettes.h"

#include <QString>

#include <optional>

class QWidget;

namespace sonavel {

/// Keeps sizes and positions of windows, the widths of the columns in them and the desktop's appearance between runs,
/// in `sonavel/windows.ini` of a folder for the state of programs. What cannot be read or written is forgotten.
class WindowStateStore : private NonCopyable {
public:
    /// Nothing is kept where `stateFolder` is empty.
    explicit WindowStateStore(const QString& stateFolder);

    /// The user's folder for the state of programs: $XDG_STATE_HOME, or ~/.local/state.
    [[nodiscard]] static QString usersStateFolder();

    /// Puts a window that is not shown yet where it was, if that is still on a screen. Windows go by their object
    /// names. The first column of a table in it gets its width, up to the window's.
    void restore(QWidget& window) const;
    /// Nothing for a window that was never shown.
    void save(const QWidget& window) const;

    /// The desktop's appearance in the last run that knew it.
    [[nodiscard]] std::optional<Appearance> appearance() const;
    void saveAppearance(Appearance appearance) const;

private:
    [[nodiscard]] QVariant value(const QString& key) const;

    QString file_;
};

} // namespace sonavel
