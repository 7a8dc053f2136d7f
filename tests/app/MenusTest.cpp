// Which menu items are enabled when, and what they do.
#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class MenusTest : public ControllerTest {
protected:
    [[nodiscard]] std::string enabled()
    {
        actions.validateItems();
        std::string tags;
        for (const TaggedItem& row : taggedItems())
            tags += (outlets.*row.item).state().isEnabled ? std::to_string(row.tag) + " " : "";
        return tags;
    }

    void showEditor(bool hasKeyboard)
    {
        outlets.winWebRadioListEdit.setIsVisible(true);
        outlets.winWebRadioListEdit.keyWindowChangedByUser(hasKeyboard);
    }
};

TEST_F(MenusTest, ItemsOfTheListNeedItsWindowWithTheKeyboard)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    EXPECT_EQ(enabled(), "0 1003 2002 2003 2004 4000 4001 ");
    EXPECT_EQ(outlets.menuRadioShowEditRadio.state().title, "<SHOW_EDIT_RADIO_LIST>");
    showEditor(false);
    EXPECT_EQ(enabled(), "0 1003 2002 2003 2004 ");
    EXPECT_EQ(outlets.menuRadioShowEditRadio.state().title, "<CLOSE_EDIT_RADIO_LIST>");
    showEditor(true);
    EXPECT_EQ(enabled(), "0 1000 1003 2002 2003 2004 3000 3001 ");
    outlets.tableViewListRadio.selectedByUser({0}, 0);
    EXPECT_EQ(enabled(), "0 1000 1001 1002 1003 2002 2003 2004 3000 3001 ");
    outlets.tableViewListRadio.selectedByUser({0, 1}, 1);
    EXPECT_EQ(enabled(), "0 1000 1002 1003 2002 2003 2004 3000 3001 ");
}

TEST_F(MenusTest, NothingIsEnabledThatActsOnRowsAndItemsLeftOverFromAnErasedList)
{
    for (const IndexSet& rows : {IndexSet{1}, IndexSet{0, 1}}) {
        putPreferences({{"enableMultipleSelection", "YES"}, {"defaultStation", "B"}});
        controller.stationList.listRadio = std::make_shared<StationRecords>();
        startWithStations("A;http://a/\rB;http://b/\r");
        showEditor(true);
        outlets.popupbuttonRadioList.chosenByUser(2);
        outlets.tableViewListRadio.selectedByUser(rows, 1);
        const std::string whileThere = enabled();
        EXPECT_NE(whileThere.find("1002 "), std::string::npos);
        EXPECT_NE(whileThere.find("2000 "), std::string::npos);
        EXPECT_TRUE(outlets.buttonPlayPause.state().isEnabled);

        platform.alerts.expect("<ERASE_ALL_PREVIOUS_DATA>", firstButtonAnswer);
        platform.files.files["/unreadable.csv"] = "\xFF";
        platform.filePanels.choice = "/unreadable.csv";
        outlets.menuRadioImport.chosenByUser();
        EXPECT_EQ(enabled(), "0 1000 1003 2002 2003 2004 3000 ");
        for (const ToolbarItem* item : {&outlets.radioEdit, &outlets.radioRemove, &outlets.radioExport})
            EXPECT_FALSE(item->state().isEnabled) << item->tag();
        EXPECT_FALSE(outlets.buttonPlayPause.state().isEnabled);
        EXPECT_FALSE(outlets.popupDefaultButtonListRadio.state().isEnabled);
        controller.preferencesWindow.setRadioDefault();
        EXPECT_EQ(controller.preferences.PREF_DEFAULT_STATION, "B");
        outlets.tableViewListRadio.doubleClickedByUser();
        EXPECT_FALSE(outlets.winEditData.isVisible());
    }
}

TEST_F(MenusTest, AStreamOfAnErasedListCanBeHeldAndOnceStoppedNotPlayedAgain)
{
    startWithStations("A;http://a/\r");
    outlets.popupbuttonRadioList.chosenByUser(1);
    outlets.buttonPlayPause.pressedByUser();
    controller.stationList.listRadio = std::make_shared<StationRecords>();
    actions.validateItems();
    for (const bool isPlaying : {false, true}) {
        outlets.buttonPlayPause.pressedByUser();
        EXPECT_EQ(controller.player.isPlay, isPlaying);
    }
    outlets.buttonStop.pressedByUser();
    EXPECT_FALSE(outlets.buttonPlayPause.state().isEnabled);
}

