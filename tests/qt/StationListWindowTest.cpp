// The station list window, its sheet and the menus, as a user works with them.
#include "qt/windows/stationlist/StationListWindow.h"

#include "StationRows.h"
#include "UserInput.h"
#include "qt/binders/OutletConnector.h"
#include "qt/kit/StationComboBox.h"
#include "qt/windows/ProgramMenus.h"
#include "qt/windows/WindowStateStore.h"
#include "qt/windows/stationlist/FindField.h"
#include "qt/windows/stationlist/StationTable.h"
#include "ui_AboutWindow.h"

#include <QFile>
#include <QHeaderView>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include <gtest/gtest.h>

#include <algorithm>

namespace sonavel {
namespace {

class StationListWindowTest : public testing::Test {
protected:
    StationListWindowTest()
    {
        controls.stationList.tableViewListRadio.setDataSource(&rows);
        menus.addTo(window);
        connectMenus(controls.menu, menus);
        connectWindow(controls.stationList, window);
        connectWindow(controls.editSheet, sheet);
        rows.names = {"Alpha", "Beta", "Café Olé", "Gamma", "Österreich 1"};
        table().reloadData();
        controls.stationList.winWebRadioListEdit.makeKeyAndOrderFront();
        EXPECT_TRUE(handleEventsUntil([&] { return window.isActiveWindow(); }));
        tableWidget().setFocus();
    }

    TableView& table() { return controls.stationList.tableViewListRadio; }
    template <class Widget> Widget& child(QWidget& parent, const char* name)
    {
        return *parent.findChild<Widget*>(QString::fromLatin1(name));
    }
    StationTable& tableWidget() { return child<StationTable>(window, "tableViewListRadio"); }
    QAction& action(MenuItem MenuControls::*item)
    {
        return *std::ranges::find(menus.items(), item, &ProgramMenus::Item::first)->second;
    }
    FindField& findField() { return *window.findChild<FindField*>(); }
    QString status() { return child<QLabel>(window, "labelListStatus").text(); }

    enum class Message { Usual, Failure };

    /// As if the user had had the time to read it.
    void endTimeOf(Message message)
    {
        QTimer* time = child<QLabel>(window, "labelListStatus").findChildren<QTimer*>().at(static_cast<int>(message));
        EXPECT_TRUE(time->isActive());
        time->setInterval(0);
        EXPECT_TRUE(handleEventsUntil([time] { return !time->isActive(); }));
    }
    void openSheet()
    {
        controls.editSheet.winEditData.makeFirstResponder();
        controls.editSheet.winEditData.beginSheet();
        EXPECT_TRUE(handleEventsUntil([&] { return sheet.isActiveWindow(); }));
    }

