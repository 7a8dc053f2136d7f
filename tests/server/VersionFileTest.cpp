#include "server/VersionFile.h"

#include "online/VersionRecord.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sonavel {
namespace {

const std::string needed = "version = 1.3.0\nbuild = 8\n";

PublishedVersion defaults()
{
    return {"0.1.0", "1", "", "", {"default"}, "2026-11-01 00:00:00 +0000", "2026-11-02 00:00:00 +0000"};
}

TEST(VersionText, EveryValueReachesThePlayerAsItWasStated)
{
    const std::string lines = "# For the caf\xC3\xA9\n\nversion=1.3.0\n\tbuild = 8 \nnote = One = two\\\n"
                              "page = https://radio.example.org/get?a=b#c\nlist changed = 2024-02-29 23:59:59 -0330\n"
                              "note = next, \"quoted\"\napplication = HTTP://[::1]:8080/\n"
                              "released = 0001-01-01 00:00:00 +0000";
    std::string windowsLines = "\xEF\xBB\xBF";
    for (const char character : lines)
        windowsLines.append(character == '\n' ? "\r" : "").append(1, character);

    for (const std::string& text : {lines, windowsLines}) {
        const auto version = parseVersionText(text, defaults());
        ASSERT_TRUE(version) << version.error().why;
        const auto record = serverVersionRecord(versionResponse(*version, "http://own/"));
        ASSERT_TRUE(record);
        EXPECT_EQ(versionText(*record), "1.3.0 (8)");
        EXPECT_EQ(record->LinkApp, "HTTP://[::1]:8080/");
        EXPECT_EQ(record->LinkPage, "https://radio.example.org/get?a=b#c");
        EXPECT_EQ(releaseNotes(*record), "- One = two\\\n- next, \"quoted\"\n");
        EXPECT_EQ(record->updateApp, "0001-01-01 00:00:00 +0000");
        EXPECT_EQ(record->updateData, "2024-02-29 23:59:59 -0330");
    }
}

TEST(VersionText, WhatIsNotStatedIsTheDefaultButForTheNotes)
{
    const auto version = parseVersionText(needed, defaults());
    ASSERT_TRUE(version);
    EXPECT_EQ(versionResponse(*version, "http://own/"),
        "name;Sonavel\rversion;1.3.0\rbuild;8\rapplication;http://own/\rpage;http://own/\rnotes;\r"
        "released;2026-11-01 00:00:00 +0000\rlist changed;2026-11-02 00:00:00 +0000\r");
}

TEST(VersionText, WhatTheResponseCannotCarryIsRefusedWithItsLineAndReason)
{
    const struct {
        std::string text;
        std::size_t line;
        std::string named; ///< a part of the reason
    } errors[] = {{"", 1, "without a \"version\""}, {"# empty\n\n", 2, "without a \"version\""},
        {"version = 1\n# end", 2, "without a \"build\""}, {needed + "note = a;b", 3, "a \";\""},
        {needed + "note = a\rb", 3, "control"}, {needed + std::string("note = a\0b", 10), 3, "control"},
        {needed + "note = \x7F", 3, "control"}, {needed + "note = caf\xC3\xA9", 3, "outside ASCII"},
        {needed + "note = good\nnote = a\\nb", 4, R"("\n")"}, {needed + "note =\n", 3, "no value"},
        {needed + "note\n", 3, "no \"=\""}, {needed + "= x\n", 3, "\"\" is none"},
        {needed + "Note = x\n", 3, "\"Note\" is none"}, {needed + "\x1B[31m\xE9\n = x\n", 3, "\" [31m\xC3\xA9\""},
        {needed + "build = 9\n", 3, "second time"},
        {needed + "list changed = 2026-11-01 00:00:00 +0000\nlist changed = 2026-11-01 00:00:00 +0000", 4, "second"},
        {"version = 1.3.0.1\n", 1, "\"version\" takes"}, {"version = 1..3\n", 1, "\"version\" takes"},
        {"version = 1.3 beta\n", 1, "\"version\" takes"}, {"build = 8a\n", 1, "\"build\" takes"},
        {"build = 9223372036854775808\n", 1, "\"build\" takes"},
        {"released = 2026-02-29 00:00:00 +0000\n", 1, "\"released\" takes"},
        {"released = 2026-11-01T00:00:00Z\n", 1, "\"released\" takes"},
        {"list changed = 0000-01-01 00:00:00 +0000\n", 1, "\"list changed\" takes"},
        {"list changed = 2026-11-01 24:00:00 +0000\n", 1, "\"list changed\" takes"},
        {"page = radio.example.org\n", 1, "\"page\" takes"}, {"page = http://\n", 1, "\"page\" takes"},
        {"page = javascript:alert(1)\n", 1, "\"page\" takes"},
        {"application = file:///sonavel.deb\n", 1, "\"application\" takes"}};
    for (const auto& [text, line, named] : errors) {
        const auto version = parseVersionText(text, defaults());
        ASSERT_FALSE(version) << text;
        const auto& [errorLine, why] = version.error();
        EXPECT_EQ(errorLine, line) << text;
        EXPECT_NE(why.find(named), std::string::npos) << why;
        EXPECT_EQ(why.find_first_of("\r\n\x1B"), std::string::npos) << why;
    }
}

const std::string name(VersionFile::fileName);

std::string stating(const std::string& version)
{
    return "version = " + version + "\nbuild = 8\n";
}

class VersionFileTest : public testing::Test {
protected:
    auto create()
    {
        return VersionFile::create(
            folder_.path(), defaults(), [this](const std::string& sentence) { reports_.push_back(sentence); });
    }

