#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class StationLoadingTest : public ControllerTest {
protected:
    MemoryFiles& files = platform.files;
    const std::string legacy = files.inPreferences("radiolist.csv");
    const std::string databasePath = files.inPreferences("radiolist.rdb");

    /// The check for a newer version at the start hears that the list changed at that moment.
    void publishDateOfList()
    {
        platform.httpClient.answers["http://data.example/app_data_files/testpost.php"] =
            "1;Sonavel\r2;1.0.0\r3;1\r4;\r5;\r6;\r7;\r8;" + internationalForm(platform.clock.now()).string();
    }

    [[nodiscard]] long requestsForList() const
    {
        return std::count(platform.log.begin(), platform.log.end(), "request " + std::string(onlineListAddress));
    }
};

TEST_F(StationLoadingTest, ALegacyFileMovesIntoTheDatabase)
{
    putDatabase("Old;http://old/\r");
    files.files[legacy] = "\xEF\xBB\xBFradio;link\rBeta;http://b/\rAlpha;http://a/\r";
    start();
    EXPECT_EQ(list(), "Alpha;http://a/\rBeta;http://b/\r");
    EXPECT_EQ(database(), Text(list()));
    EXPECT_FALSE(files.fileExists(legacy));
    EXPECT_EQ(requestsForList(), 0);
}

TEST_F(StationLoadingTest, AnUnreadableLegacyFileIsSetAsideAndTheDatabaseRead)
{
    putDatabase("Mine;http://mine/\r");
    files.files[legacy] = "Alpha;\xFF\r";
    start();
    EXPECT_EQ(list(), "Mine;http://mine/\r");
    EXPECT_FALSE(files.fileExists(legacy));
    EXPECT_EQ(files.files.at(files.inPreferences("radiolist.damaged.csv")), "Alpha;\xFF\r");
}

TEST_F(StationLoadingTest, ADueRefreshLeavesTheUsersStationsWhereTheyAre)
{
    putDatabase("Mine;http://mine/\rZulu;http://z/\r");
    publishOnline("Theirs;http://theirs/\r");
    publishDateOfList();
    start();
    EXPECT_EQ(list(), "Mine;http://mine/\rTheirs;http://theirs/\rZulu;http://z/\r");
    EXPECT_EQ(database(), Text(list()));
}

TEST_F(StationLoadingTest, ARefreshForAnEmptyListIsNotMadeTwice)
{
    publishDateOfList();
    start();
    EXPECT_EQ(requestsForList(), 1);
}

} // namespace
} // namespace sonavel
