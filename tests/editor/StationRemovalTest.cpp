// The removal of stations, with its questions.
#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class StationRemovalTest : public ControllerTest {
protected:
    void startPlayingFirst(const Text& listText)
    {
        putPreferences({{"isAutoPlay", "YES"}, {"enableMultipleSelection", "YES"}});
        startWithStations(listText);
        popUp.chosenByUser(1);
        ASSERT_TRUE(controller.player.isPlay);
    }

    void remove(const IndexSet& rows, const Text& question, int answer)
    {
        table.selectedByUser(rows, static_cast<long>(rows.last()));
        platform.alerts.expect(question, answer);
        controls.stationList.radioRemove.pressedByUser();
    }
};

TEST_F(StationRemovalTest, TheChosenStationIsStoppedBeforeItGoes)
{
    startPlayingFirst("A;http://a/\rB;http://b/\r");
    remove({0}, "<REMOVE_RADIO_TO_PLAY>", firstButtonAnswer);
    EXPECT_FALSE(controller.player.isPlay);
    EXPECT_EQ(list(), "B;http://b/\r");
    EXPECT_EQ(database(), Text(list()));
    EXPECT_EQ(popUp.numberOfItems(), 2);
    EXPECT_EQ(listWindow.state().title, "<WIN_EDIT_RADIO_LIST> (1)");
}

TEST_F(StationRemovalTest, AnotherOfTheSameNameCountsAsTheChosenOne)
{
    startPlayingFirst("A;http://a/\rA;http://b/\r");
    remove({1}, "<REMOVE_RADIO_TO_PLAY>", firstButtonAnswer);
    EXPECT_FALSE(controller.player.isPlay);
}

TEST_F(StationRemovalTest, AmongSeveralThePlayingStationGoesWithoutAStop)
{
    startPlayingFirst("A;http://a/\rB;http://b/\rC;http://c/\rD;http://d/\r");
    remove({0, 2}, "<REMOVE_ALL_RADIO_SELECTED>", firstButtonAnswer);
    EXPECT_TRUE(controller.player.isPlay);
    EXPECT_EQ(list(), "B;http://b/\rD;http://d/\r");
    remove({0, 1}, "<REMOVE_ALL_RADIO_SELECTED>", firstButtonAnswer);
    EXPECT_EQ(database(), "");
    EXPECT_EQ(table.selectedRow(), -1);
    EXPECT_FALSE(popUp.state().isEnabled);
}

TEST_F(StationRemovalTest, NoLeavesListAndFileAndRefreshesTheTitle)
{
    startPlayingFirst("A;http://a/\rB;http://b/\r");
    platform.log.clear();
    listWindow.setTitle("old");
    remove({1}, "<REMOVE_RADIO>", secondButtonAnswer);
    EXPECT_EQ(list(), "A;http://a/\rB;http://b/\r");
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(listWindow.state().title, "<WIN_EDIT_RADIO_LIST> (2)");
}

TEST_F(StationRemovalTest, RowsLeftOverFromALongerListAreNotRemoved)
{
    startPlayingFirst("A;http://a/\rB;http://b/\rC;http://c/\r");
    table.selectedByUser({2}, 2);
    keepStations(2);
    controller.stationRemoval.radioRemoveToList();
    EXPECT_EQ(controller.stationList.numberOfStations(), 2U);
    table.selectedByUser({1, 2}, 2);
    platform.alerts.expect("<REMOVE_RADIO>", firstButtonAnswer);
    controller.stationRemoval.radioRemoveToList();
    EXPECT_EQ(list(), "A;http://a/\r");
}

TEST_F(StationRemovalTest, WhatIsSelectedAtTheAnswerGoesAndDecidesAboutTheStop)
{
    const struct {
        IndexSet asked;
        const char* question;
        IndexSet answered;
        const char* left;
        bool isPlaying;
    } cases[] = {
        {{0}, "<REMOVE_RADIO_TO_PLAY>", {0, 1}, "C;http://c/\r", true},
        {{0}, "<REMOVE_RADIO_TO_PLAY>", {2}, "A;http://a/\rB;http://b/\r", false},
        {{0}, "<REMOVE_RADIO_TO_PLAY>", {}, "A;http://a/\rB;http://b/\rC;http://c/\r", false},
        {{0, 1}, "<REMOVE_ALL_RADIO_SELECTED>", {0}, "B;http://b/\rC;http://c/\r", true},
    };
    for (const auto& [asked, question, answered, left, isPlaying] : cases) {
        keepStations(0);
        startPlayingFirst("A;http://a/\rB;http://b/\rC;http://c/\r");
        table.selectedByUser(asked, 0);
        platform.alerts.expect(
            question, firstButtonAnswer, [this, rows = answered] { table.selectedByUser(rows, -1); });
        controls.stationList.radioRemove.pressedByUser();
        EXPECT_EQ(list(), left);
        EXPECT_EQ(controller.player.isPlay, isPlaying) << left;
    }
}

} // namespace
} // namespace sonavel
