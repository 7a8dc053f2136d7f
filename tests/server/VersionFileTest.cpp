#include "server/VersionFile.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sonavel {
namespace {

const std::string name(VersionFile::fileName);

std::string stating(const std::string& version)
{
    return "version = " + version + "\nbuild = 8\n";
}

class VersionFileTest : public testing::Test {
protected:
    auto create()
    {
        PublishedVersion defaultVersion;
        defaultVersion.version = "0.1.0";
        return VersionFile::create(
            folder_.path(), defaultVersion, [this](const std::string& sentence) { reports_.push_back(sentence); });
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
