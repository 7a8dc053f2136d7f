// Which menu items are enabled when, and what they do.
#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class MenusTest : public ControllerTest {
protected:
    /// Items from 5000 on are additions.
    [[nodiscard]] std::string enabled()
    {
        actions.validateItems();
        std::string tags;
        for (const TaggedItem& row : taggedItems())
            tags += row.tag < 5000 && (controls.menu.*row.item).state().isEnabled ? std::to_string(row.tag) + " " : "";
        return tags;
    }

    void showEditor(bool hasKeyboard)
    {
        listWindow.setIsVisible(true);
        listWindow.keyWindowChangedByUser(hasKeyboard);
    }
};

TEST_F(MenusTest, ItemsOfTheListNeedItsWindowWithTheKeyboard)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    EXPECT_EQ(enabled(), "0 1003 2002 2003 2004 4000 4001 ");
    EXPECT_EQ(controls.menu.menuRadioShowEditRadio.state().title, "<SHOW_EDIT_RADIO_LIST>");
    showEditor(false);
    EXPECT_EQ(enabled(), "0 1003 2002 2003 2004 ");
    EXPECT_EQ(controls.menu.menuRadioShowEditRadio.state().title, "<CLOSE_EDIT_RADIO_LIST>");
    showEditor(true);
    EXPECT_EQ(enabled(), "0 1000 1003 2002 2003 2004 3000 3001 ");
    table.selectedByUser({0}, 0);
    EXPECT_EQ(enabled(), "0 1000 1001 1002 1003 2002 2003 2004 3000 3001 ");
    table.selectedByUser({0, 1}, 1);
    EXPECT_EQ(enabled(), "0 1000 1002 1003 2002 2003 2004 3000 3001 ");
}

TEST_F(MenusTest, NothingIsEnabledThatActsOnRowsAndItemsLeftOverFromAnErasedList)
{
    for (const IndexSet& rows : {IndexSet{1}, IndexSet{0, 1}}) {
        putPreferences({{"enableMultipleSelection", "YES"}, {"defaultStation", "B"}});
        keepStations(0);
        startWithStations("A;http://a/\rB;http://b/\r");
        showEditor(true);
        popUp.chosenByUser(2);
        table.selectedByUser(rows, 1);
        const std::string whileThere = enabled();
        EXPECT_NE(whileThere.find("1002 "), std::string::npos);
        EXPECT_NE(whileThere.find("2000 "), std::string::npos);
        EXPECT_TRUE(controls.main.buttonPlayPause.state().isEnabled);

        platform.alerts.expect("<ERASE_ALL_PREVIOUS_DATA>", firstButtonAnswer);
        platform.files.files["/unreadable.csv"] = "\xFF";
        platform.filePanels.choice = "/unreadable.csv";
        controls.menu.menuRadioImport.chosenByUser();
        EXPECT_EQ(enabled(), "0 1000 1003 2002 2003 2004 3000 ");
        for (const ToolbarItem* item :
            {&controls.stationList.radioEdit, &controls.stationList.radioRemove, &controls.stationList.radioExport})
            EXPECT_FALSE(item->state().isEnabled) << item->tag();
        EXPECT_FALSE(controls.main.buttonPlayPause.state().isEnabled);
        EXPECT_FALSE(controls.preferences.popupDefaultButtonListRadio.state().isEnabled);
        controller.preferencesWindow.setRadioDefault();
        EXPECT_EQ(controller.preferences.PREF_DEFAULT_STATION, "B");
        table.doubleClickedByUser();
        EXPECT_FALSE(controls.editSheet.winEditData.isVisible());
    }
}

