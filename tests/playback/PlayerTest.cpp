#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class PlayerTest : public ControllerTest {
protected:
    void SetUp() override
    {
        putPreferences({{"defaultVolume", "0.5"}});
        startWithStations("Alpha;http://alpha.example/\rBeta;http://beta.example/\r");
        outlets.popupbuttonRadioList.chosenByUser(1);
    }

    Player& player = controller.player;
    RecordingStreamPlayers& streams = platform.streamPlayers;

    void expectStopped()
    {
        expectState(false, true, "play.png");
        EXPECT_FALSE(outlets.buttonStop.state().isEnabled);
        EXPECT_EQ(player.mediaPlayer, nullptr);
    }
    void expectPlaying() { expectState(true, false, "pause.png"); }
    void expectPaused() { expectState(false, false, "play.png"); }

private:
    void expectState(bool isPlay, bool isStop, const Text& image)
    {
        EXPECT_EQ(player.isPlay, isPlay);
        EXPECT_EQ(player.isStop, isStop);
        EXPECT_EQ(outlets.buttonPlayPause.state().image, image);
        EXPECT_EQ(outlets.buttonStop.state().isEnabled, !isStop);
    }
};

TEST_F(PlayerTest, PlayPauseGoesOnWithTheSamePlayer)
{
    expectStopped();
    outlets.buttonPlayPause.pressedByUser();
    expectPlaying();
    EXPECT_TRUE(streams.last().isPlaying);
    outlets.buttonPlayPause.pressedByUser();
    expectPaused();
    EXPECT_FALSE(streams.last().isPlaying);
    outlets.buttonPlayPause.pressedByUser();
    expectPlaying();
    EXPECT_TRUE(streams.last().isPlaying);
    EXPECT_EQ(streams.players.size(), 1U);
    EXPECT_EQ(streams.last().address, Text("http://alpha.example/"));
    EXPECT_EQ(streams.last().name, Text("Alpha"));
}

TEST_F(PlayerTest, ANewPlayerSoundsAsTheControlsSayBeforeItStarts)
{
    outlets.imageVolume.connect({});
    outlets.menuMute.connect({});
    outlets.buttonMute.pressedByUser();
    player.play();
    EXPECT_EQ(streams.last().said, (std::vector<std::string>{"volume", "muted", "play"}));
    EXPECT_EQ(streams.last().volume, 0.5F);
    EXPECT_TRUE(streams.last().isMuted);
    EXPECT_FALSE(outlets.sliderVolume.state().isEnabled);
    EXPECT_EQ(outlets.buttonMute.state().titleColor, TitleColor::Red);
    EXPECT_EQ(outlets.buttonMute.state().title, Text("Mute"));
    EXPECT_TRUE(outlets.buttonMute.state().isOn);
    EXPECT_TRUE(outlets.menuMute.state().isOn);
    EXPECT_EQ(outlets.imageVolume.state().image, Text("muted.png"));

    outlets.buttonMute.pressedByUser();
    EXPECT_FALSE(streams.last().isMuted);
    EXPECT_EQ(streams.last().volume, 0.5F);
    EXPECT_TRUE(outlets.sliderVolume.state().isEnabled);
    EXPECT_EQ(outlets.buttonMute.state().titleColor, TitleColor::Black);
    EXPECT_FALSE(outlets.buttonMute.state().isOn);
    EXPECT_FALSE(outlets.menuMute.state().isOn);
    EXPECT_EQ(outlets.imageVolume.state().image, Text("volume.png"));
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
    outlets.buttonStop.pressedByUser();
    expectStopped();
    EXPECT_TRUE(streams.last().isGone);
    EXPECT_EQ(player.playerItem->address, Text("http://alpha.example/"));
    player.stop();
    expectStopped();
}

TEST_F(PlayerTest, TheSliderIsHeardAtOnceAndRememberedWhileStopped)
{
    outlets.sliderVolume.movedByUser(0.25);
    EXPECT_EQ(player.sliderValue, 0.25F);
    player.play();
    EXPECT_EQ(streams.last().volume, 0.25F);
    outlets.sliderVolume.movedByUser(0.75);
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