    StationRows rows;
    Controls controls;
    int validations = 0;
    ProgramMenus menus{[this] { ++validations; }};
    StationListWindow window{controls.stationList.tableViewListRadio};
    ProgramDialog& sheet = *editSheetOf(window).release();
};

TEST_F(StationListWindowTest, AWindowThatIsBuiltLaterShowsWhatWasSaidMeanwhile)
{
    Controls early;
    early.stationList.tableViewListRadio.setDataSource(&rows);
    connectInitialState(early);
    early.stationList.winWebRadioListEdit.setTitle("Station List (5)");
    early.stationList.winWebRadioListEdit.setIsVisible(true);
    early.stationList.radioImport.setEnabled(true);
    early.stationList.tableViewListRadio.reloadData();
    early.stationList.tableViewListRadio.selectRowIndexes({3}, TableView::Extending::No);
    StationListWindow late(early.stationList.tableViewListRadio);
    connectWindow(early.stationList, late);
    EXPECT_TRUE(late.isVisible());
    EXPECT_EQ(late.windowTitle(), "Station List (5)");
    EXPECT_TRUE(child<QAction>(late, "radioImport").isEnabled());
    EXPECT_TRUE(child<StationTable>(late, "tableViewListRadio").selectionModel()->isRowSelected(3));
}

TEST_F(StationListWindowTest, FindGoesToTheNextMatchRoundTheEndWhateverCaseAndAccents)
{
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(findField().hasFocus());
    const struct {
        const char* text;
        long row;
    } cases[] = {{"ta", 1}, {"CAFE o", 2}, {"ÓSTERR", 4}, {"host/3", 3}, {"a", 3}, {"Alp", 0}};
    for (const auto& [text, row] : cases) {
        findField().setText(QString::fromUtf8(text));
        EXPECT_EQ(table().selectedRow(), row) << text;
    }
    findField().selectAll();
    QTest::keyClicks(&findField(), "MM");
    EXPECT_EQ(table().selectedRow(), 3);
    findField().setText("a");
    QTest::keyClick(&findField(), Qt::Key_Return);
    EXPECT_EQ(table().selectedRow(), 0);
    QTest::keyClick(&findField(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(table().selectedRow(), 3);
    QTest::keyClick(&findField(), Qt::Key_Escape);
    EXPECT_EQ(findField().text(), "");
    EXPECT_TRUE(tableWidget().hasFocus());
    EXPECT_EQ(table().selectedRow(), 3);
}

TEST_F(StationListWindowTest, FindingNothingIsToldAndChangesNothing)
{
    table().selectRowIndexes({2}, TableView::Extending::No);
    const QColor usual = findField().palette().color(QPalette::Base);
    QTest::keyClicks(&findField(), "zz");
    EXPECT_EQ(table().selectedRow(), 2);
    EXPECT_EQ(status(), "Not found");
    EXPECT_NE(findField().palette().color(QPalette::Base), usual);
    QTest::keyClick(&findField(), Qt::Key_Backspace);
    QTest::keyClick(&findField(), Qt::Key_Backspace);
    EXPECT_EQ(status(), "");
    EXPECT_EQ(findField().palette().color(QPalette::Base), usual);
    rows.names.clear();
    table().reloadData();
    QTest::keyClicks(&findField(), "a");
    EXPECT_EQ(table().selectedRow(), -1);
}

TEST_F(StationListWindowTest, EveryMessageIsShownForItsOwnTimeAFailureBeforeWhatIsSaidMeanwhile)
{
    window.showNotice("disk full");
    for (int time = 0; time < 2; ++time) {
        controls.stationList.labelListStatus.announce("Stations imported: 4.");
        EXPECT_EQ(status(), "disk full");
    }
    QTest::keyClicks(&findField(), "a");
    QTest::keyClicks(&findField(), "zz");
    EXPECT_EQ(status(), "disk full");
    endTimeOf(Message::Failure);
    EXPECT_EQ(status(), "Not found") << "its own time is not over";
    for (int time = 0; time < 2; ++time) {
        endTimeOf(Message::Usual);
        EXPECT_EQ(status(), "");
        controls.stationList.labelListStatus.announce("Stations imported: 4.");
        EXPECT_EQ(status(), "Stations imported: 4.") << "the same words anew";
    }
}

TEST_F(StationListWindowTest, KeysOfTheTableUseTheToolsThatAreEnabled)
{
    QStringList used;
    controls.stationList.radioEdit.action.set([&] { used << "edit"; });
    controls.stationList.radioRemove.action.set([&] { used << "remove"; });
    QTest::keyClick(&tableWidget(), Qt::Key_Return);
    QTest::keyClick(&tableWidget(), Qt::Key_Delete);
    QApplication::processEvents();
    EXPECT_TRUE(used.isEmpty());
    controls.stationList.radioEdit.setEnabled(true);
    controls.stationList.radioRemove.setEnabled(true);
    QTest::keyClick(&tableWidget(), Qt::Key_Return);
    QTest::keyClick(&tableWidget(), Qt::Key_Delete);
    QApplication::processEvents();
    EXPECT_EQ(used.join(' '), "edit remove");

    tableWidget().setCurrentIndex(tableWidget().model()->index(1, 0));
    QTest::keyClick(&tableWidget(), Qt::Key_F2);
    auto* cell = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(cell, nullptr);
    QTest::keyClick(cell, Qt::Key_Delete);
    QTest::keyClick(cell, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(used.join(' '), "edit remove");
    EXPECT_EQ(rows.names.at(1), Text("Beta")) << "wired nowhere, so nobody passes the edit on";
}

TEST_F(StationListWindowTest, OnlyOneLocalStationListCanBeDropped)
{
    const QTemporaryDir folder;
    const auto file = [&](const QString& name) {
        QFile made(folder.filePath(name));
        EXPECT_TRUE(made.open(QFile::WriteOnly));
        return QUrl::fromLocalFile(made.fileName());
    };
    ASSERT_TRUE(QDir(folder.path()).mkdir("folder.csv"));
    const QUrl list = file("my list.CSV");
    const struct {
        QList<QUrl> urls;
        bool isWanted;
    } cases[] = {{{list}, true}, {{list, file("b.csv")}, false}, {{file("c.m3u")}, false}, {{}, false},
        {{QUrl("https://host/list.csv")}, false}, {{QUrl::fromLocalFile(folder.filePath("folder.csv"))}, false},
        {{QUrl::fromLocalFile(folder.filePath("gone.csv"))}, false}};
    std::vector<Text> dropped;
    window.whenFileDropped([&](const Text& path) { dropped.push_back(path); });
    for (const auto& [urls, isWanted] : cases)
        EXPECT_EQ(dropFiles(window, urls), isWanted);
    EXPECT_TRUE(dropped.empty()) << "the other program waits for the end of the drop";
    QApplication::processEvents();
    EXPECT_EQ(dropped, std::vector<Text>{Text(list.toLocalFile().toStdString())});
    openSheet();
    EXPECT_FALSE(dropFiles(window, {list}));
}

TEST_F(StationListWindowTest, TheSheetOpensWithTheFocusInNeitherFieldEveryTime)
{
    for (int turn = 0; turn < 2; ++turn) {
        openSheet();
        EXPECT_TRUE(qobject_cast<QLineEdit*>(sheet.focusWidget()) == nullptr);
        QTest::keyClick(&sheet, Qt::Key_Tab);
        EXPECT_EQ(sheet.focusWidget()->objectName(), "textFieldRadioName");
        controls.editSheet.winEditData.endSheet();
        controls.editSheet.winEditData.close();
        EXPECT_FALSE(sheet.isVisible());
        window.activateWindow();
        QApplication::processEvents();
    }
}

TEST_F(StationListWindowTest, ReturnConfirmsAndEscapeTheTitleBarAndCtrlWClose)
{
    QStringList asked;
    controls.editSheet.buttonAction.action.set([&] { asked << "confirm"; });
    controls.editSheet.buttonCancel.action.set([&] { asked << "cancel"; });
    controls.editSheet.winEditData.action.set([&] { asked << "close"; });
    openSheet();
    auto& name = child<QLineEdit>(sheet, "textFieldRadioName");
    QTest::keyClick(&sheet, Qt::Key_Return);
    name.setFocus();
    QTest::keyClick(&name, Qt::Key_Return);
    QTest::keyClick(&name, Qt::Key_Escape);
    sheet.close();
    QTest::keyClick(&name, Qt::Key_W, Qt::ControlModifier);
    QApplication::processEvents();
    child<QPushButton>(sheet, "buttonCancel").click();
    EXPECT_EQ(asked.join(' '), "confirm confirm close close close cancel");
    EXPECT_TRUE(sheet.isVisible()) << "only the program closes it";
}

TEST_F(StationListWindowTest, TheSheetBlocksItsWindowAloneAndKeepsTheKeysOfTheMenus)
{
    int stops = 0;
    controls.menu.menuStop.action.set([&] { ++stops; });
    controls.menu.menuStop.setEnabled(true);
    openSheet();
    EXPECT_EQ(sheet.windowModality(), Qt::WindowModal);
    QTest::keyClick(&sheet, Qt::Key_Period, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_EQ(stops, 1);
    EXPECT_FALSE(controls.stationList.winWebRadioListEdit.isKeyWindow());
    EXPECT_TRUE(controls.editSheet.winEditData.isKeyWindow());
}

TEST_F(StationListWindowTest, ASheetGoesAndComesWithItsWindow)
{
    openSheet();
    controls.stationList.winWebRadioListEdit.setIsVisible(false);
    QApplication::processEvents();
    EXPECT_FALSE(sheet.isVisible());
    controls.stationList.winWebRadioListEdit.setIsVisible(true);
    QApplication::processEvents();
    EXPECT_TRUE(sheet.isVisible());
}

TEST_F(StationListWindowTest, KeysOfTheMenusDoNotDisturbTyping)
{
    QStringList chosen;
    const std::initializer_list<std::pair<MenuItem&, const char*>> items{{controls.menu.menuPlayPause, "play"},
        {controls.menu.menuPreviousStation, "previous"}, {controls.menu.menuNextStation, "next"}};
    for (const auto& [item, name] : items) {
        item.setEnabled(true);
        item.action.set([&chosen, name = QString(name)] { chosen << name; });
    }
    QTest::keyClicks(&findField(), "one two three");
    QTest::keyClick(&findField(), Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(findField().cursorPosition(), 8);
    QTest::keyClick(&findField(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(findField().text(), "one two three");
    QPushButton button(&window);
    button.show();
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&tableWidget(), Qt::Key_Space);
    QApplication::processEvents();
    EXPECT_TRUE(chosen.isEmpty());
    QTest::keyClick(&window, Qt::Key_Space);
    QTest::keyClick(&tableWidget(), Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(&findField(), Qt::Key_P, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_EQ(chosen.join(' '), "play next play");
}

TEST_F(StationListWindowTest, AKeyIsHeardOnceInWhicheverWindowIsActive)
{
    QStringList heard;
    controls.menu.menuMute.action.set([&] { heard << "mute"; });
    controls.stationList.winWebRadioListEdit.action.set([&] { heard << "close list"; });
    controls.about.winAbout.action.set([&] { heard << "close dialog"; });
    QMainWindow other;
    menus.addTo(other);
    StationComboBox box(&other);
    box.addItem(QStringLiteral("Station"));
    const auto dialog = ProgramDialog::from<Ui::AboutWindow>();
    connectWindow(controls.about, *dialog);
    const auto press = [&](QWidget& active, QWidget& receiver, Qt::Key key) {
        ASSERT_TRUE(activate(active));
        QTest::keyClick(&receiver, key, Qt::ControlModifier);
        QApplication::processEvents();
        heard << "|";
    };
    for (QWidget* active : std::initializer_list<QWidget*>{&window, &other, dialog.get()})
        press(*active, *active, Qt::Key_M);
    QMenu& open = *other.menuBar()->actions().at(0)->menu();
    other.activateWindow();
    open.popup({});
    QTest::keyClick(&open, Qt::Key_M, Qt::ControlModifier);
    open.hide();
    box.showPopup();
    QTest::keyClick(box.view(), Qt::Key_M, Qt::ControlModifier);
    box.hidePopup();
    for (QWidget* active : std::initializer_list<QWidget*>{&other, dialog.get(), &window})
        press(*active, *active, Qt::Key_W);
    EXPECT_FALSE(other.isVisible());
    QKeyEvent held(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier, {}, true);
    QApplication::sendEvent(&window, &held);
    QApplication::processEvents();
    EXPECT_EQ(heard.join(' '), "mute | mute | mute | mute mute | close dialog | close list |");
}

TEST_F(StationListWindowTest, AnItemIsEnabledJustBeforeItsKeyOrMenuIsUsed)
{
    bool isChosen = false;
    Controls others;
    ProgramMenus late([&] { others.menu.menuMute.setEnabled(true); });
    connectMenus(others.menu, late);
    others.menu.menuMute.action.set([&] { isChosen = true; });
    others.menu.menuMute.setEnabled(false);
    QMainWindow main;
    late.addTo(main);
    ASSERT_TRUE(activate(main));
    QApplication::processEvents();
    others.menu.menuMute.setEnabled(false);
    QTest::keyClick(&main, Qt::Key_M, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_TRUE(isChosen);
    const int before = validations;
    emit window.menuBar()->actions().at(1)->menu()->aboutToShow();
    EXPECT_EQ(validations, before + 1);
}

TEST_F(StationListWindowTest, ItemsHaveTheirKeys)
{
    using Items = MenuControls;
    const std::pair<MenuItem Items::*, const char*> cases[] = {{&Items::menuQuit, "Ctrl+Q"},
        {&Items::menuRadioAdd, "Ctrl+N"}, {&Items::menuRadioShowEditRadio, "Ctrl+E"},
        {&Items::menuPlayPause, "Ctrl+P; Space"}, {&Items::menuStop, "Ctrl+."}, {&Items::menuMute, "Ctrl+M"},
        {&Items::menuPreviousStation, "Ctrl+Left"}, {&Items::menuNextStation, "Ctrl+Right"},
        {&Items::menuRadioImport, "Ctrl+I"}, {&Items::menuRadioExport, "Ctrl+Shift+E"},
        {&Items::menuPreferences, "Ctrl+,"}};
    for (const auto& [item, keys] : cases)
        EXPECT_EQ(QKeySequence::listToString(action(item).shortcuts()), keys);
}

TEST_F(StationListWindowTest, ACheckMarkIsTheProgramsToSet)
{
    QAction& mute = *window.menuBar()->actions().at(1)->menu()->actions().at(2);
    controls.menu.menuMute.setEnabled(true);
    mute.trigger();
    QApplication::processEvents();
    EXPECT_FALSE(mute.isChecked());
    controls.menu.menuMute.setState(true);
    EXPECT_TRUE(mute.isChecked());
}

TEST_F(StationListWindowTest, AMenuTitleFromTheProgramIsShownAsItIs)
{
    EXPECT_EQ(controls.menu.menuRadioAdd.state().title, Text("Add…"));
    controls.menu.menuRadioShowEditRadio.setTitle("Close R&B");
    controls.menu.menuRadioShowEditRadio.setEnabled(false);
    const QAction& shown = *window.menuBar()->actions().at(2)->menu()->actions().constFirst();
    EXPECT_EQ(shown.text(), "Close R&&B");
    EXPECT_FALSE(shown.isEnabled());
    EXPECT_EQ(shown.shortcut(), QKeySequence("Ctrl+E"));
    EXPECT_EQ(controls.menu.menuRadioShowEditRadio.tag(), 1003);
    EXPECT_EQ(action(&MenuControls::menuRadioAdd).text(), "&Add…");
}

TEST_F(StationListWindowTest, AnEmptyListSaysWhatToDo)
{
    const QImage before = tableWidget().grab().toImage();
    rows.names.clear();
    table().reloadData();
    const QImage hint = tableWidget().grab().toImage();
    tableWidget().setModel(nullptr);
    EXPECT_NE(hint, tableWidget().grab().toImage());
    EXPECT_NE(hint, before);
}

TEST_F(StationListWindowTest, FromRightToLeftTheFindFieldIsMirrored)
{
    const auto* bar = child<QToolBar>(window, "toolBar").layout()->parentWidget();
    findField().setText("ABC");
    const auto spaceAndTextFromLens = [&](Qt::LayoutDirection direction) {
        window.setLayoutDirection(direction);
        QApplication::processEvents();
        const bool isMirrored = direction == Qt::RightToLeft;
        const QRect field = findField().geometry();
        EXPECT_NEAR(field.top(), bar->rect().bottom() - field.bottom(), 1);
        findField().setCursorPosition(isMirrored ? 3 : 0);
        const int text = findField().inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
        return isMirrored ? std::pair(field.left(), field.width() - text)
                          : std::pair(bar->rect().right() - field.right(), text);
    };
    const auto [space, text] = spaceAndTextFromLens(Qt::LeftToRight);
    const auto [mirroredSpace, mirroredText] = spaceAndTextFromLens(Qt::RightToLeft);
    EXPECT_GE(space, window.fontMetrics().height() / 2);
    EXPECT_EQ(mirroredSpace, space);
    EXPECT_NEAR(mirroredText, text, 4);
}

TEST_F(StationListWindowTest, TheColumnsComeBackAsTheyWere)
{
    const QTemporaryDir state;
    const WindowStateStore store(state.path());
    tableWidget().horizontalHeader()->resizeSection(0, 277);
    store.save(window);
    Controls others;
    StationListWindow again(others.stationList.tableViewListRadio);
    store.restore(again);
    connectWindow(others.stationList, again);
    others.stationList.tableViewListRadio.reloadData();
    EXPECT_EQ(child<StationTable>(again, "tableViewListRadio").horizontalHeader()->sectionSize(0), 277);
}

} // namespace
} // namespace sonavel
