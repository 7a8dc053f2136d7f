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
        EXPECT_EQ(statusOfEnd([&] { outlets.winSonavel.closeRequestedByUser(); }), 0);
        return storedPreferences();
    }

    /// Another run on what is stored.
    int itemSelectedAtTheNextStart()
    {
        controller.init();
        controller.awakeFromNib();
        return outlets.popupbuttonRadioList.indexOfSelectedItem();
    }
};

TEST_F(PreferencesWindowTest, WhatIsSetIsStoredWithTheNextStoreAndNotBefore)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    platform.log.clear();
    outlets.menuPreferences.chosenByUser();
    EXPECT_TRUE(outlets.winPreferences.state().isSheet);
    outlets.checkBoxDefaultAutoPlay.toggledByUser(true);
    for (const bool isOn : {true, false}) {
        controller.preferencesWindow.setAutoPlayAtStart();
        EXPECT_EQ(outlets.checkBoxDefaultAutoPlayAtStartApp.state().isOn, isOn);
    }
    outlets.popupDefaultButtonListRadio.chosenByUser(2);
    outlets.sliderDefaultVolume.setEnabled(true);
    outlets.sliderDefaultVolume.movedByUser(0.25);
    outlets.winPreferences.closeRequestedByUser();
    EXPECT_FALSE(outlets.winPreferences.isVisible() || outlets.winPreferences.state().isSheet);
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(outlets.sliderVolume.floatValue(), 0.7F) << "what is heard now stays";

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
        outlets.checkBoxDefaultAutoPlay.toggledByUser(true);
        outlets.checkBoxDefaultAutoPlay.toggledByUser(false);
    });
    outlets.winSonavel.closeRequestedByUser();
    EXPECT_EQ(outlets.checkBoxDefaultAutoPlay.state().isOn, controller.preferences.PREF_IS_AUTOPLAY);
}

TEST_F(PreferencesWindowTest, ADefaultStationIsKnownByItsNameAlone)
{
    const struct {
        const char* name;
        const char* list;
        int item;
    } cases[] = {
        {"B", "A;1\rB;2\r", 2},
        {"B", "A;1\rRenamed;2\r", 0},
        {"B", "A;1\r", 0},
        {"B", "B;1\rB;2\r", 1},
        {"<POP_UP_BUTTON_SELECT_RADIO>", "A;1\r", 0},
        {"POP_UP_BUTTON_SELECT_RADIO", "POP_UP_BUTTON_SELECT_RADIO;1\r", 0},
        {"POP_UP_BUTTON_SELECT_RADIO_NULL", "POP_UP_BUTTON_SELECT_RADIO_NULL;1\r", 0},
    };
    start();
    for (const auto& [name, stations, item] : cases) {
        putPreferences({{"defaultStation", name}});
        putDatabase(stations);
        EXPECT_EQ(itemSelectedAtTheNextStart(), item) << name << " in " << stations;
    }
}

TEST_F(PreferencesWindowTest, ThePlaceholderIsNoDefaultStation)
{
    startWithStations("A;http://a/\r");
    outlets.popupDefaultButtonListRadio.chosenByUser(0);
    EXPECT_EQ(quit().at("defaultStation"), "<POP_UP_BUTTON_SELECT_RADIO>");
    EXPECT_EQ(itemSelectedAtTheNextStart(), 0);
}

TEST_F(PreferencesWindowTest, AListThatChangesMeanwhileKeepsTheDefaultThatWasChosen)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    outlets.menuPreferences.chosenByUser();
    outlets.popupDefaultButtonListRadio.chosenByUser(1);
    controller.stationList.listRadio->clear();
    controller.stationSelection.updatePopupListRadioWithListStation();
    EXPECT_EQ(controller.preferences.PREF_DEFAULT_STATION, "A");
    outlets.checkBoxDefaultAutoPlayAtStartApp.toggledByUser(true);
    EXPECT_FALSE(outlets.popupDefaultButtonListRadio.state().isEnabled);
}

TEST_F(PreferencesWindowTest, TheListAloneSaysWhetherADefaultStationCanBeChosen)
{
    start();
    platform.files.files["/one-line.csv"] = "A;http://a/";
    platform.filePanels.choice = "/one-line.csv";
    outlets.radioImport.setEnabled(true);
    outlets.radioImport.pressedByUser();
    ASSERT_EQ(list(), "A;http://a/\r");
    ASSERT_EQ(outlets.popupDefaultButtonListRadio.numberOfItems(), 1);
    outlets.checkBoxDefaultAutoPlayAtStartApp.toggledByUser(true);
    EXPECT_TRUE(outlets.popupDefaultButtonListRadio.state().isEnabled);
}

} // namespace
} // namespace sonavel
