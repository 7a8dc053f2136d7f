#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class PlayerTest : public ControllerTest {
protected:
    void SetUp() override
    {
        putPreferences({{"defaultVolume", "0.5"}});
        startWithStations("Alpha;http://alpha.example/\rBeta;http://beta.example/\r");
        controls.main.popupbuttonRadioList.chosenByUser(1);
    }

    Player& player = controller.player;
    RecordingStreamPlayers& streams = platform.streamPlayers;

    void expectStopped()
    {
        expectState(false, true, "play.png");
        EXPECT_FALSE(controls.main.buttonStop.state().isEnabled);
        EXPECT_EQ(player.mediaPlayer, nullptr);
    }
    void expectPlaying() { expectState(true, false, "pause.png"); }
    void expectPaused() { expectState(false, false, "play.png"); }

private:
    void expectState(bool isPlay, bool isStop, const Text& image)
    {
        EXPECT_EQ(player.isPlay, isPlay);
        EXPECT_EQ(player.isStop, isStop);
        EXPECT_EQ(controls.main.buttonPlayPause.state().image, image);
        EXPECT_EQ(controls.main.buttonStop.state().isEnabled, !isStop);
    }
};

TEST_F(PlayerTest, PlayPauseGoesOnWithTheSamePlayer)
{
    expectStopped();
    controls.main.buttonPlayPause.pressedByUser();
    expectPlaying();
    EXPECT_TRUE(streams.last().isPlaying);
    controls.main.buttonPlayPause.pressedByUser();
    expectPaused();
    EXPECT_FALSE(streams.last().isPlaying);
    controls.main.buttonPlayPause.pressedByUser();
    expectPlaying();
    EXPECT_TRUE(streams.last().isPlaying);
    EXPECT_EQ(streams.players.size(), 1U);
    EXPECT_EQ(streams.last().address, Text("http://alpha.example/"));
    EXPECT_EQ(streams.last().name, Text("Alpha"));
}

TEST_F(PlayerTest, ANewPlayerSoundsAsTheControlsSayBeforeItStarts)
{
    controls.main.imageVolume.connect({});
    controls.menu.menuMute.connect({});
    controls.main.buttonMute.pressedByUser();
    player.play();
    EXPECT_EQ(streams.last().said, (std::vector<std::string>{"volume", "muted", "play"}));
    EXPECT_EQ(streams.last().volume, 0.5F);
    EXPECT_TRUE(streams.last().isMuted);
    EXPECT_FALSE(controls.main.sliderVolume.state().isEnabled);
    EXPECT_EQ(controls.main.buttonMute.state().titleColor, TitleColor::Red);
    EXPECT_EQ(controls.main.buttonMute.state().title, Text("Mute"));
    EXPECT_TRUE(controls.main.buttonMute.state().isOn);
    EXPECT_TRUE(controls.menu.menuMute.state().isOn);
    EXPECT_EQ(controls.main.imageVolume.state().image, Text("muted.png"));

    controls.main.buttonMute.pressedByUser();
    EXPECT_FALSE(streams.last().isMuted);
    EXPECT_EQ(streams.last().volume, 0.5F);
    EXPECT_TRUE(controls.main.sliderVolume.state().isEnabled);
    EXPECT_EQ(controls.main.buttonMute.state().titleColor, TitleColor::Black);
    EXPECT_FALSE(controls.main.buttonMute.state().isOn);
    EXPECT_FALSE(controls.menu.menuMute.state().isOn);
    EXPECT_EQ(controls.main.imageVolume.state().image, Text("volume.png"));
}

TEST_F(PlayerTest, PlayWhilePlayingSilencesTheFormerPlayer)
{
    player.play();
    player.playRadioLink = "http://beta.example/";
    player.playRadioName = "Beta";
    player.playIntoBackgroundProcess();
    ASSERT_EQ(streams.players.size(), 2U);
    EXPECT_TRUE(streams.players.front()->isGone);
    EXPECT_FALSE(streams.last().isGone);
    EXPECT_EQ(streams.last().address, Text("http://beta.example/"));
    EXPECT_EQ(streams.last().name, Text("Beta"));
    expectPlaying();
}

TEST_F(PlayerTest, AStreamIsNamedAsTheChosenStationOrByItsHost)
{
    for (const Text& name : {Text("Second"), Text(""), Text()}) {
        player.playRadioName = name;
        player.play();
        EXPECT_EQ(streams.last().name, name == Text("Second") ? name : Text("alpha.example"));
    }
}

TEST_F(PlayerTest, StopSilencesAndKeepsTheItem)
{
    player.play();
    player.pause();
    controls.main.buttonStop.pressedByUser();
    expectStopped();
    EXPECT_TRUE(streams.last().isGone);
    EXPECT_EQ(player.playerItem->address, Text("http://alpha.example/"));
    player.stop();
    expectStopped();
}

TEST_F(PlayerTest, TheSliderIsHeardAtOnceAndRememberedWhileStopped)
{
    controls.main.sliderVolume.movedByUser(0.25);
    EXPECT_EQ(player.sliderValue, 0.25F);
    player.play();
    EXPECT_EQ(streams.last().volume, 0.25F);
    controls.main.sliderVolume.movedByUser(0.75);
    EXPECT_EQ(streams.last().volume, 0.75F);
    EXPECT_EQ(controller.preferences.PREF_DEFAULT_VOLUME, 0.5F);
}

TEST_F(PlayerTest, AnUnusableAddressSilencesThePlayerAndLoadsNothing)
{
    for (const Text& link : {Text(), Text(""), Text("no address"), Text("file:///etc/passwd")}) {
        player.playRadioLink = "http://alpha.example/";
        player.play();
        const std::size_t made = streams.players.size();
        player.playRadioLink = link;
        player.play();
        expectStopped();
        EXPECT_EQ(streams.players.size(), made) << link.view();
        EXPECT_TRUE(streams.last().isGone);
    }
}

TEST_F(PlayerTest, AStreamThatFailsChangesNothing)
{
    player.play();
    platform.notificationCenter.postNotificationName(playbackStalledNotification, player.mediaPlayer.get());
    platform.notificationCenter.postNotificationName(newErrorLogEntryNotification, player.mediaPlayer.get());
    expectPlaying();
    EXPECT_FALSE(streams.last().isGone);
}

} // namespace
} // namespace sonavel
