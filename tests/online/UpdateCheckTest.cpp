// Checks for a newer version, at the start and on demand.
#include "support/ControllerTest.h"

#include <limits>

namespace sonavel {
namespace {

class UpdateCheckTest : public ControllerTest {
protected:
    static constexpr const char* versionAddress = "http://data.example/app_data_files/testpost.php";

    void publishVersion(const std::string& version, const std::string& page = "http://page/",
        const std::string& listChanged = "2016-01-01 00:00:00 +0000")
    {
        platform.httpClient.answers[versionAddress] = "n;Sonavel\rv;" + version + "\rb;5\ra;x\rp;" + page
            + "\rn;one\\ntwo\rd;2016-10-01 00:00:00 +0000\rl;" + listChanged + "\r";
    }

    /// As on the day after a check that also refreshed the list.
    void startOnTheNextDay()
    {
        putPreferences({{"lastUpdateAppCheck", "2016-10-04 10:00:00 +0000"},
            {"lastUpdateDataCheck", "2016-10-04 10:00:00 +0000"}});
        startWithStations("A;http://a/\rB;http://b/\r");
    }

    void checkOnDemand()
    {
        actions.validateItems();
        controls.menu.menuCheckUpdates.chosenByUser();
    }

    [[nodiscard]] AppUpdater& updater() const { return *controller.updateCheck.updaterApp; }
    [[nodiscard]] Text notice() const { return controls.updateNotice.labelUpdateNotification.stringValue(); }

