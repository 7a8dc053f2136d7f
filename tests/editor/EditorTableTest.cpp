// The table of stations: its cells, its toolbar, its window.
#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class EditorTableTest : public ControllerTest {
protected:
    [[nodiscard]] std::string enabledItems() const
    {
        std::string tags;
        for (const ToolbarItem* item :
            {&controls.stationList.radioAdd, &controls.stationList.radioEdit, &controls.stationList.radioRemove,
                &controls.stationList.radioImport, &controls.stationList.radioExport})
            tags += item->state().isEnabled ? std::to_string(item->tag()) : "";
        return tags;
    }
};

TEST_F(EditorTableTest, ACellTakesWhatIsTypedWithoutSeparatorsAndKeepsItsRow)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    table.editedByUser({"Z;  \r ", "radio", 0});
    table.editedByUser({"", "link", 1});
    EXPECT_EQ(list(), "Z   ;http://a/\rB;\r");
    EXPECT_EQ(database(), Text(list()));
    EXPECT_EQ(popUp.state().titles->at(1), "Z   ");
    EXPECT_EQ(table.textOfCell("radio", 0), "Z   ");
    EXPECT_EQ(table.state().reloads, 1U);
}

TEST_F(EditorTableTest, AnUnchangedCellOrOneOfAGoneRowIsNoEdit)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    popUp.chosenByUser(1);
    platform.log.clear();
    table.editedByUser({"A", "radio", 0});
    table.editedByUser({"A;", "radio", 0});
    table.editedByUser({"Z", "radio", 2});
    table.editedByUser({"Z", "radio", -1});
    table.editedByUser({"Z", "other", 0});
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(popUp.indexOfSelectedItem(), 1);
    EXPECT_TRUE(table.textOfCell("radio", 2).isAbsent());
}

TEST_F(EditorTableTest, ACellThatIsOpenIsEndedBeforeACommandWorksOnTheRows)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    unsigned ends = 0;
    table.connect(table.state(), [&](const TableViewState& state) {
        if (std::exchange(ends, state.endsOfEditing) != state.endsOfEditing)
            table.editedByUser({"Typed", "radio", 1});
    });
    table.selectedByUser({0}, 0);
    platform.alerts.expect(
        "<REMOVE_RADIO>", firstButtonAnswer, [&] { EXPECT_EQ(list(), "A;http://a/\rTyped;http://b/\r"); });
    controls.stationList.radioRemove.pressedByUser();
    EXPECT_EQ(list(), "Typed;http://b/\r");
}

TEST_F(EditorTableTest, TheToolbarFollowsSelectionAndRows)
{
    start();
    EXPECT_EQ(enabledItems(), "03");
    controller.stationList.setListRadio(StationRecords(3, std::make_shared<KVStationWebRadio>(1, "A", "http://a/")));
    table.reloadData();
    table.selectedByUser({1}, 1);
    EXPECT_EQ(enabledItems(), "01234");
    table.selectedByUser({1, 2}, 2);
    EXPECT_EQ(enabledItems(), "0234");
    table.selectedByUser({}, 2);
    EXPECT_EQ(enabledItems(), "034");
    controller.editorTable.myDoubleClickAction();
    EXPECT_FALSE(controls.editSheet.winEditData.isVisible()) << "no selected row";
    ToolbarItem other;
    other.connect({5, true});
    controller.editorToolbar.toolbar(other);
    EXPECT_FALSE(controller.editorToolbar.validateToolbarItem(other));
}

TEST_F(EditorTableTest, TheButtonShowsTheWindowThenBringsItToTheFront)
{
    startWithStations("A;http://a/\r");
    EXPECT_EQ(listWindow.state().title, "<WIN_EDIT_RADIO_LIST> (1)");
    keepStations(0);
    controls.main.buttonEditRadioList.setEnabled(true);
    controls.main.buttonEditRadioList.pressedByUser();
    EXPECT_TRUE(listWindow.isVisible());
    EXPECT_EQ(listWindow.state().title, "<WIN_EDIT_RADIO_LIST> (0)");
    controls.main.buttonEditRadioList.pressedByUser();
    EXPECT_EQ(listWindow.state().frontRequests, 0U);
    platform.runLoop.turn();
    EXPECT_EQ(listWindow.state().frontRequests, 1U);
    listWindow.closeRequestedByUser();
    EXPECT_FALSE(listWindow.isVisible());
}

} // namespace
} // namespace sonavel
