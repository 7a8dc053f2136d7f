// The windows of the program as they come up.
#include "qt/ProgramWindows.h"

#include "UserInput.h"
#include "qt/windows/MainWindow.h"
#include "support/ControllerTest.h"

#include <QTemporaryDir>

namespace sonavel {
namespace {

class ProgramWindowsTest : public testing::Test {
protected:
    MemoryPlatform platform;
    Outlets outlets;
    WinSonavelController controller{platform.ports(), platform.configuration, outlets};
    Gate gate;
    Actions actions{controller, outlets, gate};
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
    const QTemporaryDir state;
    for (const bool isLeft : {false, true}) {
        ProgramWindows windows(outlets, actions, state.path());
        windows.connectMainWindow();
        outlets.winSonavel.makeKeyAndOrderFront();
        ASSERT_TRUE(handleEventsUntil([&] { return windows.mainWindow().isActiveWindow(); }));
        QWidget another;
        if (isLeft) {
            another.show();
            another.activateWindow();
            ASSERT_TRUE(handleEventsUntil([&] { return another.isActiveWindow(); }));
        }
        outlets.winWebRadioListEdit.setIsVisible(true);
        Raises raises;
        windows.mainWindow().installEventFilter(&raises);
        windows.buildOtherWindows();
        EXPECT_EQ(raises.count, isLeft ? 0 : 1);
    }
}

} // namespace
} // namespace sonavel
