#include "adapters/files/PosixFiles.h"

#include "adapters/files/FailingSystemCalls.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <memory>

namespace sonavel {
namespace {

using test::FailingSystemCalls;
using Names = std::set<std::string>;
namespace fs = std::filesystem;

class PosixFilesTest : public testing::Test {
protected:
    PosixFilesTest()
    {
        files.setSaveFailureObserver([this](const UserFile& file, const std::error_code& why) {
            reported.push_back(fs::path(file.path.string()).filename().string() + ": " + why.message());
        });
    }

    [[nodiscard]] UserFile fileNamed(std::string_view name) const { return {UserFile::Kind::Other, folder.path(name)}; }

    bool write(std::string_view name, std::string_view content, FileAccess access = FileAccess::OwnerOnly)
    {
        return files.writeAtomically(fileNamed(name), content, access).has_value();
    }

    [[nodiscard]] unsigned modeOf(std::string_view name) const
    {
        return static_cast<unsigned>(fs::status(folder.path(name)).permissions());
    }

    /// What somebody else may have put in the place of a file.
    void plant(std::string_view kind, const std::string& place) const
    {
        if (kind == "symbolic link")
            fs::create_symlink("victim", place);
        else if (kind == "hard link")
            fs::create_hard_link(folder.path("victim"), place);
        else if (kind == "pipe")
            ASSERT_EQ(::mkfifo(place.c_str(), 0600), 0);
        else if (kind == "folder")
            fs::create_directory(place);
        else
            std::ofstream(place) << "the long content of a write that was cut short";
    }