TEST_F(MenusTest, PlayFollowsThePopUpAndStopThePlayer)
{
    startWithStations("A;http://a/\r");
    outlets.popupbuttonRadioList.chosenByUser(1);
    EXPECT_EQ(enabled(), "0 1003 2000 2002 2003 2004 4000 4001 ");
    outlets.menuPlayPause.chosenByUser();
    EXPECT_EQ(enabled(), "0 1003 2000 2001 2002 2003 2004 4000 4001 ");
    outlets.menuPlayPause.chosenByUser();
    EXPECT_EQ(enabled(), "0 1003 2000 2001 2002 2003 2004 4000 4001 ") << "paused";
    controller.stationSelection.updatePopupListRadioWithListStation();
    EXPECT_EQ(enabled(), "0 1003 2001 2002 2003 2004 4000 4001 ")
        << "still held, while the pop-up shows its placeholder";
    outlets.menuMute.chosenByUser();
    EXPECT_TRUE(controller.player.isMute);
    outlets.menuStop.chosenByUser();
    EXPECT_TRUE(controller.player.isStop);
    outlets.menuNextStation.chosenByUser();
    EXPECT_EQ(outlets.popupbuttonRadioList.indexOfSelectedItem(), 1);
}

TEST_F(MenusTest, ItemsDoWhatTheirTagsSay)
{
    startWithStations("A;http://a/\rB;http://b/\rC;http://c/\r");
    outlets.menuPreviousStation.chosenByUser();
    EXPECT_EQ(outlets.popupbuttonRadioList.indexOfSelectedItem(), 3);
    outlets.menuNextStation.chosenByUser();
    EXPECT_EQ(outlets.popupbuttonRadioList.indexOfSelectedItem(), 1);

    showEditor(true);
    outlets.tableViewListRadio.selectedByUser({1}, 1);
    actions.validateItems();
    outlets.menuRadioEdit.chosenByUser();
    EXPECT_EQ(outlets.textFieldRadioName.stringValue(), "B");
    outlets.buttonCancel.pressedByUser();
    platform.alerts.expect("<REMOVE_RADIO>", secondButtonAnswer);
    outlets.menuRadioRemove.chosenByUser();
}

TEST_F(MenusTest, APlaybackItemLeavesAnOpenCellAlone)
{
    startWithStations("A;http://a/\r");
    const unsigned before = outlets.tableViewListRadio.state().endsOfEditing;
    for (MenuItem* item : {&outlets.menuMute, &outlets.menuNextStation, &outlets.menuPlayPause, &outlets.menuStop})
        item->chosenByUser();
    EXPECT_EQ(outlets.tableViewListRadio.state().endsOfEditing, before);
    outlets.menuRadioShowEditRadio.chosenByUser();
    platform.alerts.expect("<ALLERT_TEXT_MESSAGE_QUIT>", secondButtonAnswer);
    outlets.menuQuit.chosenByUser();
    EXPECT_EQ(outlets.tableViewListRadio.state().endsOfEditing, before + 2);
}

TEST_F(MenusTest, TheListItemTogglesItsWindowAndWaitsForThePreferences)
{
    start();
    outlets.menuRadioShowEditRadio.chosenByUser();
    EXPECT_TRUE(outlets.winWebRadioListEdit.isVisible());
    outlets.menuRadioShowEditRadio.chosenByUser();
    EXPECT_FALSE(outlets.winWebRadioListEdit.isVisible());
    outlets.winPreferences.setIsVisible(true);
    EXPECT_EQ(enabled(), "0 2002 2003 2004 4000 4001 ");
    EXPECT_EQ(outlets.menuRadioShowEditRadio.state().title, "<SHOW_EDIT_RADIO_LIST>");
}

TEST_F(MenusTest, TagsThatNoItemHasDoNothing)
{
    start();
    platform.log.clear();
    for (const int tag : {-1, 1, 999, 1004, 2005, 4000, 4002}) {
        MenuItem item;
        item.connect({{}, tag, true});
        controller.menus.menuView(item);
        EXPECT_EQ(controller.menus.validateMenuItem(item), tag == 4000) << tag;
    }
    EXPECT_TRUE(platform.log.empty());
}

} // namespace
} // namespace sonavel
