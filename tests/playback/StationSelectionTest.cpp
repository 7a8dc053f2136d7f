#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class StationSelectionTest : public ControllerTest {
protected:
    Player& player = controller.player;
    StationSelection& selection = controller.stationSelection;

    void startWithThree(bool autoplay)
    {
        putPreferences({{"isAutoPlay", autoplay ? "YES" : "NO"}});
        startWithStations("S1;http://s1/\rS2;http://s2/\rS3;http://s3/\r");
    }

    void expectPlaceholder()
    {
        EXPECT_EQ(popUp.indexOfSelectedItem(), 0);
        EXPECT_TRUE(player.playRadioLink.isAbsent());
        EXPECT_TRUE(player.playRadioName.isAbsent());
        EXPECT_TRUE(player.isStop);
        EXPECT_EQ(player.mediaPlayer, nullptr);
        EXPECT_FALSE(controls.main.buttonPlayPause.state().isEnabled);
    }
};

TEST_F(StationSelectionTest, PopUpsMirrorTheListItemForItemAlsoWithEqualNames)
{
    startWithStations("Same;http://1/\rSame;http://2/\rOther;http://3/\r");
    const std::vector<Text> titles{"<POP_UP_BUTTON_SELECT_RADIO>", "Other", "Same", "Same"};
    for (PopUpButton* each : {&popUp, &controls.preferences.popupDefaultButtonListRadio}) {
        EXPECT_EQ(*each->state().titles, titles);
        EXPECT_TRUE(each->state().isEnabled);
    }
    popUp.chosenByUser(3);
    EXPECT_EQ(player.playRadioLink, Text("http://2/"));
}

TEST_F(StationSelectionTest, WithoutStationsNothingCanBeChosen)
{
    start();
    for (PopUpButton* each : {&popUp, &controls.preferences.popupDefaultButtonListRadio}) {
        EXPECT_EQ(*each->state().titles, std::vector<Text>{"<POP_UP_BUTTON_SELECT_RADIO_NULL>"});
        EXPECT_FALSE(each->state().isEnabled);
    }
    EXPECT_FALSE(controls.main.sliderVolume.state().isEnabled);
    EXPECT_FALSE(controls.main.buttonMute.state().isEnabled);
    for (const bool previous : {true, false}) {
        selection.changeStation(previous);
        expectPlaceholder();
    }
}

TEST_F(StationSelectionTest, ChoosingWithoutAutoPlayStopsAndMakesReady)
{
    startWithThree(false);
    popUp.chosenByUser(1);
    controls.main.buttonPlayPause.pressedByUser();
    popUp.chosenByUser(2);
    EXPECT_TRUE(platform.streamPlayers.last().isGone);
    EXPECT_TRUE(player.isStop);
    EXPECT_TRUE(controls.main.buttonPlayPause.state().isEnabled);
    EXPECT_EQ(controls.main.buttonPlayPause.state().image, Text("play.png"));
    EXPECT_EQ(player.playRadioLink, Text("http://s2/"));
}

TEST_F(StationSelectionTest, ChoosingWithAutoPlayPlaysAtOnceAndThePlaceholderStops)
{
    startWithThree(true);
    popUp.chosenByUser(1);
    popUp.chosenByUser(3);
    EXPECT_EQ(platform.streamPlayers.last().address, Text("http://s3/"));
    EXPECT_TRUE(player.isPlay);
    EXPECT_EQ(controls.main.buttonPlayPause.state().image, Text("pause.png"));
    popUp.chosenByUser(0);
    expectPlaceholder();
}

TEST_F(StationSelectionTest, OfStationsWithOneAddressTheChosenOneGivesTheName)
{
    putPreferences({{"isAutoPlay", "YES"}, {"isAutoPlayOpenApp", "YES"}, {"defaultStation", "S2"}});
    startWithStations("S1;http://s/\rS2;http://s/\rS3;http://s/\r");
    EXPECT_EQ(platform.streamPlayers.last().name, Text("S2")) << "the default station";
    popUp.chosenByUser(3);
    EXPECT_EQ(platform.streamPlayers.last().name, Text("S3"));
    selection.changeStation(true);
    EXPECT_EQ(platform.streamPlayers.last().name, Text("S2"));
}

TEST_F(StationSelectionTest, SteppingWrapsAroundFromEitherEnd)
{
    struct Case {
        int from;
        bool previous;
        int to;
    };
    startWithThree(true);
    for (const auto& [from, previous, to] : {Case{1, false, 2}, {2, false, 3}, {3, false, 1}, {1, true, 3},
             {3, true, 2}, {2, true, 1}, {0, false, 1}, {0, true, 3}, {-1, false, 1}, {-1, true, 3}}) {
        popUp.selectItemAtIndex(from);
        selection.changeStation(previous);
        EXPECT_EQ(popUp.indexOfSelectedItem(), to) << from << previous;
        EXPECT_EQ(platform.streamPlayers.last().address, Text("http://s" + std::to_string(to) + "/"));
        EXPECT_TRUE(player.isPlay);
    }
    keepStations(1);
    selection.updatePopupListRadioWithListStation();
    popUp.chosenByUser(1);
    const std::size_t before = platform.streamPlayers.players.size();
    selection.changeStation(true);
    EXPECT_EQ(popUp.indexOfSelectedItem(), 1);
    EXPECT_EQ(platform.streamPlayers.players.size(), before + 1) << "the only station is started again";
}

TEST_F(StationSelectionTest, SteppingIsStoppedBeforeTheFormerPlayerGoes)
{
    startWithThree(false);
    popUp.chosenByUser(1);
    player.play();
    platform.streamPlayers.last().whenGone = [&] {
        EXPECT_TRUE(player.isStop);
        EXPECT_FALSE(player.isPlay);
        EXPECT_EQ(player.playRadioLink, Text("http://s2/"));
    };
    selection.changeStation(false);
    EXPECT_TRUE(platform.streamPlayers.last().isGone);
}

TEST_F(StationSelectionTest, ItemsBeyondThePresentListStandForNoStation)
{
    startWithThree(true);
    keepStations(1);
    popUp.chosenByUser(3);
    EXPECT_TRUE(player.playRadioLink.isAbsent());
    EXPECT_TRUE(player.isStop);
    EXPECT_FALSE(controls.main.buttonPlayPause.state().isEnabled);
    selection.changeStation(true);
    EXPECT_EQ(player.playRadioLink, Text("http://s1/"));
    keepStations(0);
    selection.changeStation(false);
    expectPlaceholder();
}

TEST_F(StationSelectionTest, ARefillShowsThePlaceholderEnablesTheSliderAndLetsTheStreamGoOn)
{
    startWithThree(true);
    popUp.chosenByUser(2);
    controls.main.buttonMute.pressedByUser();
    selection.updatePopupListRadioWithListStation();
    EXPECT_EQ(popUp.indexOfSelectedItem(), 0);
    EXPECT_TRUE(controls.main.sliderVolume.state().isEnabled);
    EXPECT_TRUE(player.isPlay);
    EXPECT_FALSE(platform.streamPlayers.last().isGone);
    EXPECT_EQ(player.playRadioLink, Text("http://s2/"));
}

} // namespace
} // namespace sonavel
