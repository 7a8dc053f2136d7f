// The table of the station list: rows and selection of the program, selection and edits of the user.
#include "qt/windows/stationlist/StationTable.h"

#include "StationRows.h"
#include "UserInput.h"
#include "qt/binders/Binders.h"
#include "qt/windows/stationlist/StationCellDelegate.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace sonavel {
namespace {

class StationTableTest : public testing::Test {
protected:
    StationTableTest()
    {
        table.setDataSource(&rows);
        table.action.set([this] { ++selections; });
        table.setEditAction(
            [this](const CellEdit& edit) { rows.tableView(table, edit.value, edit.column.view(), edit.row); });
        table.doubleAction.set([this] { ++doubleClicks; });
        bind(table, widget);
        table.setAllowsMultipleSelection(true);
        fill(5);
        widget.resize(500, 300);
        widget.show();
        widget.activateWindow();
        widget.setFocus();
        EXPECT_TRUE(handleEventsUntil([&] { return widget.hasFocus(); }));
    }

    void fill(long count)
    {
        rows.fill(count);
        table.reloadData();
    }
    QPoint middleOf(int row, int column) { return widget.visualRect(widget.model()->index(row, column)).center(); }
    void click(int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(widget.viewport(), Qt::LeftButton, modifiers, middleOf(row, 0));
    }
    QLineEdit* openCell(int row, int column = 0)
    {
        widget.setCurrentIndex(widget.model()->index(row, column));
        QTest::keyClick(&widget, Qt::Key_F2);
        return openField();
    }
    QLineEdit* openField() { return static_cast<StationCellDelegate*>(widget.itemDelegate())->openField(); }
    [[nodiscard]] std::size_t widgetsSelection() const
    {
        return static_cast<std::size_t>(widget.selectionModel()->selectedRows().size());
    }

