// The windows of the program as they come up.
#include "qt/ProgramWindows.h"

#include "UserInput.h"
#include "qt/kit/TextConversion.h"
#include "qt/windows/WindowStateStore.h"
#include "qt/windows/main/MainWindow.h"
#include "qt/windows/stationlist/StationListWindow.h"
#include "support/ControllerTest.h"

#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>

namespace sonavel {
namespace {

class ProgramWindowsTest : public ControllerTest {
protected:
    const QTemporaryDir state;
    const WindowStateStore windowState{state.path()};
};

class Raises : public QObject {
public:
    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return false;
    }
};

TEST_F(ProgramWindowsTest, TheMainWindowIsKeptAboveTheListButNotPutBeforeAnotherProgram)
{
    for (const bool isLeft : {false, true}) {
        ProgramWindows windows(controls, actions, {}, windowState);
        windows.connectMainWindow();
        controls.main.winSonavel.makeKeyAndOrderFront();
        ASSERT_TRUE(handleEventsUntil([&] { return windows.mainWindow().isActiveWindow(); }));
        QWidget another;
        if (isLeft) {
            another.show();
            another.activateWindow();
            ASSERT_TRUE(handleEventsUntil([&] { return another.isActiveWindow(); }));
        }
        controls.stationList.winWebRadioListEdit.setIsVisible(true);
        Raises raises;
        windows.mainWindow().installEventFilter(&raises);
        windows.buildOtherWindows();
        EXPECT_EQ(raises.count, isLeft ? 0 : 1);
    }
}

TEST_F(ProgramWindowsTest, AListThatIsDroppedOnTheListWindowIsImported)
{
    Text imported;
    ProgramWindows windows(
        controls, actions, [&](const Text& path) { imported = path; }, windowState);
    windows.connectMainWindow();
    windows.buildOtherWindows();
    QFile dropped(state.filePath(QStringLiteral("list.csv")));
    ASSERT_TRUE(dropped.open(QFile::WriteOnly));
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(dropped.fileName())});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QDropEvent drop({50, 50}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (dynamic_cast<StationListWindow*>(window) == nullptr)
            continue;
        QApplication::sendEvent(window, &enter);
        QApplication::sendEvent(window, &drop);
    }
    EXPECT_TRUE(handleEventsUntil([&] { return imported == toText(dropped.fileName()); }));
}

} // namespace
} // namespace sonavel
