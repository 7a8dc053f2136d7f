// The windows of the program as they come up.
#include "qt/ProgramWindows.h"

#include "UserInput.h"
#include "qt/kit/TextConversion.h"
#include "qt/windows/WindowStateStore.h"
#include "qt/windows/main/MainWindow.h"
#include "qt/windows/stationlist/StationListWindow.h"
#include "support/ControllerTest.h"

#include <QFile>
#include <QTemporaryDir>

namespace sonavel {
namespace {

class ProgramWindowsTest : public ControllerTest {
protected:
    const QTemporaryDir state;
    const WindowStateStore windowState{state.path()};
};

TEST_F(ProgramWindowsTest, TheMainWindowIsKeptAboveTheListButNotPutBeforeAnotherProgram)
{
    for (const bool isLeft : {false, true}) {
        ProgramWindows windows(controls, actions, {}, windowState);
        windows.connectMainWindow();
        controls.main.winSonavel.makeKeyAndOrderFront();
        ASSERT_TRUE(handleEventsUntil([&] { return windows.mainWindow().isActiveWindow(); }));
        QWidget another;
        ASSERT_TRUE(!isLeft || activate(another));
        listWindow.setIsVisible(true);
        const EventCounter raises(windows.mainWindow(), QEvent::ZOrderChange);
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
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (dynamic_cast<StationListWindow*>(window) != nullptr)
            dropFiles(*window, {QUrl::fromLocalFile(dropped.fileName())});
    }
    EXPECT_TRUE(handleEventsUntil([&] { return imported == toText(dropped.fileName()); }));
}

} // namespace
} // namespace sonavel
