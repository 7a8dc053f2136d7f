#include "playback/Player.h"

#include "platform/NotificationCenter.h"
#include "support/RecordingStreamPlayers.h"
#include "ui/Controls.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

class PlayerTest : public testing::Test {
protected:
    RecordingStreamPlayers streams;
    NotificationCenter notificationCenter;
    MainControls controls;
    MenuItem menuMute;
    Player player{streams, notificationCenter, controls, menuMute};

    void SetUp() override
    {
        for (Button* button : {&controls.buttonPlayPause, &controls.buttonStop, &controls.buttonMute})
            button->connect({{}, {}, {}, true, false});
        controls.buttonPlayPause.setImage("play.png");
        controls.buttonStop.setEnabled(false);
        controls.buttonMute.setTitle("Mute");
        controls.imageVolume.connect({});
        controls.sliderVolume.connect({0.0, 1.0, 0.5, true});
        menuMute.connect({});
        player.registerForNotifications();
        player.playRadioLink = "http://alpha.example/";
        player.playRadioName = "Alpha";
    }

    void moveSlider(double value)
    {
        controls.sliderVolume.movedByUser(value);
        player.sliderVolume();
    }

    void expectStopped()
    {
        expectState(false, true, "play.png");
        EXPECT_FALSE(controls.buttonStop.state().isEnabled);
        EXPECT_EQ(player.mediaPlayer, nullptr);
    }
    void expectPlaying() { expectState(true, false, "pause.png"); }
    void expectPaused() { expectState(false, false, "play.png"); }

private:
    void expectState(bool isPlay, bool isStop, const Text& image)
    {
        EXPECT_EQ(player.isPlay, isPlay);
        EXPECT_EQ(player.isStop, isStop);
        EXPECT_EQ(controls.buttonPlayPause.state().image, image);
        EXPECT_EQ(controls.buttonStop.state().isEnabled, !isStop);
    }
};

TEST_F(PlayerTest, PlayPauseGoesOnWithTheSamePlayer)
{
    expectStopped();
    player.buttonPlayPause();
    expectPlaying();
    EXPECT_TRUE(streams.last().isPlaying);
    player.buttonPlayPause();
    expectPaused();
    EXPECT_FALSE(streams.last().isPlaying);
    player.buttonPlayPause();
    expectPlaying();
    EXPECT_TRUE(streams.last().isPlaying);
    EXPECT_EQ(streams.players.size(), 1U);
    EXPECT_EQ(streams.last().address, Text("http://alpha.example/"));
    EXPECT_EQ(streams.last().name, Text("Alpha"));
}

TEST_F(PlayerTest, ANewPlayerSoundsAsTheControlsSayBeforeItStarts)
{
    player.buttonMute();
    player.play();
    EXPECT_EQ(streams.last().said, (std::vector<std::string>{"volume", "muted", "play"}));
    EXPECT_EQ(streams.last().volume, 0.5F);
    EXPECT_TRUE(streams.last().isMuted);
    EXPECT_FALSE(controls.sliderVolume.state().isEnabled);
    EXPECT_EQ(controls.buttonMute.state().titleColor, TitleColor::Red);
    EXPECT_EQ(controls.buttonMute.state().title, Text("Mute"));
    EXPECT_TRUE(controls.buttonMute.state().isOn);
    EXPECT_TRUE(menuMute.state().isOn);
    EXPECT_EQ(controls.imageVolume.state().image, Text("muted.png"));

    player.buttonMute();
    EXPECT_FALSE(streams.last().isMuted);
    EXPECT_EQ(streams.last().volume, 0.5F);
    EXPECT_TRUE(controls.sliderVolume.state().isEnabled);
    EXPECT_EQ(controls.buttonMute.state().titleColor, TitleColor::Black);
    EXPECT_FALSE(controls.buttonMute.state().isOn);
    EXPECT_FALSE(menuMute.state().isOn);
    EXPECT_EQ(controls.imageVolume.state().image, Text("volume.png"));
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
    player.buttonStop();
    expectStopped();
    EXPECT_TRUE(streams.last().isGone);
    EXPECT_EQ(player.playerItem->address, Text("http://alpha.example/"));
    player.stop();
    expectStopped();
}

TEST_F(PlayerTest, TheSliderIsHeardAtOnceAndRememberedWhileStopped)
{
    moveSlider(0.25);
    EXPECT_EQ(player.sliderValue, 0.25F);
    player.play();
    EXPECT_EQ(streams.last().volume, 0.25F);
    moveSlider(0.75);
    EXPECT_EQ(streams.last().volume, 0.75F);
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
    notificationCenter.postNotificationName(playbackStalledNotification, player.mediaPlayer.get());
    notificationCenter.postNotificationName(newErrorLogEntryNotification, player.mediaPlayer.get());
    expectPlaying();
    EXPECT_FALSE(streams.last().isGone);
}

} // namespace
} // namespace sonavel
