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
    std::unique_ptr<VersionFile> create()
    {
        PublishedVersion builtIn;
        builtIn.version = "0.1.0";
        return VersionFile::create(
            folder_.path(), builtIn, [this](const std::string& sentence) { reports_.push_back(sentence); }, whyNot_);
    }

    const test::TemporaryFolder folder_;
    std::vector<std::string> reports_;
    std::string whyNot_;
};

TEST_F(VersionFileTest, AChangeCountsAtOnceAndAnUnusableFileLeavesTheLastGoodVersionAndIsReportedOnce)
{
    const auto file = create();
    ASSERT_NE(file, nullptr) << whyNot_;
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
        whyNot_.clear();
        EXPECT_EQ(create(), nullptr) << reason;
        EXPECT_EQ(whyNot_.find(folder_.path(name)), 0U) << whyNot_;
        EXPECT_NE(whyNot_.find(reason), std::string::npos) << whyNot_;
        EXPECT_EQ(whyNot_.back(), '.') << whyNot_;
        ASSERT_EQ(::remove(folder_.path(name).c_str()), 0);
    };
    folder_.put(name, "version = 1.3.0\nbuild = many\n");
    expectRefusal(", line 2: \"build\" takes");
    folder_.put(name, stating("1.3.0") + '#' + std::string(VersionFile::maxFileSize, 'x'));
    expectRefusal("64 KiB");
    ASSERT_EQ(::mkdir(folder_.path(name).c_str(), 0700), 0);
    expectRefusal("plain file");
    ASSERT_EQ(::mkfifo(folder_.path(name).c_str(), 0600), 0);
    expectRefusal("plain file");
    ASSERT_EQ(::symlink("/etc/passwd", folder_.path(name).c_str()), 0);
    expectRefusal("plain file");
    EXPECT_TRUE(reports_.empty());
}

} // namespace
} // namespace sonavel