    test::TemporaryFolder folder;
    std::unique_ptr<FailingSystemCalls> ownedCalls = std::make_unique<FailingSystemCalls>();
    FailingSystemCalls& calls = *ownedCalls;
    PosixFiles files{folder.path() + "/", std::move(ownedCalls)};
    std::vector<std::string> reported;
};

TEST_F(PosixFilesTest, AWriteOfWhichAnyOneCallFailsLeavesTheOldOrTheNewContentAndNothingElse)
{
    fs::create_directory(folder.path("elsewhere"));
    folder.put("elsewhere/target", "");
    fs::create_symlink("elsewhere/target", folder.path("link"));
    folder.put("file", "");
    fs::permissions(folder.path("file"), fs::perms(0644));
    const Names names = folder.names();

    for (const char* name : {"file", "link"}) {
        int failures = 0;
        for (int call = 1;; ++call) {
            SCOPED_TRACE(std::string(name) + ", call " + std::to_string(call));
            ASSERT_TRUE(write(name, "the old content"));
            reported.clear();
            calls.fail(call);
            const bool isWritten = write(name, "new");
            const bool hasFailed = calls.hasFailed();
            const bool isPastRename = calls.isPastRename();
            calls.fail(0);

            EXPECT_EQ(folder.read(name), isWritten || isPastRename ? "new" : "the old content");
            EXPECT_EQ(reported.size(), isWritten ? 0 : 1);
            EXPECT_EQ(folder.names(), names);
            EXPECT_EQ(std::distance(fs::directory_iterator(folder.path("elsewhere")), {}), 1);
            failures += isWritten ? 0 : 1;
            if (!hasFailed)
                break;
        }
        EXPECT_GE(failures, 9);
    }
    EXPECT_TRUE(fs::is_symlink(folder.path("link")));
}

TEST_F(PosixFilesTest, ADiskThatDiesDuringAWriteLeavesTheOldOrTheNewContentAndTheNextWriteTidiesUp)
{
    folder.put("file", "");
    for (int call = 1; call == 1 || calls.hasFailed(); ++call) {
        SCOPED_TRACE(call);
        calls.fail(0);
        ASSERT_TRUE(write("file", "the old content"));
        ASSERT_EQ(folder.names(), Names{"file"});
        calls.fail(call, FailingSystemCalls::Failing::ThatCallAndAllAfter);
        const bool isWritten = write("file", "new");
        EXPECT_EQ(folder.read("file"), isWritten || calls.isPastRename() ? "new" : "the old content");
        EXPECT_LE(folder.names().size(), 2);
    }
}

TEST_F(PosixFilesTest, ACopyOfWhichAnyOneCallFailsIsThereWholeOrNotAtAll)
{
    folder.put("file", "content");
    for (const bool areLinksRefused : {false, true}) {
        calls.areLinksRefused = areLinksRefused;
        for (int call = 1; call == 1 || calls.hasFailed(); ++call) {
            SCOPED_TRACE(call);
            calls.fail(call);
            const bool isKept = files.keepCopy(folder.path("file"), folder.path("copy")).has_value();
            EXPECT_EQ(folder.names(), isKept ? (Names{"copy", "file"}) : Names{"file"});
            EXPECT_EQ(folder.read("copy"), isKept ? "content" : "");
            fs::remove(folder.path("copy"));
        }
    }
    EXPECT_EQ(folder.read("file"), "content");
}

TEST_F(PosixFilesTest, ACopyOutlivesTheReplacementOfItsOriginalAndTakesNoOthersName)
{
    for (const bool areLinksRefused : {false, true}) {
        calls.areLinksRefused = areLinksRefused;
        folder.put("file", "first");
        fs::permissions(folder.path("file"), fs::perms(0640));
        ASSERT_TRUE(files.keepCopy(folder.path("file"), folder.path("copy")));
        ASSERT_TRUE(write("file", "second"));
        EXPECT_EQ(folder.read("copy"), "first");
        EXPECT_EQ(modeOf("copy"), 0640);

        EXPECT_FALSE(files.keepCopy(folder.path("file"), folder.path("copy")));
        EXPECT_EQ(folder.read("copy"), "first");
        EXPECT_EQ(folder.names(), (Names{"copy", "file"}));
        fs::remove(folder.path("copy"));
    }
}

TEST_F(PosixFilesTest, OthersCannotReadANewFileAndAnOldOneKeepsItsMode)
{
    ASSERT_TRUE(write("new", "content"));
    EXPECT_EQ(modeOf("new"), 0600);
    for (const unsigned mode : {0644U, 0400U, 0666U}) {
        fs::permissions(folder.path("new"), fs::perms(mode));
        ASSERT_TRUE(write("new", "more"));
        EXPECT_EQ(modeOf("new"), mode);
    }
    fs::permissions(folder.path("new"), fs::perms(0644));
    calls.fail(3);
    write("new", "unfinished");
    EXPECT_EQ(modeOf("new"), 0644);
}

TEST_F(PosixFilesTest, AFileForOthersIsAsReadableAsTheUserLetsNewFilesBe)
{
    const mode_t before = ::umask(0);
    for (const auto& [mask, mode] : {std::pair(0022U, 0644U), std::pair(0077U, 0600U), std::pair(0U, 0666U)}) {
        ::umask(mask);
        const std::string name = "new " + std::to_string(mask);
        EXPECT_TRUE(write(name, "content", FileAccess::AsUsual));
        EXPECT_EQ(modeOf(name), mode);
        fs::permissions(folder.path(name), fs::perms(0640));
        EXPECT_TRUE(write(name, "more", FileAccess::AsUsual));
        EXPECT_EQ(modeOf(name), 0640) << "an old file keeps its mode";
    }
    ::umask(before);
}

TEST_F(PosixFilesTest, AWriteThroughLinksKeepsThem)
{
    fs::create_directories(folder.path("deep/down"));
    folder.put("deep/target", "old");
    fs::create_symlink("deep/target", folder.path("relative"));
    fs::create_symlink(folder.path("deep/target"), folder.path("absolute"));
    fs::create_symlink("../target", folder.path("deep/down/up"));
    fs::create_symlink("deep/down/up", folder.path("chain"));
    fs::create_symlink("deep", folder.path("folder"));
    fs::create_symlink("deep/not there yet", folder.path("dangling"));
    for (const auto& [name, target] :
        {std::pair("relative", "deep/target"), std::pair("absolute", "deep/target"), std::pair("chain", "deep/target"),
            std::pair("folder/target", "deep/target"), std::pair("dangling", "deep/not there yet")}) {
        ASSERT_TRUE(write(name, name)) << name;
        EXPECT_EQ(folder.read(target), name);
    }
    for (const char* link : {"relative", "absolute", "deep/down/up", "chain", "folder", "dangling"})
        EXPECT_TRUE(fs::is_symlink(folder.path(link))) << link;
}

TEST_F(PosixFilesTest, AWriteThatCannotBeSaysWhyAndChangesNothing)
{
    fs::create_directory(folder.path("folder"));
    fs::create_symlink("loop", folder.path("loop"));
    fs::create_symlink("missing/target", folder.path("nowhere"));
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    folder.put("blocked", "old");
    fs::create_directories(folder.path(".blocked.saving"));
    const Names names = folder.names();
    for (const char* name : {"folder", "loop", "nowhere", "pipe", "blocked", "missing/file", "blocked/file"})
        EXPECT_FALSE(write(name, "new")) << name;
    EXPECT_EQ(reported,
        (std::vector<std::string>{"folder: Is a directory", "loop: Too many levels of symbolic links",
            "nowhere: No such file or directory", "pipe: Operation not supported", "blocked: Is a directory",
            "file: No such file or directory", "file: Not a directory"}));
    EXPECT_EQ(folder.names(), names);
    EXPECT_EQ(folder.read("blocked"), "old");
}

TEST_F(PosixFilesTest, AFullDiskIsAFailedWriteAndNotTheEndOfTheProgram)
{
    ASSERT_TRUE(write("file", "old"));
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit limited = before;
    limited.rlim_cur = 100'000;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limited), 0);
    const bool isWritten = write("file", std::string(200'000, 'x'));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_FALSE(isWritten);
    EXPECT_EQ(reported, std::vector<std::string>{"file: File too large"});
    EXPECT_EQ(folder.read("file"), "old");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(PosixFilesTest, APlantedTemporaryFileIsNeitherFollowedNorWrittenTo)
{
    for (const char* planted : {"symbolic link", "hard link", "pipe", "left-over"}) {
        folder.put("victim", "untouched");
        plant(planted, folder.path(".file.saving"));
        EXPECT_TRUE(write("file", planted)) << planted;
        EXPECT_EQ(folder.read("file"), planted);
        EXPECT_EQ(folder.read("victim"), "untouched") << planted;
        EXPECT_EQ(folder.names(), (Names{"file", "victim"})) << planted;
    }
}

TEST_F(PosixFilesTest, OnlyWhatAKilledWriteCanHaveLeftIsRemoved)
{
    folder.put("file", "content");
    folder.put("victim", "untouched");
    folder.put(".file.saving", "unfin");
    folder.put(".victim.saving", "another's");
    for (int call = 1; call <= 5; ++call) {
        calls.fail(call);
        files.removeUnfinishedWrite(folder.path("file"));
        EXPECT_TRUE(folder.names().contains(".file.saving")) << "where call " << call << " fails";
    }
    calls.fail(0);
    files.removeUnfinishedWrite(folder.path("file"));
    files.removeUnfinishedWrite(folder.path("missing/file"));
    EXPECT_EQ(folder.names(), (Names{".victim.saving", "file", "victim"}));

    fs::create_directory(folder.path("elsewhere"));
    folder.put("elsewhere/.list.saving", "unfin");
    fs::create_symlink("elsewhere/list", folder.path("link"));
    files.removeUnfinishedWrite(folder.path("link"));
    EXPECT_FALSE(fs::exists(folder.path("elsewhere/.list.saving"))) << "a save through a link writes beside its target";
    fs::remove(folder.path("link"));
    fs::remove(folder.path("elsewhere"));

    const std::string temporary = folder.path(".file.saving");
    const Names withPlanted{".file.saving", ".victim.saving", "file", "victim"};
    for (const char* planted : {"symbolic link", "hard link", "pipe", "folder"}) {
        plant(planted, temporary);
        files.removeUnfinishedWrite(folder.path("file"));
        EXPECT_EQ(folder.names(), withPlanted) << planted;
        EXPECT_EQ(folder.read("victim"), "untouched") << planted;
        fs::remove(temporary);
    }
}

TEST_F(PosixFilesTest, ATemporaryFilePlantedInTheVeryMomentIsNotFollowedEither)
{
    folder.put("victim", "untouched");
    folder.put("file", "old");
    calls.afterUnlink = [&] { fs::create_symlink("victim", folder.path(".file.saving")); };
    EXPECT_FALSE(write("file", "new"));
    EXPECT_EQ(folder.read("victim"), "untouched");
    EXPECT_EQ(folder.read("file"), "old");
    EXPECT_TRUE(write("file", "new"));
    EXPECT_EQ(folder.names(), (Names{"file", "victim"}));
}

TEST_F(PosixFilesTest, ALongNameLeavesRoomForTheTemporaryOne)
{
    const std::string name(255, 'n');
    ASSERT_TRUE(write(name, "content"));
    EXPECT_EQ(folder.names(), Names{name});
}

TEST_F(PosixFilesTest, WhatIsNoReadableFileIsReadAsNothingAndNeverWaitedFor)
{
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    fs::create_symlink("loop", folder.path("loop"));
    folder.put("vast", "");
    fs::resize_file(folder.path("vast"), PosixFiles::maxFileSize + 1); // sparse
    const std::pair<std::string, std::errc> cases[] = {{folder.path("pipe"), std::errc::not_supported},
        {folder.path("loop"), std::errc::too_many_symbolic_link_levels},
        {folder.path("vast"), std::errc::file_too_large},
        {folder.path("missing"), std::errc::no_such_file_or_directory}, {folder.path(), std::errc::is_a_directory},
        {"/dev/zero", std::errc::not_supported}};
    for (const auto& [path, why] : cases)
        EXPECT_EQ(files.contentsOfFile(path).error(), why) << path;
    EXPECT_TRUE(files.fileExists(folder.path("pipe")));
    EXPECT_TRUE(files.fileExists(folder.path("loop")));
    EXPECT_FALSE(files.fileExists(folder.path("missing")));
    EXPECT_FALSE(files.fileExists(folder.path("vast/below")));

    folder.put("file", "content");
    for (int call = 1; call == 1 || calls.hasFailed(); ++call) {
        calls.fail(call);
        const auto content = files.contentsOfFile(folder.path("file"));
        EXPECT_TRUE(!content || *content == "content");
    }
    calls.fail(0);
    const std::string longerThanItSays = files.contentsOfFile("/proc/self/status").value_or("");
    EXPECT_NE(longerThanItSays.find("nonvoluntary_ctxt_switches"), std::string::npos);
}

TEST_F(PosixFilesTest, MissingFoldersAreMadeForTheOwnerAlone)
{
    EXPECT_TRUE(files.makeFolderOf(fileNamed("Library/Preferences/list")));
    EXPECT_TRUE(files.makeFolderOf(fileNamed("Library/Preferences/list")));
    EXPECT_EQ(modeOf("Library"), 0700);
    EXPECT_EQ(modeOf("Library/Preferences"), 0700);
    EXPECT_TRUE(reported.empty());

    folder.put("file", "");
    EXPECT_FALSE(files.makeFolderOf(fileNamed("file/list")));
    EXPECT_FALSE(files.makeFolderOf(fileNamed("file/below/list")));
    calls.fail(2);
    EXPECT_FALSE(files.makeFolderOf(fileNamed("missing/inner/list")));
    EXPECT_EQ(reported,
        (std::vector<std::string>{"list: Not a directory", "list: Not a directory", "list: Input/output error"}));
}

TEST_F(PosixFilesTest, AMoveTakesNoOthersName)
{
    folder.put("one", "1");
    folder.put("two", "2");
    EXPECT_FALSE(files.moveFile(folder.path("one"), folder.path("two")));
    EXPECT_EQ(folder.read("two"), "2");
    EXPECT_TRUE(files.moveFile(folder.path("one"), folder.path("three")));
    EXPECT_TRUE(files.removeFile(folder.path("two")));
    EXPECT_FALSE(files.removeFile(folder.path("two")));
    EXPECT_EQ(folder.names(), Names{"three"});
    EXPECT_EQ(files.namesInFolder(folder.path()).value(), std::vector<std::string>{"three"});
    EXPECT_EQ(files.homeDirectory(), Text(folder.path()));
}

} // namespace
} // namespace sonavel
