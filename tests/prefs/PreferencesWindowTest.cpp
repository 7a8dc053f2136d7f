// The preferences as the user sets them.
#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class PreferencesWindowTest : public ControllerTest {
protected:
    /// Quits after a Yes, and gives what was stored.
    PreferenceDomain quit()
    {
        platform.alerts.expect("<ALLERT_TEXT_MESSAGE_QUIT>", firstButtonAnswer);
        EXPECT_EQ(statusOfEnd([&] { controls.main.winSonavel.closeRequestedByUser(); }), 0);
        return storedPreferences();
    }

    /// Another run on what is stored.
    int itemSelectedAtTheNextStart()
    {
        controller.init();
        controller.awakeFromNib();
        return popUp.indexOfSelectedItem();
    }
};

TEST_F(PreferencesWindowTest, WhatIsSetIsStoredWithTheNextStoreAndNotBefore)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    platform.log.clear();
    controls.menu.menuPreferences.chosenByUser();
    EXPECT_TRUE(controls.preferences.winPreferences.state().isSheet);
    controls.preferences.checkBoxDefaultAutoPlay.toggledByUser(true);
    for (const bool isOn : {true, false}) {
        controller.preferencesWindow.setAutoPlayAtStart();
        EXPECT_EQ(controls.preferences.checkBoxDefaultAutoPlayAtStartApp.state().isOn, isOn);
    }
    controls.preferences.popupDefaultButtonListRadio.chosenByUser(2);
    controls.preferences.sliderDefaultVolume.setEnabled(true);
    controls.preferences.sliderDefaultVolume.movedByUser(0.25);
    controls.preferences.winPreferences.closeRequestedByUser();
    EXPECT_FALSE(
        controls.preferences.winPreferences.isVisible() || controls.preferences.winPreferences.state().isSheet);
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(controls.main.sliderVolume.floatValue(), 0.7F) << "what is heard now stays";

    const PreferenceDomain stored = quit();
    EXPECT_EQ(stored.at("isAutoPlay"), "YES");
    EXPECT_EQ(stored.at("isAutoPlayOpenApp"), "NO");
    EXPECT_EQ(stored.at("defaultStation"), "B");
    EXPECT_EQ(stored.at("defaultVolume"), "0.250000");
    EXPECT_EQ(itemSelectedAtTheNextStart(), 2);
}

TEST_F(PreferencesWindowTest, ABoxThatIsToggledTwiceWhileAQuestionIsOpenShowsWhatHolds)
{
    startWithStations("A;http://a/\r");
    platform.alerts.expect("<ALLERT_TEXT_MESSAGE_QUIT>", secondButtonAnswer, [this] {
        controls.preferences.checkBoxDefaultAutoPlay.toggledByUser(true);
        controls.preferences.checkBoxDefaultAutoPlay.toggledByUser(false);
    });
    controls.main.winSonavel.closeRequestedByUser();
    EXPECT_EQ(controls.preferences.checkBoxDefaultAutoPlay.state().isOn, controller.preferences.PREF_IS_AUTOPLAY);
}

TEST_F(PreferencesWindowTest, ADefaultStationIsKnownByItsNameAlone)
{
    const struct {
        const char* name;
        const char* list;
        int item;
    } cases[] = {
        {"B", "A;http://a/\rB;http://b/\r", 2},
        {"B", "A;1\rRenamed;2\r", 0},
        {"B", "A;1\r", 0},
        {"", "A;1\r", 0},
        {"B", "B;http://a/\rB;http://b/\r", 1},
        {"<POP_UP_BUTTON_SELECT_RADIO>", "A;1\r", 0},
        {"POP_UP_BUTTON_SELECT_RADIO", "POP_UP_BUTTON_SELECT_RADIO;1\r", 0},
        {"POP_UP_BUTTON_SELECT_RADIO_NULL", "POP_UP_BUTTON_SELECT_RADIO_NULL;1\r", 0},
    };
    start();
    for (const auto& [name, stations, item] : cases) {
        putPreferences({{"defaultStation", name}, {"isAutoPlayOpenApp", "YES"}});
        putDatabase(stations);
        platform.streamPlayers.players.clear();
        EXPECT_EQ(itemSelectedAtTheNextStart(), item) << name << " in " << stations;
        EXPECT_EQ(platform.streamPlayers.players.empty(), item == 0) << name;
    }
}

TEST_F(PreferencesWindowTest, ThePlaceholderIsNoDefaultStation)
{
    startWithStations("A;http://a/\r");
    controls.preferences.popupDefaultButtonListRadio.chosenByUser(0);
    EXPECT_EQ(quit().at("defaultStation"), "<POP_UP_BUTTON_SELECT_RADIO>");
    EXPECT_EQ(itemSelectedAtTheNextStart(), 0);
}

TEST_F(PreferencesWindowTest, AListThatChangesMeanwhileKeepsTheDefaultThatWasChosen)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    controls.menu.menuPreferences.chosenByUser();
    controls.preferences.popupDefaultButtonListRadio.chosenByUser(1);
    keepStations(0);
    controller.stationSelection.updatePopupListRadioWithListStation();
    EXPECT_EQ(controller.preferences.PREF_DEFAULT_STATION, "A");
    controls.preferences.checkBoxDefaultAutoPlayAtStartApp.toggledByUser(true);
    EXPECT_FALSE(controls.preferences.popupDefaultButtonListRadio.state().isEnabled);
}

TEST_F(PreferencesWindowTest, TheListAloneSaysWhetherADefaultStationCanBeChosen)
{
    start();
    platform.files.files["/one-line.csv"] = "A;http://a/";
    platform.filePanels.choice = "/one-line.csv";
    controls.stationList.radioImport.setEnabled(true);
    controls.stationList.radioImport.pressedByUser();
    ASSERT_EQ(list(), "A;http://a/\r");
    ASSERT_EQ(controls.preferences.popupDefaultButtonListRadio.numberOfItems(), 1);
    controls.preferences.checkBoxDefaultAutoPlayAtStartApp.toggledByUser(true);
    EXPECT_TRUE(controls.preferences.popupDefaultButtonListRadio.state().isEnabled);
}

} // namespace
} // namespace sonavel