TEST_F(MenusTest, AStreamOfAnErasedListCanBeHeldAndOnceStoppedNotPlayedAgain)
{
    startWithStations("A;http://a/\r");
    popUp.chosenByUser(1);
    controls.main.buttonPlayPause.pressedByUser();
    keepStations(0);
    actions.validateItems();
    for (const bool isPlaying : {false, true}) {
        controls.main.buttonPlayPause.pressedByUser();
        EXPECT_EQ(controller.player.isPlay, isPlaying);
    }
    controls.main.buttonStop.pressedByUser();
    EXPECT_FALSE(controls.main.buttonPlayPause.state().isEnabled);
}

TEST_F(MenusTest, PlayFollowsThePopUpAndStopThePlayer)
{
    startWithStations("A;http://a/\r");
    popUp.chosenByUser(1);
    EXPECT_EQ(enabled(), "0 1003 2000 2002 2003 2004 4000 4001 ");
    controls.menu.menuPlayPause.chosenByUser();
    EXPECT_EQ(enabled(), "0 1003 2000 2001 2002 2003 2004 4000 4001 ");
    controls.menu.menuPlayPause.chosenByUser();
    EXPECT_EQ(enabled(), "0 1003 2000 2001 2002 2003 2004 4000 4001 ") << "paused";
    controller.stationSelection.updatePopupListRadioWithListStation();
    EXPECT_EQ(enabled(), "0 1003 2001 2002 2003 2004 4000 4001 ")
        << "still held, while the pop-up shows its placeholder";
    controls.menu.menuMute.chosenByUser();
    EXPECT_TRUE(controller.player.isMute);
    controls.menu.menuStop.chosenByUser();
    EXPECT_TRUE(controller.player.isStop);
    controls.menu.menuNextStation.chosenByUser();
    EXPECT_EQ(popUp.indexOfSelectedItem(), 1);
}

TEST_F(MenusTest, ItemsDoWhatTheirTagsSay)
{
    startWithStations("A;http://a/\rB;http://b/\rC;http://c/\r");
    controls.menu.menuPreviousStation.chosenByUser();
    EXPECT_EQ(popUp.indexOfSelectedItem(), 3);
    controls.menu.menuNextStation.chosenByUser();
    EXPECT_EQ(popUp.indexOfSelectedItem(), 1);

    showEditor(true);
    table.selectedByUser({1}, 1);
    actions.validateItems();
    controls.menu.menuRadioEdit.chosenByUser();
    EXPECT_EQ(controls.editSheet.textFieldRadioName.stringValue(), "B");
    controls.editSheet.buttonCancel.pressedByUser();
    platform.alerts.expect("<REMOVE_RADIO>", secondButtonAnswer);
    controls.menu.menuRadioRemove.chosenByUser();
}

TEST_F(MenusTest, APlaybackItemLeavesAnOpenCellAlone)
{
    startWithStations("A;http://a/\r");
    const unsigned before = table.state().endsOfEditing;
    for (MenuItem* item : {&controls.menu.menuMute, &controls.menu.menuNextStation, &controls.menu.menuPlayPause,
             &controls.menu.menuStop})
        item->chosenByUser();
    EXPECT_EQ(table.state().endsOfEditing, before);
    controls.menu.menuRadioShowEditRadio.chosenByUser();
    platform.alerts.expect("<ALLERT_TEXT_MESSAGE_QUIT>", secondButtonAnswer);
    controls.menu.menuQuit.chosenByUser();
    EXPECT_EQ(table.state().endsOfEditing, before + 2);
}

TEST_F(MenusTest, TheListItemTogglesItsWindowAndWaitsForThePreferences)
{
    start();
    controls.menu.menuRadioShowEditRadio.chosenByUser();
    EXPECT_TRUE(listWindow.isVisible());
    controls.menu.menuRadioShowEditRadio.chosenByUser();
    EXPECT_FALSE(listWindow.isVisible());
    controls.preferences.winPreferences.setIsVisible(true);
    EXPECT_EQ(enabled(), "0 2002 2003 2004 4000 4001 ");
    EXPECT_EQ(controls.menu.menuRadioShowEditRadio.state().title, "<SHOW_EDIT_RADIO_LIST>");
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
