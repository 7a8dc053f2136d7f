#include "model/KVStationWebRadio.h"
#include "support/ControllerTest.h"

namespace sonavel {
namespace {

using StartTest = ControllerTest;
using EndTest = ControllerTest;

TEST_F(StartTest, TheStepsComeInTheirOrder)
{
    controller.init();
    const std::string legacy = platform.files.inPreferences("radiolist.csv");
    EXPECT_EQ(platform.log,
        (std::vector<std::string>{"request http://probe.example/", "load preferences", "store preferences",
            "store preferences", "request http://data.example/app_data_files/testpost.php",
            "read " + platform.files.inPreferences("radiolist.rdb"), "store preferences",
            "request " + std::string(onlineListAddress), "load preferences"}));
    platform.log.clear();

    connectOutlets();
    const auto logWhenShown = [&](auto& outlet, const std::string& name) {
        outlet.connect(outlet.state(), [this, name](const auto&) { platform.log.push_back(name); });
    };
    logWhenShown(popUp, "pop-up");
    logWhenShown(controls.main.winSonavel, "main window");
    logWhenShown(controls.preferences.checkBoxDefaultAutoPlay, "check box");
    logWhenShown(controls.preferences.sliderDefaultVolume, "default volume");
    logWhenShown(table, "table");
    logWhenShown(listWindow, "station list");
    logWhenShown(controls.main.sliderVolume, "volume");
    logWhenShown(controls.main.buttonPlayPause, "play/pause");
    platform.log.clear();
    controller.stationList.setListRadio({std::make_shared<KVStationWebRadio>(1, "A", "http://a/")});
    controller.preferences.PREF_DEFAULT_STATION = "A";
    controller.preferences.PREF_IS_AUTOPLAY_OPEN_APP = true;
    controller.preferences.PREF_IS_AUTOPLAY = true;
    controller.preferences.PREF_WINEDIT_IS_VISIBLE = true;
    controller.awakeFromNib();
    platform.log.emplace_back("returned");
    platform.runLoop.turn();
    EXPECT_EQ(platform.log,
        (std::vector<std::string>{"pop-up", "pop-up", "volume", "station list", "station list", "check box",
            "default volume", "default volume", "volume", "table", "table", "pop-up", "play/pause", "play/pause",
            "returned", "main window"}));
}

TEST_F(StartTest, WithoutANetworkOnlyTheMessageIsShownAndNothingStored)
{
    putDatabase("A;http://a/\r");
    platform.httpClient.answers.clear();
    platform.alerts.expect("<INTERNET_ERROR>", firstButtonAnswer);
    EXPECT_EQ(statusOfEnd([&] { start(); }), 0);
    EXPECT_EQ(platform.log, std::vector<std::string>{"request http://probe.example/"});
    EXPECT_TRUE(platform.alerts.shown.front().buttonTitles.empty());
}

TEST_F(StartTest, TheControlsShowThePreferences)
{
    putPreferences({{"isAutoPlay", "YES"}, {"isVisibleWinEdit", "YES"}, {"defaultVolume", "0.25"}});
    startWithStations("A;http://a/\r");
    EXPECT_TRUE(controls.preferences.checkBoxDefaultAutoPlay.state().isOn);
    EXPECT_FALSE(controls.preferences.checkBoxDefaultAutoPlayAtStartApp.state().isOn);
    EXPECT_TRUE(listWindow.isVisible());
    EXPECT_EQ(controls.main.sliderVolume.floatValue(), 0.25F);
    EXPECT_EQ(controls.preferences.sliderDefaultVolume.state(), (SliderState{0.0, 1.0, 0.25, false}));
    EXPECT_FALSE(table.state().allowsMultipleSelection);
    EXPECT_EQ(controls.main.winSonavel.state().frontRequests, 1U);
}

TEST_F(StartTest, ARefreshAtTheStartStoresThatTheStationListIsHidden)
{
    putPreferences({{"isVisibleWinEdit", "YES"}});
    platform.clock.microsecond = 123'456;
    start();
    EXPECT_FALSE(listWindow.isVisible());
    EXPECT_EQ(controller.preferences.PREF_DATE_UPDATE_LAST_DATACHECK,
        momentFromInternationalForm("2016-10-05 12:00:00 +0000"));
}

TEST_F(StartTest, TheFirstStationOfTheDefaultsNameIsSelectedAndPlayedWhenAskedFor)
{
    putPreferences({{"defaultStation", "Same"}, {"isAutoPlayOpenApp", "YES"}, {"defaultVolume", "0.4"}});
    startWithStations("Other;http://other/\rSame;http://first/\rSame;http://second/\r");
    EXPECT_EQ(popUp.indexOfSelectedItem(), 2);
    EXPECT_EQ(controls.preferences.popupDefaultButtonListRadio.indexOfSelectedItem(), 2);
    EXPECT_TRUE(controls.main.buttonPlayPause.state().isEnabled);
    EXPECT_EQ(platform.streamPlayers.last().address, Text("http://first/"));
    EXPECT_EQ(platform.streamPlayers.last().volume, 0.4F);
}

TEST_F(StartTest, TheDefaultStationIsReadyAndSilentUnlessItIsToPlayAtTheStart)
{
    putPreferences({{"defaultStation", "A"}, {"isAutoPlay", "YES"}, {"isAutoPlayOpenApp", "NO"}});
    startWithStations("A;http://a/\r");
    EXPECT_EQ(popUp.indexOfSelectedItem(), 1);
    EXPECT_EQ(controller.player.playRadioLink, Text("http://a/"));
    EXPECT_TRUE(controls.main.buttonPlayPause.state().isEnabled);
    EXPECT_TRUE(controller.player.isStop);
    EXPECT_TRUE(platform.streamPlayers.players.empty());
}

TEST_F(StartTest, APlayerThatIsThereBeforeTheControlsGetsTheVolume)
{
    putDatabase("A;http://a/\r");
    controller.init();
    controller.player.playRadioLink = "http://a/";
    controller.player.play();
    connectOutlets();
    controller.player.sliderValue = 0.25F;
    controller.awakeFromNib();
    EXPECT_EQ(platform.streamPlayers.last().volume, 0.25F);
}

TEST_F(StartTest, OutletsThatAreNotConnectedAreLeftAlone)
{
    putDatabase("A;http://a/\r");
    putPreferences({{"defaultStation", "A"}, {"isAutoPlayOpenApp", "YES"}});
    controller.init();
    controller.awakeFromNib();
    platform.runLoop.turn();
    EXPECT_EQ(popUp.state(), PopUpButtonState());
    EXPECT_EQ(platform.streamPlayers.last().volume, 0.0F);
}

TEST_F(EndTest, ThePreferencesAreStoredBeforeTheQuestionWhateverTheAnswer)
{
    startWithStations("A;http://a/\r");
    controller.preferences.PREF_DEFAULT_STATION = "A";
    platform.preferenceDomains.stored.clear();
    constexpr const char* question = "<ALLERT_TEXT_MESSAGE_QUIT>";
    const auto expectStored = [&] { EXPECT_EQ(storedPreferences().at("defaultStation"), Text("A")); };
    controls.main.winSonavel.setIsVisible(false);
    platform.alerts.expect(question, secondButtonAnswer, expectStored);
    EXPECT_EQ(statusOfEnd([&] { controls.main.winSonavel.closeRequestedByUser(); }), std::nullopt);
    EXPECT_TRUE(controls.main.winSonavel.isVisible());
    EXPECT_EQ(platform.alerts.shown.front().buttonTitles, (std::vector<Text>{"<BUTTON_YES>", "<BUTTON_NO>"}));

    platform.preferenceDomains.stored.clear();
    platform.alerts.expect(question, firstButtonAnswer, expectStored);
    EXPECT_EQ(statusOfEnd([&] { controller.quitApp(); }), 0);
}

TEST_F(EndTest, ASessionThatEndsKeepsAnOpenCellAndThePreferences)
{
    putPreferences({{"defaultStation", "B"}});
    startWithStations("A;http://a/\r");
    controller.preferences.PREF_DEFAULT_STATION = "A";
    const unsigned before = table.state().endsOfEditing;
    controller.keepWhatIsOpen();
    EXPECT_EQ(table.state().endsOfEditing, before + 1);
    EXPECT_EQ(storedPreferences().at("defaultStation"), Text("A"));
}

} // namespace
} // namespace sonavel