    const test::TemporaryFolder folder_;
    std::vector<std::string> reports_;
};

TEST_F(VersionFileTest, AChangeCountsAtOnceAndAnUnusableFileLeavesTheLastGoodVersionAndIsReportedOnce)
{
    const auto file = create().value();
    EXPECT_EQ(file->current().version, "0.1.0");
    folder_.put(name, stating("1.3.0"));
    EXPECT_EQ(file->current().version, "1.3.0");

    folder_.put(name, stating("2;0"));
    for (int request = 0; request < 3; ++request)
        EXPECT_EQ(file->current().version, "1.3.0");
    ASSERT_EQ(reports_.size(), 1U);
    EXPECT_EQ(reports_[0].find(folder_.path(name) + ", line 1: "), 0U) << reports_[0];

    ASSERT_EQ(::unlink(folder_.path(name).c_str()), 0);
    EXPECT_EQ(file->current().version, "1.3.0");
    EXPECT_EQ(file->current().version, "1.3.0");
    EXPECT_EQ(reports_.size(), 2U);

    folder_.put(name, stating("1.4.0"));
    EXPECT_EQ(file->current().version, "1.4.0");
    folder_.put(name, stating("2;0"));
    EXPECT_EQ(file->current().version, "1.4.0");
    EXPECT_EQ(reports_.size(), 3U);
}

TEST_F(VersionFileTest, WhatCannotBePublishedAtTheStartIsRefusedInOneSentence)
{
    const auto expectRefusal = [&](const std::string& reason) {
        const auto refused = create();
        ASSERT_FALSE(refused) << reason;
        EXPECT_EQ(refused.error().find(folder_.path(name) + reason), 0U) << refused.error();
        EXPECT_EQ(refused.error().back(), '.') << refused.error();
        ASSERT_EQ(::remove(folder_.path(name).c_str()), 0);
    };
    folder_.put(name, "version = 1.3.0\nbuild = many\n");
    expectRefusal(", line 2: \"build\" takes");
    folder_.put(name, stating("1.3.0") + '#' + std::string(VersionFile::maxFileSize, 'x'));
    expectRefusal(": it cannot be read as a plain file of at most 64 KiB");
    ASSERT_EQ(::mkdir(folder_.path(name).c_str(), 0700), 0);
    expectRefusal(": it cannot be read as a plain file");
    ASSERT_EQ(::mkfifo(folder_.path(name).c_str(), 0600), 0);
    expectRefusal(": it cannot be read as a plain file");
    ASSERT_EQ(::symlink("/etc/passwd", folder_.path(name).c_str()), 0);
    expectRefusal(": it cannot be read as a plain file");
    EXPECT_TRUE(reports_.empty());
}

} // namespace
} // namespace sonavel
