// The user's session, as a session manager knows it: how the player ends with it and comes back with the next.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace sonavel {

enum class Restart { WithSession, Never };

/// Says so to the session manager, if there is one, whenever that saves the session. `command` is what starts the
/// player the same way from any folder; the session's identifier is put behind it. To be called once, with an
/// application.
void restartWithSession(const QStringList& command, Restart restart);

/// Takes what a session manager adds, "-session ID", out of the arguments. The identifier; a null string without one.
[[nodiscard]] QString takeSessionId(QStringList& arguments);

/// Calls back when the session manager has everything saved, and when it ends the program. The toolkit would ask every
/// window to close before that end, and the session would wait for the answer to a question.
class SessionEnd : public QObject {
public:
    SessionEnd(std::function<void()> saveRequested, std::function<void()> endRequested);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> endRequested_;
};

} // namespace sonavel
