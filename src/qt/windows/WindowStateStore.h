// Where the windows were the last time.
#pragma once

#include <QString>

class QWidget;

namespace sonavel {

/// Keeps sizes and positions of windows, and the widths of the columns in them, between runs, in `sonavel/windows.ini`
/// of a folder for the state of programs. What cannot be read or written is forgotten.
class WindowStateStore {
public:
    explicit WindowStateStore(const QString& stateFolder);

    /// The user's folder for such things: $XDG_STATE_HOME, or ~/.local/state.
    [[nodiscard]] static QString usersStateFolder();

    /// Puts a window that is not shown yet where it was, if that is still on a screen. Windows go by their object
    /// names. The first column of a table in it gets its width, up to the window's.
    void restore(QWidget& window) const;
    /// Nothing for a window that was never shown.
    void keep(const QWidget& window) const;

private:
    QString file_;
};

} // namespace sonavel