    [[nodiscard]] long requestsForVersion() const
    {
        return std::count(platform.log.begin(), platform.log.end(), "request " + std::string(versionAddress));
    }
};

TEST_F(UpdateCheckTest, TheStartChecksOnTheDayAfterACheckByTheShiftedClock)
{
    const struct {
        const char* lastCheck;
        const char* now;
        bool isDue;
    } cases[] = {
        {"(null)", "2016-10-05 12:00:00 +0000", true},
        {"2016-10-04 12:00:00 +0000", "2016-10-05 23:29:59 +0000", true},
        {"2016-10-04 12:00:00 +0000", "2016-10-05 23:30:00 +0000", false},
        {"2016-10-06 12:00:00 +0000", "2016-10-05 12:00:00 +0000", false},
    };
    for (const auto& [lastCheck, now, isDue] : cases) {
        platform.log.clear();
        platform.clock.set(now);
        putPreferences({{"lastUpdateAppCheck", lastCheck}});
        controller.init();
        EXPECT_EQ(requestsForVersion() == 1, isDue) << lastCheck << " to " << now;
    }
}

TEST_F(UpdateCheckTest, TheMomentIsStoredBeforeTheServerIsAsked)
{
    startOnTheNextDay();
    platform.log.clear();
    checkOnDemand();
    ASSERT_GE(platform.log.size(), 2U);
    EXPECT_EQ(platform.log[0], "store preferences");
    EXPECT_EQ(platform.log[1], "request " + std::string(versionAddress));
    EXPECT_EQ(storedPreferences().at("lastUpdateAppCheck"), "2016-10-05 12:00:00 +0000");
    const HttpRequest& request = platform.httpClient.requests.back();
    EXPECT_EQ(request.method, HttpRequest::Method::Post);
    EXPECT_EQ(request.body, "file=sonavel.ini");
    ASSERT_EQ(request.headers.size(), 1U);
    EXPECT_EQ(request.headers[0].second, "application/x-www-form-urlencoded");
}

TEST_F(UpdateCheckTest, ANewerVersionShowsItsWindowAlsoAtTheStart)
{
    publishVersion("1.3.0");
    startOnTheNextDay();
    EXPECT_TRUE(updater().windowUpdater.isVisible());
    EXPECT_EQ(updater().textFieldLabelUpdateNameApp.stringValue(), "Sonavel <UPD_NEW_UPDATE_AVIABLE>");
    EXPECT_EQ(updater().textFieldLabelUpdateVersionNote.stringValue(), "Sonavel 1.3.0 (5) <UPD_INFO> 1.2.0 (5)");
    EXPECT_EQ(updater().textViewRelaseNote.stringValue(), "- one\n- two\n");
    EXPECT_EQ(controller.serverDates.DATE_UPDATED_APP, momentFromInternationalForm("2016-10-01 00:00:00 +0000"));
    updater().buttonRemind.pressedByUser();
    EXPECT_FALSE(updater().windowUpdater.isVisible());
    EXPECT_TRUE(platform.webBrowser.opened.empty());
}

TEST_F(UpdateCheckTest, NothingNewIsSaidOnDemandAloneWithTheVersionThatTheUserHas)
{
    platform.localizedStrings.texts["UPDATE_NONE"] = "newest, %@.";
    publishVersion("1.1.0");
    startOnTheNextDay();
    EXPECT_FALSE(controls.updateNotice.winUpdateNotification.isVisible());
    checkOnDemand();
    EXPECT_TRUE(controls.updateNotice.winUpdateNotification.isVisible());
    EXPECT_EQ(notice(), "newest, 1.2.0 (5).");
    controls.updateNotice.winUpdateNotification.closeRequestedByUser();
    EXPECT_FALSE(controls.updateNotice.winUpdateNotification.isVisible());
}

TEST_F(UpdateCheckTest, AnUnusableResponseIsReportedAndItsDatesAreForgotten)
{
    publishVersion("1.3.0");
    startOnTheNextDay();
    const std::string unusable[] = {
        "", "<html>;</html>", "a;1\rb;2\rc;3\r", "\xE9;1\r2;2\r3;3\r4;4\r5;5\r6;6\r7;7\r8;8\r"};
    for (const std::string& answer : unusable) {
        platform.httpClient.answers[versionAddress] = answer;
        checkOnDemand();
        EXPECT_EQ(notice(), "<UPDATE_NO_ANSWER>") << answer;
        EXPECT_FALSE(updater().windowUpdater.isVisible()) << "whatever was found before";
        EXPECT_FALSE(controller.serverDates.DATE_UPDATED_APP || controller.serverDates.DATE_UPDATED_DATA);
    }
    platform.httpClient.answers.erase(versionAddress);
    checkOnDemand();
    EXPECT_EQ(notice(), "<UPDATE_NO_ANSWER>");
    publishVersion("1.2.0");
    checkOnDemand();
    EXPECT_TRUE(updater().windowUpdater.isVisible()) << "what was found once in a run stays found";
}

TEST_F(UpdateCheckTest, AFurtherCheckTakesTheFormerWindowAway)
{
    publishVersion("1.3.0");
    startOnTheNextDay();
    checkOnDemand();
    checkOnDemand();
    EXPECT_EQ(platform.interfaces.built, 3);
    EXPECT_EQ(platform.interfaces.present, 1);
    EXPECT_TRUE(updater().windowUpdater.isVisible());

    platform.httpClient.whileAsking = [this] { updater().buttonUpdate.pressedByUser(); };
    checkOnDemand();
    EXPECT_TRUE(updater().windowUpdater.isVisible());
    EXPECT_TRUE(platform.webBrowser.opened.empty()) << "that button went with its window";
}

TEST_F(UpdateCheckTest, OnlyWebAddressesReachTheBrowser)
{
    startOnTheNextDay();
    const std::pair<const char*, bool> pages[] = {{"http://page/x?y=1#z", true}, {"HTTPS://page", true}, {"", false},
        {"file:///etc/passwd", false}, {"javascript:alert(1)", false}, {"http://", false}, {"http:///path", false},
        {"http://page/a b", false}, {" http://page/", false}, {"http://page/\n", false}, {"//page/", false}};
    for (const auto& [page, opens] : pages) {
        platform.webBrowser.opened.clear();
        publishVersion("1.3.0", page);
        checkOnDemand();
        updater().buttonUpdate.pressedByUser();
        EXPECT_EQ(platform.webBrowser.opened.size(), opens ? 1U : 0U) << page;
        EXPECT_FALSE(updater().windowUpdater.isVisible());
    }
}

TEST_F(UpdateCheckTest, ACheckThatBringsStationsShowsThemWhileOnePlaysOn)
{
    startOnTheNextDay();
    publishVersion("1.2.0", "", "2016-10-05 00:00:00 +0000");
    publishOnline("A;http://moved/\rC;http://c/\r");
    popUp.chosenByUser(1);
    controls.main.buttonPlayPause.setEnabled(true);
    controls.main.buttonPlayPause.pressedByUser();
    controls.preferences.winPreferences.beginSheet();
    checkOnDemand();
    EXPECT_EQ(list(), "A;http://moved/\rB;http://b/\rC;http://c/\r");
    EXPECT_EQ(popUp.numberOfItems(), 4);
    EXPECT_EQ(controls.preferences.popupDefaultButtonListRadio.numberOfItems(), 4);
    EXPECT_EQ(table.numberOfRows(), 3);
    EXPECT_EQ(listWindow.state().title, "<WIN_EDIT_RADIO_LIST> (3)");
    EXPECT_TRUE(controller.player.isPlay);
    EXPECT_EQ(controller.player.playRadioLink, "http://a/");
    EXPECT_EQ(platform.streamPlayers.players.size(), 1U) << "the stream goes on";

    popUp.chosenByUser(2);
    checkOnDemand();
    EXPECT_EQ(popUp.indexOfSelectedItem(), 2) << "the list is no newer than the refresh";
}

TEST_F(UpdateCheckTest, AnUnreadableDateOfTheListBringsNoRefresh)
{
    startOnTheNextDay();
    for (const char* date : {"tomorrow", "2016-02-30 00:00:00 +0000", "2016-10-05", "0000-01-01 00:00:00 +0000"}) {
        publishVersion("1.2.0", "", date);
        platform.log.clear();
        checkOnDemand();
        EXPECT_EQ(platform.log.size(), 2U) << date;
    }
    publishVersion("1.2.0", "", "9999-12-31 23:59:59 +0000");
    checkOnDemand();
    EXPECT_EQ(platform.log.back(), "request " + std::string(onlineListAddress));
}

TEST_F(UpdateCheckTest, PlayPressedWhileTheServerIsAskedIsDoneOnceAfterwards)
{
    startOnTheNextDay();
    popUp.chosenByUser(1);
    int presses = 0;
    platform.httpClient.whileAsking = [this, &presses] {
        for (int press = 0; press < presses; ++press) {
            controls.main.buttonPlayPause.setEnabled(true);
            controls.main.buttonPlayPause.pressedByUser();
        }
        EXPECT_FALSE(controller.player.isPlay);
    };
    for (presses = 2; presses <= 3; ++presses) {
        checkOnDemand();
        EXPECT_TRUE(controller.player.isPlay) << presses;
        controls.main.buttonStop.pressedByUser();
    }
    EXPECT_EQ(platform.streamPlayers.players.size(), 2U);
}

bool compare(const Clock& clock, const char* previous, const char* actual, std::int32_t difference)
{
    return dateComparisonWithPreviousDays(clock, momentFromInternationalForm(previous).value(),
        *actual == 0 ? std::nullopt : momentFromInternationalForm(actual), difference);
}

TEST(CalendarDays, ADayOfDifferenceIsTwentyThreeAndAHalfHours)
{
    struct Case {
        const char* previous;
        const char* actual;
        std::int32_t difference;
        bool isEqual;
    };
    SettableClock clock("2016-10-05 12:00:00 +0000");
    for (const Case& each : {Case{"2016-10-04 09:00:00 +0000", "2016-10-05 12:00:00 +0000", 1, true},
             Case{"2016-10-05 08:00:00 +0000", "2016-10-05 12:00:00 +0000", 1, false},
             Case{"2016-10-04 08:00:00 +0000", "2016-10-05 23:29:59 +0000", 1, true},
             Case{"2016-10-05 08:00:00 +0000", "2016-10-05 23:30:00 +0000", 1, true},
             Case{"2016-10-05 00:00:00 +0000", "2016-10-05 23:59:59 +0000", 0, true},
             Case{"2016-10-04 23:59:59 +0000", "2016-10-05 00:00:00 +0000", 0, false},
             Case{"2016-10-04 12:00:00 +0000", "", 1, true},
             Case{"2016-10-06 12:00:00 +0000", "2016-10-05 12:00:00 +0000", -1, true}})
        EXPECT_EQ(compare(clock, each.previous, each.actual, each.difference), each.isEqual)
            << each.previous << " " << each.actual << " " << each.difference;
}

TEST(CalendarDays, DaysAreThoseOfTheUsersZone)
{
    SettableClock clock("2016-10-05 12:00:00 +0000");
    clock.zoneOffset = std::chrono::hours(10);
    EXPECT_TRUE(compare(clock, "2016-10-04 15:00:00 +0000", "2016-10-05 13:00:00 +0000", 0));
    EXPECT_FALSE(compare(clock, "2016-10-05 13:00:00 +0000", "2016-10-05 15:00:00 +0000", 0));
}

TEST(CalendarDays, TheProductWrapsAroundAt32Bits)
{
    const SettableClock clock("2016-10-05 12:00:00 +0000");
    // 25,384 times 84,600 is 2,147,486,400, which wraps to 2,147,480,896 seconds ahead.
    EXPECT_TRUE(compare(clock, "2084-10-23 14:01:36 +0000", "2016-10-05 12:00:00 +0000", 25'384));
    // -2,147,483,648 times 84,600 wraps to nothing ahead.
    EXPECT_TRUE(compare(clock, "2016-10-05 12:00:00 +0000", "", std::numeric_limits<std::int32_t>::min()));
}

} // namespace
} // namespace sonavel
