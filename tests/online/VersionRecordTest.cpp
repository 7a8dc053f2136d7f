// Versions: the server's response, and what counts as newer.
#include "online/VersionRecord.h"

#include "platform/Bundle.h"

#include <gtest/gtest.h>

#include <string>

namespace sonavel {
namespace {

VersionRecord application(const Text& version, const Text& build)
{
    return applicationVersionRecord({"Sonavel", version, build});
}

std::string response(const std::string& version, const std::string& build, const std::string& note = "")
{
    return "n;Sonavel\rv;" + version + "\rb;" + build + "\ra;http://a/\rp;http://p/\rn;" + note
        + "\rd;2016-10-01 00:00:00 +0000\rl;2016-10-02 00:00:00 +0000";
}

TEST(VersionComparison, EachNumberIsComparedForItself)
{
    const struct {
        const char* ours;
        const char* ourBuild;
        const char* theirs;
        const char* theirBuild;
        bool isNewer;
    } cases[] = {{"1.2.0", "5", "1.2.0", "5", false}, {"1.2.0", "5", "1.2.1", "5", true},
        {"1.2.0", "5", "1.2.0", "6", true}, {"1.10.0", "9", "1.9.0", "9", false}, {"2.0.0", "7", "1.5.0", "3", true},
        {"2.1", "7", "2.1.0", "7", false}, {"2.1.0", "7", "2.1.0.9", "7", false}, {"1.2.0", "5", "", "", false},
        {"1.2.0", "5", "x.y.z", "build 9", false}, {"1.2.0", "5", "1. 3rc.0", "5", true},
        {"1.2.0", "5", "-9.+2.0", "-9", false}, {"1.2.0", "5", "1.2.0", "999999999999999999999999999999", true}};
    for (const auto& [ours, ourBuild, theirs, theirBuild, isNewer] : cases) {
        const auto server = serverVersionRecord(response(theirs, theirBuild));
        ASSERT_TRUE(server);
        EXPECT_EQ(isAnyNumberHigher(*server, application(ours, ourBuild)), isNewer) << theirs << " to " << ours;
    }
}

TEST(VersionText, IsMadeOfThreeNumbersAndTheBuild)
{
    EXPECT_EQ(versionText(application("3.4.5", "12")), "3.4.5 (12)");
    EXPECT_EQ(versionText(application("2.1", "7")), "2.1.0 (7)");
    EXPECT_EQ(versionText(applicationVersionRecord({})), "0.0.0 (0)");
    EXPECT_EQ(applicationVersionRecord({}).AppName, "Sonavel");
}

TEST(ServerResponse, TheSecondFieldsOfItsLinesCountByTheirOrder)
{
    const std::string plain = response("1.3.0", "8", "a\\nb");
    std::string crlf;
    for (const char character : plain)
        crlf += character == '\r' ? std::string("\r\n") : std::string(1, character);
    for (const std::string& text :
        {plain, crlf, "no field\r" + plain + "\rmore;x\rmore;y", response("1.3.0;x", "8;;", "a\\nb;c")}) {
        const auto record = serverVersionRecord(text);
        ASSERT_TRUE(record) << text;
        EXPECT_EQ(versionText(*record), "1.3.0 (8)");
        EXPECT_EQ(record->LinkPage, "http://p/");
        EXPECT_EQ(record->updateData, "2016-10-02 00:00:00 +0000");
        EXPECT_EQ(releaseNotes(*record), "- a\n- b\n");
    }
}

TEST(ServerResponse, WhatCannotBeReadGivesNothing)
{
    for (const std::string& text : {std::string(), std::string("a;1\rb;2\rc;3"), std::string("<!DOCTYPE html><p>x;y"),
             response("1.3.0", "8", "caf\xC3\xA9"), std::string(1 << 20, ';'), std::string(1 << 20, '\r'),
             response("1\n3", "8").substr(0, 60)})
        EXPECT_FALSE(serverVersionRecord(text));
    std::string linesOfLineFeeds = response("1.3.0", "8");
    std::replace(linesOfLineFeeds.begin(), linesOfLineFeeds.end(), '\r', '\n');
    EXPECT_FALSE(serverVersionRecord(linesOfLineFeeds));
}

TEST(ReleaseNotes, EveryPieceIsALineEmptyOnesToo)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", "- \n"},
        {"one", "- one\n"},
        {"one\\n", "- one\n- \n"},
        {"\\none\\n\\ntwo", "- \n- one\n- \n- two\n"},
        {"real\nfeed \\ n", "- real\nfeed \\ n\n"},
        {"<b>&amp;</b>\x1B[31m", "- <b>&amp;</b>\x1B[31m\n"},
    };
    for (const auto& [note, shown] : cases) {
        VersionRecord record;
        record.Note = note;
        EXPECT_EQ(releaseNotes(record), shown);
    }
}

} // namespace
} // namespace sonavel