    StationRows rows;
    TableView table;
    StationTable widget;
    int selections = 0;
    int doubleClicks = 0;
};

TEST_F(StationTableTest, TheProgramsSelectionOutlivesAReloadAndIsNotReportedBack)
{
    table.selectRowIndexes({1, 2, 4}, TableView::Extending::No);
    EXPECT_EQ(widget.currentIndex().row(), table.selectedRow()); // where the arrow keys go on
    fill(4);
    EXPECT_EQ(table.selectedRowIndexes(), (IndexSet{1, 2}));
    EXPECT_EQ(widgetsSelection(), 2U);
    EXPECT_TRUE(widget.selectionModel()->isRowSelected(2));
    fill(0);
    EXPECT_EQ(widgetsSelection(), 0U);
    EXPECT_EQ(selections, 0);
}

TEST_F(StationTableTest, TheRowTouchedLastIsTheSelectedOne)
{
    click(3);
    EXPECT_EQ(table.selectedRow(), 3);
    EXPECT_TRUE(widget.selectionModel()->isRowSelected(3)); // with all its columns
    click(1, Qt::ControlModifier);
    EXPECT_EQ(table.selectedRow(), 1);
    EXPECT_EQ(table.selectedRowIndexes(), (IndexSet{1, 3}));
    click(1, Qt::ControlModifier);
    EXPECT_EQ(table.selectedRow(), 3);
    click(0, Qt::ShiftModifier);
    EXPECT_EQ(table.selectedRow(), 0);
    QTest::keyClick(&widget, Qt::Key_Down);
    EXPECT_EQ(table.selectedRow(), 1);
    EXPECT_EQ(table.numberOfSelectedRows(), 1);
    QTest::keyClick(&widget, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(table.selectedRow(), 2);
    EXPECT_EQ(table.numberOfSelectedRows(), 2);
}

TEST_F(StationTableTest, TheFirstArrowSelectsTheFirstRowAndHomeAndEndTheFirstAndTheLast)
{
    for (const long row : {0, 1}) {
        QTest::keyClick(&widget, Qt::Key_Down);
        EXPECT_EQ(table.selectedRow(), row);
    }
    QTest::keyClick(&widget, Qt::Key_End);
    EXPECT_EQ(table.selectedRow(), 4);
    QTest::keyClick(&widget, Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(table.numberOfSelectedRows(), 5);
    QTest::keyClick(&widget, Qt::Key_Home);
    EXPECT_EQ(table.selectedRow(), 0);
    EXPECT_EQ(table.numberOfSelectedRows(), 1) << "the keyboard was there before";
}

TEST_F(StationTableTest, AHundredThousandRowsAreSelectedAtOneStroke)
{
    fill(100'000);
    selections = 0;
    QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(table.numberOfSelectedRows(), 100'000);
    EXPECT_EQ(table.state().selectedRowIndexes.ranges().size(), 1U);
    EXPECT_EQ(selections, 1);
    EXPECT_LT(rows.reads, 1'000) << "cells are read when they are drawn";
}

TEST_F(StationTableTest, WithoutMultipleSelectionThereIsOneRowAtMost)
{
    click(1);
    table.setAllowsMultipleSelection(false);
    QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    click(3, Qt::ControlModifier);
    EXPECT_EQ(table.selectedRowIndexes(), IndexSet{3});
}

TEST_F(StationTableTest, ARowIsScrolledToAsOftenAsTheProgramAsks)
{
    fill(1'000);
    for (int turn = 0; turn < 2; ++turn) {
        table.scrollRowToVisible(999);
        EXPECT_TRUE(widget.viewport()->rect().contains(middleOf(999, 0)));
        widget.verticalScrollBar()->setValue(0);
    }
}

TEST_F(StationTableTest, WhatIsTypedIntoACellCountsUnlessItIsEscaped)
{
    const struct {
        const char* ending;
        std::function<void(QLineEdit*)> end;
        const char* name;
    } cases[] = {
        {"Return", [](QLineEdit* field) { QTest::keyClick(field, Qt::Key_Return); }, "new"},
        {"Tab", [](QLineEdit* field) { QTest::keyClick(field, Qt::Key_Tab); }, "new"},
        {"loss of focus", [](QLineEdit* field) { field->clearFocus(); }, "new"},
        {"the program", [this](QLineEdit*) { table.endEditing(); }, "new"},
        {"a hidden window", [this](QLineEdit*) { widget.hide(); }, "new"},
        {"Escape", [](QLineEdit* field) { QTest::keyClick(field, Qt::Key_Escape); }, "Name 2"},
    };
    for (const auto& [ending, end, name] : cases) {
        widget.show();
        widget.activateWindow();
        fill(5);
        rows.edits = 0;
        QLineEdit* field = openCell(2);
        ASSERT_NE(field, nullptr) << ending;
        QTest::keyClicks(field, "new");
        end(field);
        QApplication::processEvents();
        EXPECT_EQ(rows.names.at(2), Text(name)) << ending;
        EXPECT_EQ(rows.edits, name == std::string("new") ? 1 : 0) << ending;
        widget.endEditing();
    }
}

TEST_F(StationTableTest, ACellThatWasOnlyOpenedIsNoEdit)
{
    rows.names.at(1) = Text(std::string(40'000, 'x'));
    for (const int column : {0, 1}) {
        QLineEdit* field = openCell(1, column);
        ASSERT_NE(field, nullptr);
        QTest::keyClick(field, Qt::Key_X);
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents();
    }
    EXPECT_EQ(rows.edits, 0);
    EXPECT_EQ(rows.names.at(1).length(), 40'000U);
}

TEST_F(StationTableTest, AReloadKeepsWhatWasTypedOnlyForTheSameStation)
{
    QTest::keyClicks(openCell(2), "typed");
    table.reloadData();
    EXPECT_EQ(rows.names.at(2), Text("typed"));
    EXPECT_EQ(rows.edits, 1);

    QTest::keyClicks(openCell(2), "lost");
    rows.names.insert(rows.names.begin(), Text("Before all"));
    table.reloadData();
    QTest::keyClicks(openCell(5), "lost");
    fill(3);
    QApplication::processEvents();
    EXPECT_EQ(rows.edits, 1);
    EXPECT_EQ(openField(), nullptr);
}

TEST_F(StationTableTest, AClickOnOneOfManySelectedRowsSelectsItAndTheNextOneOpensItsCell)
{
    QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    click(2);
    EXPECT_EQ(table.selectedRowIndexes(), IndexSet{2});
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    EXPECT_EQ(openField(), nullptr);
    click(2);
    EXPECT_TRUE(handleEventsUntil([&] { return openField() != nullptr; }));
}

TEST_F(StationTableTest, AnOpenCellIsAFieldWithAFrame)
{
    QLineEdit* field = openCell(2);
    ASSERT_NE(field, nullptr);
    const QImage looks = field->grab().toImage();
    const QColor base = widget.palette().color(QPalette::Base);
    EXPECT_EQ(looks.pixelColor(2, looks.height() / 2), base);
    EXPECT_NE(looks.pixelColor(0, looks.height() / 2), base);
}

TEST_F(StationTableTest, BothColumnsAreNamedAndStayInViewHoweverTheyAreDraggedAndTheWindowShrinks)
{
    QHeaderView& columns = *widget.horizontalHeader();
    for (const auto& [column, name] : {std::pair(0, "Name"), {1, "Address"}})
        EXPECT_EQ(widget.model()->headerData(column, Qt::Horizontal), name);
    columns.resizeSection(0, 5'000);
    QApplication::processEvents();
    EXPECT_LE(columns.length(), widget.viewport()->width());
    columns.resizeSection(0, 300);
    widget.resize(250, 300);
    QApplication::processEvents();
    EXPECT_LE(columns.length(), widget.viewport()->width());
    EXPECT_GE(columns.sectionSize(1), columns.minimumSectionSize());
}

TEST_F(StationTableTest, ADoubleClickIsForTheSheetAndOpensNoCell)
{
    click(2);
    QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {}, middleOf(2, 0));
    QTest::mouseRelease(widget.viewport(), Qt::LeftButton, {}, middleOf(2, 0));
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    EXPECT_EQ(doubleClicks, 1);
    EXPECT_EQ(openField(), nullptr);
    QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {}, widget.viewport()->rect().bottomLeft());
    EXPECT_EQ(doubleClicks, 1);
}

TEST_F(StationTableTest, AToolTipShowsNoPassword)
{
    rows.names.at(0) = Text("Someone@a very long station name that does not fit its narrow column");
    rows.userInformation = "user:" + std::string(200, 'x') + "secret@";
    table.reloadData();
    const auto toolTip = [&](int column) {
        const QPoint place = middleOf(0, column);
        QHelpEvent asked(QEvent::ToolTip, place, widget.viewport()->mapToGlobal(place));
        QApplication::sendEvent(widget.viewport(), &asked);
        return QToolTip::text();
    };
    widget.setColumnWidth(0, 60);
    EXPECT_TRUE(toolTip(0).contains("Someone@a very long")) << toolTip(0).toStdString();
    EXPECT_TRUE(toolTip(1).contains("http://host/0")) << toolTip(1).toStdString();
    EXPECT_TRUE(widget.model()->index(0, 1).data().toString().contains("secret"));
}

TEST_F(StationTableTest, NamesFromOutsideAreDrawnOnOneLineAndNotToTheirEnd)
{
    rows.names.at(0) = Text("\nRock & <b>Roll</b>");
    std::string umlauts = "x"; // a cut between two bytes would lie inside of one
    for (int character = 0; character < 10'000'000; ++character)
        umlauts += "ü";
    rows.names.at(1) = Text(umlauts);
    const auto shown = [&](int row) { return widget.model()->index(row, 0).data().toString(); };
    EXPECT_EQ(shown(0), " Rock & <b>Roll</b>");
    EXPECT_EQ(shown(1).right(2), "ü…");
    EXPECT_LT(shown(1).size(), 3'000);
    rows.names.at(2) = Text("A station of many words");
    rows.names.at(4) = Text("A\u00A0station\u00A0of\u00A0many\u00A0words");
    table.reloadData();
    widget.setColumnWidth(0, 80);
    const auto looks = [&](int row) {
        return widget.viewport()->grab(widget.visualRect(widget.model()->index(row, 0))).toImage();
    };
    EXPECT_EQ(looks(2), looks(4)) << "words are elided as letters are";
}

} // namespace
} // namespace sonavel
