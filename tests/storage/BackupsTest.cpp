#include "storage/Backups.h"

#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

constexpr const char* path = "/home/list.old.rdb";

std::set<std::string> names(const MemoryFiles& files)
{
    std::set<std::string> result;
    for (const auto& [name, content] : files.files)
        result.insert(name.substr(name.rfind('/') + 1) + "=" + content);
    return result;
}

TEST(Backups, TheNewestThreeAreKeptUnderRisingNumbers)
{
    MemoryFiles files;
    for (int turn = 1; turn <= 5; ++turn) {
        files.files[path] = std::to_string(turn);
        EXPECT_TRUE(keepBackup(files, path, "damaged"));
    }
    EXPECT_EQ(names(files),
        (std::set<std::string>{
            "list.old.rdb=5", "list.old.damaged-3.rdb=3", "list.old.damaged-4.rdb=4", "list.old.damaged-5.rdb=5"}));
}

TEST(Backups, OtherFilesAreNotTakenForCopies)
{
    const std::set<std::string> others = {"list.damaged.rdb=", "list.old.damaged-0.rdb=", "list.old.damaged-02.rdb=",
        "list.old.damaged-x.rdb=", "list.old.damaged-9.csv=", "list.old.damaged-4294967295.rdb=",
        "list.old.damaged-99999999999999999999.rdb=", "list.old.before-import-7.rdb="};
    MemoryFiles files;
    for (const std::string& other : others)
        files.files["/home/" + other.substr(0, other.size() - 1)] = "";
    files.files[path] = "now";
    EXPECT_TRUE(quarantine(files, path, "damaged"));
    std::set<std::string> expected = others;
    expected.insert("list.old.damaged.rdb=now");
    EXPECT_EQ(names(files), expected);
}

TEST(Backups, AFailedCopyRemovesNoOlderOne)
{
    MemoryFiles files;
    for (const char* name : {"list.old.damaged.rdb", "list.old.damaged-2.rdb", "list.old.damaged-3.rdb"})
        files.files[std::string("/home/") + name] = name;
    files.files[path] = "now";
    const auto before = names(files);
    files.failAll("keep");
    EXPECT_FALSE(keepBackup(files, path, "damaged"));
    files.failAll("list");
    EXPECT_FALSE(keepBackup(files, path, "damaged"));
    EXPECT_EQ(names(files), before);
}

TEST(Backups, AFolderThatCannotBeListedIsNoReasonToKeepNothing)
{
    MemoryFiles files;
    files.files[path] = "now";
    files.failAll("list");
    EXPECT_TRUE(keepBackup(files, path, "damaged"));
}

} // namespace
} // namespace sonavel
