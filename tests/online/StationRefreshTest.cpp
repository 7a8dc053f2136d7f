#include "online/WebRequests.h"
#include "support/ControllerTest.h"

#include <algorithm>

namespace sonavel {
namespace {

class StationRefreshTest : public ControllerTest {
protected:
    StationRefresh& refresh = controller.stationRefresh;
    std::optional<Moment>& lastRefresh = controller.preferences.PREF_DATE_UPDATE_LAST_DATACHECK;
    std::optional<Moment>& serverChange = controller.serverDates.DATE_UPDATED_DATA;

    [[nodiscard]] std::ptrdiff_t databaseWrites() const
    {
        return std::count(
            platform.log.begin(), platform.log.end(), "write " + platform.files.inPreferences("radiolist.rdb"));
    }
};

TEST_F(StationRefreshTest, NewStationsAndAddressesAreMergedSortedAndStored)
{
    publishOnline("radio;link\rBeta;http://b2/\rZeta;http://z/\ralpha;http://a2/\r");
    startWithStations("Alpha;http://a/\rBeta;http://b/\r");
    refresh.chekNewRadioOnLine();
    EXPECT_EQ(list(), "Alpha;http://a/\rBeta;http://b2/\rZeta;http://z/\ralpha;http://a2/\r");
    EXPECT_EQ(database(), Text(list()));
    EXPECT_EQ(controller.stationList.listRadio()->at(2)->idRadio(), 2U);
    EXPECT_EQ(popUp.numberOfItems(), 3);

    refresh.chekNewRadioOnLine();
    EXPECT_EQ(databaseWrites(), 1);
}

TEST_F(StationRefreshTest, EveryAttemptIsStampedBeforeItsRequestWhateverComesOfIt)
{
    startWithStations("Alpha;http://a/\r");
    const std::string beforeTheRequest = "store preferences";
    for (const char* body : {"no answer", "", "not Base64 of anything", "\xFF\xFE", "<html>404</html>"}) {
        if (std::string_view(body) != "no answer")
            platform.httpClient.answers[onlineListAddress] = body;
        lastRefresh.reset();
        platform.log.clear();
        refresh.chekNewRadioOnLine();
        EXPECT_EQ(
            platform.log, (std::vector<std::string>{beforeTheRequest, "request " + std::string(onlineListAddress)}));
        EXPECT_EQ(lastRefresh, platform.clock.now());
        EXPECT_EQ(storedPreferences().at("lastUpdateDataCheck"), Text("2016-10-05 12:00:00 +0000"));
        EXPECT_EQ(list(), "Alpha;http://a/\r");
    }
    for (const char* text : {"", "radio;link\r", "-;x\rno field\r;\r"}) {
        publishOnline(text);
        refresh.chekNewRadioOnLine();
        EXPECT_EQ(databaseWrites(), 0) << text;
    }
}

TEST_F(StationRefreshTest, AListThatIsNotLoadedIsLeftAlone)
{
    putDatabase("Mine;http://mine/\r");
    publishOnline("Theirs;http://theirs/\r");
    refresh.chekNewRadioOnLine();
    EXPECT_TRUE(platform.log.empty());
    EXPECT_FALSE(lastRefresh);
    EXPECT_EQ(controller.stationList.listRadio(), nullptr);
}

TEST_F(StationRefreshTest, IsDueWhenTheServersListIsNewerThanTheLastRefresh)
{
    const Moment moment = platform.clock.now();
    EXPECT_FALSE(refresh.isDue());
    lastRefresh = moment;
    EXPECT_FALSE(refresh.isDue());
    serverChange = moment;
    EXPECT_FALSE(refresh.isDue());
    serverChange = moment.advancedBySeconds(1);
    EXPECT_TRUE(refresh.isDue());
    lastRefresh.reset();
    EXPECT_TRUE(refresh.isDue());
}

TEST_F(StationRefreshTest, TheProbeIsBoundedAndTakesAnyAnswer)
{
    platform.httpClient.answers["http://probe.example/"] = "<html>500</html>";
    EXPECT_TRUE(hasInternetWithSite(platform.httpClient, "http://probe.example/"));
    EXPECT_FALSE(hasInternetWithSite(platform.httpClient, "http://nowhere.example/a b"));
    const HttpRequest& request = platform.httpClient.requests.back();
    EXPECT_EQ(request.address, Text("http://nowhere.example/a b"));
    EXPECT_EQ(request.timeout, std::chrono::seconds(5));
    EXPECT_EQ(request.cachePolicy, HttpRequest::CachePolicy::ReloadIgnoringLocalCache);
}

TEST(RequestAddress, IsEscapedOnlyWhereItMustBe)
{
    EXPECT_EQ(percentEscaped("http://[::1]:80/a%20b?c=d&e#f"), Text("http://[::1]:80/a%20b?c=d&e#f"));
    EXPECT_EQ(percentEscaped("http://h/a b\"ü\r\n"), Text("http://h/a%20b%22%C3%BC%0D%0A"));
}

} // namespace
} // namespace sonavel
