// What is on the screen while the program waits before it has a window.
#pragma once

#include <QWidget>

class QLabel;

namespace sonavel {

/// A small frameless window with the program's picture and name, and a line with what is being waited for.
class SplashScreen : public QWidget {
public:
    SplashScreen();

    /// Writes this line and goes to the middle of the screen.
    void setWaitingFor(const QString& line);

private:
    QLabel* line_;
};

} // namespace sonavel
