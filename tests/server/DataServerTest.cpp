#include "server/DataServer.h"

#include "base/Moment.h"
#include "model/KVStationWebRadio.h"
#include "model/NameOrder.h"
#include "model/StationListText.h"
#include "model/StreamAddress.h"
#include "online/VersionRecord.h"
#include "online/WebRequests.h"
#include "platform/Bundle.h"
#include "server/Stations.h"
#include "storage/StationListCodec.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <httplib.h>

#include <algorithm>

namespace sonavel {
namespace {

class DataServerTest : public testing::Test {
protected:
    void start(const DataServerSettings& settings)
    {
        server_ = DataServer::create(settings).value();
        std::string host = server_->baseAddress().string();
        host.pop_back();
        client_ = std::make_unique<httplib::Client>(host);
    }

    static DataServerSettings settings(const std::string& folder = {})
    {
        DataServerSettings settings;
        settings.folder = folder;
        settings.version = std::string("3.4.5");
        settings.build = std::string("12");
        return settings;
    }

    [[nodiscard]] std::string get(const std::string& query, int expectedStatus = 200)
    {
        const auto response = client_->Get(("/app_data_files/testget.php" + query).c_str());
        EXPECT_TRUE(response) << query;
        EXPECT_EQ(response ? response->status : 0, expectedStatus) << query;
        return response ? response->body : "";
    }

    std::unique_ptr<DataServer> server_;
    std::unique_ptr<httplib::Client> client_;
};

TEST_F(DataServerTest, TheStarterListArrivesAsThePlayerReadsIt)
{
    start(settings());
    const StationRecords records = recordsFromListText(decodeStationList(get("?file=20161001000000_lr.rdb")));
    ASSERT_EQ(records.size(), starterStations().size());
    EXPECT_GE(records.size(), 25U);
    std::vector<std::string_view> names;
    for (std::size_t i = 0; i < records.size(); ++i) {
        names.push_back(records[i]->radio().view());
        EXPECT_EQ(records[i]->radio(), Text(starterStations()[i].name));
        EXPECT_FALSE(usableStreamAddress(records[i]->link()).isAbsent()) << records[i]->link().view();
    }
    const std::vector<std::size_t> order = orderOfNames(names);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

TEST_F(DataServerTest, TheVersionResponseArrivesAsThePlayerReadsIt)
{
    start(settings());
    const auto response =
        client_->Post("/app_data_files/testpost.php", "file=sonavel.ini", "application/x-www-form-urlencoded");
    ASSERT_TRUE(response);
    const auto record = serverVersionRecord(response->body);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->AppName, "Sonavel");
    EXPECT_EQ(versionText(*record), "3.4.5 (12)");
    EXPECT_EQ(record->LinkPage, server_->baseAddress());
    EXPECT_TRUE(momentFromInternationalForm(record->updateApp));
    EXPECT_TRUE(momentFromInternationalForm(record->updateData));
}

TEST_F(DataServerTest, TheStatedVersionIsSentUnlessTheResponseItselfIsPublished)
{
    const test::TemporaryFolder folder;
    folder.put("version.txt", "version = 1.3.0\nbuild = 8\n");
    start(settings(folder.path()));
    EXPECT_EQ(get("?file=sonavel.ini").find("name;Sonavel\rversion;1.3.0\rbuild;8\r"), 0U);
    folder.put("sonavel.ini", "of the publisher");
    EXPECT_EQ(get("?file=sonavel.ini"), "of the publisher");
}

TEST_F(DataServerTest, DemoStationsStreamFromTheHostThatTheClientAsked)
{
    DataServerSettings everywhere = settings();
    everywhere.content = DataServerSettings::Content::Demo;
    everywhere.address = "0.0.0.0";
    start(everywhere);
    const std::string own(server_->baseAddress().view());
    EXPECT_EQ(own.find("http://127.0.0.1:"), 0U) << own;

    const std::vector<std::pair<std::string, std::string>> cases{
        {"radio.example.org:8080", "http://radio.example.org:8080/"}, {"[::1]:80", "http://[::1]:80/"}, {"", own},
        {"a;b", own}, {"a/b", own}, {"user@host", own}, {"a b", own}, {std::string(256, 'a'), own}};
    for (const auto& [host, expected] : cases) {
        client_->set_default_headers({{"Host", host}});
        const StationRecords records = recordsFromListText(decodeStationList(get("?file=20161001000000_lr.rdb")));
        ASSERT_EQ(records.size(), 3U) << host;
        for (std::size_t i = 0; i < records.size(); ++i)
            EXPECT_EQ(records[i]->link(), Text(expected + (demoStations()[i].path + 1))) << host;
        EXPECT_NE(get("?file=sonavel.ini").find("page;" + expected + '\r'), std::string::npos) << host;
    }
}

TEST_F(DataServerTest, WhatIsNotPublishedGivesAStatusAndNotWithAFile)
{
    const test::TemporaryFolder folder;
    folder.put("list.rdb", "published");
    start(settings(folder.path()));
    EXPECT_EQ(get("?file=list.rdb"), "published");
    for (const char* query : {"", "?file=", "?file=none", "?file=..%2f..%2fetc%2fpasswd", "?file=%2fetc%2fpasswd",
             "?file=list.rdb%00", "?file=.%2flist.rdb", "?other=list.rdb"})
        EXPECT_EQ(get(query, 404).find("root:"), std::string::npos) << query;
    for (const char* form : {"", "file", "nothing=1", "file=../list.rdb"}) {
        const auto response = client_->Post("/app_data_files/testpost.php", form, "application/x-www-form-urlencoded");
        EXPECT_EQ(response ? response->status : 404, 404) << form;
    }
    EXPECT_EQ(get("?file=list.rdb"), "published");
}

} // namespace
} // namespace sonavel
