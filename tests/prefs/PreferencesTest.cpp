#include "support/ControllerTest.h"

#include <cmath>

namespace sonavel {
namespace {

using PreferencesTest = ControllerTest;

TEST_F(PreferencesTest, AFirstRunStoresTheStartValues)
{
    startWithStations("A;http://a/\r");
    const PreferenceDomain expected{{"appVersion", "1.2.0"}, {"appBuild", "5"}, {"isAutoPlay", "NO"},
        {"isAutoPlayOpenApp", "NO"}, {"isVisibleWinEdit", "NO"}, {"defaultStation", "POP_UP_BUTTON_SELECT_RADIO"},
        {"defaultVolume", "0.700000"}, {"enableMultipleSelection", "YES"}, {"maxLenghtRadioName", "60"},
        {"setTimeOutLimit", "30.000000"}, {"lastUpdateAppCheck", "2016-10-05 12:00:00 +0000"},
        {"lastUpdateDataCheck", "(null)"}};
    EXPECT_EQ(storedPreferences(), expected);
    EXPECT_EQ(controller.preferences.PREF_MAX_NUMBER_RADIO, 1'000'000);
}

TEST_F(PreferencesTest, WhatIsStoredReadsBackTheSame)
{
    const PreferenceDomain stored{{"appVersion", "1.2.0"}, {"appBuild", "5"}, {"isAutoPlay", "YES"},
        {"isAutoPlayOpenApp", "YES"}, {"isVisibleWinEdit", "NO"}, {"defaultStation", "Zürich; 1"},
        {"defaultVolume", "0.500000"}, {"enableMultipleSelection", "NO"}, {"maxLenghtRadioName", "-5"},
        {"setTimeOutLimit", "12.250000"}, {"lastUpdateAppCheck", "2016-10-01 00:00:00 +0000"},
        {"lastUpdateDataCheck", "2016-09-30 23:59:59 +0000"}};
    putPreferences(stored);
    controller.preferences.loadingPreference();
    putPreferences({});
    controller.preferences.updatePreference();
    EXPECT_EQ(storedPreferences(), stored);
}

TEST_F(PreferencesTest, MissingKeysBecomeNoZeroOrAbsentAndDoNotKeepTheOthersFromBeingStored)
{
    putPreferences({{"isAutoPlay", "YES"}});
    Preferences& preferences = controller.preferences;
    preferences.setStartValues();
    preferences.loadingPreference();
    EXPECT_TRUE(preferences.PREF_DEFAULT_STATION.isAbsent());
    EXPECT_EQ(preferences.PREF_MAX_NAME_RADIO_LENGHT, 0);
    EXPECT_EQ(preferences.PREF_DEFAULT_VOLUME, 0.0F);
    EXPECT_FALSE(preferences.PREF_ENABLE_MULTIPLE_SELECTION);
    preferences.updatePreference();
    EXPECT_EQ(storedPreferences().at("defaultStation"), Text("POP_UP_BUTTON_SELECT_RADIO"));
    EXPECT_EQ(storedPreferences().at("isAutoPlay"), Text("YES"));
}

TEST_F(PreferencesTest, HugeAndOddValuesAreHarmless)
{
    for (const char* volume : {"1e400", "-1e400", "nan", "-inf", "1e39", "3.5e38", "-7", "99", "x"}) {
        putPreferences({{"defaultVolume", volume}, {"maxLenghtRadioName", "99999999999999999999"},
            {"setTimeOutLimit", volume}, {"lastUpdateDataCheck", "99999-99-99 99:99:99 +9999"}});
        putDatabase("A;http://a/\r");
        start();
        EXPECT_GE(controls.main.sliderVolume.floatValue(), 0.0F) << volume;
        EXPECT_LE(controls.main.sliderVolume.floatValue(), 1.0F) << volume;
        EXPECT_TRUE(std::isfinite(controller.preferences.PREF_DEFAULT_VOLUME)) << volume;
        EXPECT_FALSE(controller.preferences.PREF_DATE_UPDATE_LAST_DATACHECK);
        controller.preferences.updatePreference();
    }
}

TEST_F(PreferencesTest, EveryWriteTakesOverWhetherTheStationListIsVisible)
{
    startWithStations("A;http://a/\r");
    listWindow.setIsVisible(true);
    controller.preferences.updatePreference();
    EXPECT_EQ(storedPreferences().at("isVisibleWinEdit"), Text("YES"));
}

} // namespace
} // namespace sonavel
