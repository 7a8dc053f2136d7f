// The reference for the start of the player: the least that a Qt Widgets program can show.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle("Empty");
    window.resize(420, 220);
    window.show();
    return QApplication::exec();
}
