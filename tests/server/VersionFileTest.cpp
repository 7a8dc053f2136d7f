// The file in which the maker publishes the newest version.
#include "server/VersionFile.h"

#include "online/VersionRecord.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(VersionFile, WhatItSaysIsWhatPlayersRead)
{
    const auto outcome =
        versionAnswerFrom("\xEF\xBB\xBF# news\r\n\r\nversion = 1.3.0\r\nbuild=8\n page = https://x.example/?a=1 \n"
                          "note = One = two.\nnote=\nnote = Three\n"
                          "released = 2026-11-01 00:00:00 +0000\nlist changed = 2026-11-02 06:30:00 +0000");
    ASSERT_TRUE(std::holds_alternative<VersionAnswer>(outcome)) << std::get<VersionFault>(outcome).text;
    const auto record = serverVersionRecord(std::get<VersionAnswer>(outcome).text);
    ASSERT_TRUE(record);
    EXPECT_EQ(versionText(*record), "1.3.0 (8)");
    EXPECT_EQ(record->LinkPage, "https://x.example/?a=1");
    EXPECT_EQ(releaseNotes(*record), "- One = two.\n- \n- Three\n");
    EXPECT_EQ(record->updateApp, "2026-11-01 00:00:00 +0000");
    EXPECT_EQ(record->updateData, "2026-11-02 06:30:00 +0000");
    EXPECT_EQ(record->LinkApp, "");
}

TEST(VersionFile, WhatCannotBeSentIsRefusedWithItsLine)
{
    const std::string good = "version = 1.3.0\nbuild = 8\n";
    const std::pair<std::string, const char*> cases[] = {
        {"", "\"version\" is missing"},
        {"version = 1\n", "\"build\" is missing"},
        {good + "note = a;b\n", "line 3: only printable ASCII characters without \";\" can be sent"},
        {good + "\nnote = caf\xC3\xA9\n", "line 4: only printable ASCII characters without \";\" can be sent"},
        {good + "note = a\rb\n", "line 3: only printable ASCII characters without \";\" can be sent"},
        {good + "note = a\\nb\n",
            "line 3: \"note\" has to be a text without a backslash before an \"n\", which separates notes"},
        {good + "released = 2026-02-30 00:00:00 +0000\n",
            "line 3: \"released\" has to be a date such as 2026-11-01 00:00:00 +0000"},
        {good + "list changed = tomorrow\n",
            "line 3: \"list changed\" has to be a date such as 2026-11-01 00:00:00 +0000"},
        {good + "page = ftp://x/\n", "line 3: \"page\" has to be an http or https address"},
        {good + "build = 9\n", "line 3: \"build\" stands there twice"},
        {good + "color = red\n", "line 3: \"color\" is not known"},
        {good + "nonsense\n", "line 3: it has no \"=\""},
        {"version = 1.2.3.4\n", "line 1: \"version\" has to be up to three numbers with dots between them"},
        {"version = 1.\n", "line 1: \"version\" has to be up to three numbers with dots between them"},
        {"build = -1\n", "line 1: \"build\" has to be a number"},
        {"build = 9999999999999999999\n", "line 1: \"build\" has to be a number"},
    };
    for (const auto& [file, why] : cases) {
        const auto outcome = versionAnswerFrom(file);
        ASSERT_TRUE(std::holds_alternative<VersionFault>(outcome)) << file;
        EXPECT_EQ(std::get<VersionFault>(outcome).text, why);
    }
}

} // namespace
} // namespace sonavel
