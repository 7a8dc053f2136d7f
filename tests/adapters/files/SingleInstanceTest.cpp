// Starts beside a running player.
#include "adapters/files/SingleInstance.h"

#include "support/PollEventLoop.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

namespace sonavel {
namespace {

class SingleInstanceTest : public testing::Test {
protected:
    std::unique_ptr<SingleInstance> claim(const std::string& home = "/home/listener")
    {
        return SingleInstance::claim(folder.path(), home).value_or(nullptr);
    }

    test::TemporaryFolder folder;
    test::PollEventLoop loop;
    int calls = 0;
};

TEST_F(SingleInstanceTest, ASecondStartCallsTheFirstAlsoWhileThatIsStillStarting)
{
    auto first = claim();
    ASSERT_TRUE(first);
    EXPECT_FALSE(claim());
    EXPECT_FALSE(claim("/home//listener/./"));
    first->onActivated(loop, [&] { ++calls; });
    EXPECT_TRUE(loop.runUntil([&] { return calls == 1; }));
    loop.runFor(std::chrono::milliseconds(20));
    EXPECT_EQ(calls, 1) << "calls that came together are one";
    EXPECT_FALSE(claim());
    EXPECT_TRUE(loop.runUntil([&] { return calls == 2; }));
    EXPECT_TRUE(claim("/home/other")) << "another home directory";
    first.reset();
    EXPECT_TRUE(claim());
}

TEST_F(SingleInstanceTest, APlayerThatCannotBeCalledIsTold)
{
    const auto first = claim();
    ASSERT_EQ(SingleInstance::claim(folder.path(), "/home/listener").error(), OtherInstance::Activated);
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
        if (entry.path().extension() == ".socket")
            std::filesystem::remove(entry.path());
    }
    EXPECT_EQ(SingleInstance::claim(folder.path(), "/home/listener").error(), OtherInstance::NotResponding);
}

TEST_F(SingleInstanceTest, WhatAKilledPlayerLeftBehindIsNoObstacle)
{
    const pid_t killed = ::fork();
    if (killed == 0) {
        const auto first = claim();
        ::_exit(first ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(killed, &status, 0), killed);
    ASSERT_EQ(status, 0);
    EXPECT_TRUE(claim());
}

TEST_F(SingleInstanceTest, WithoutAFolderOfTheUsersOwnEveryStartIsTheFirst)
{
    const std::string shared = folder.path() + "/shared";
    ::setenv("XDG_RUNTIME_DIR", shared.c_str(), 1);
    EXPECT_EQ(SingleInstance::usersRunTimeFolder(), "") << "there is none";
    std::filesystem::create_directories(shared + "/sonavel");
    std::filesystem::permissions(shared + "/sonavel", std::filesystem::perms::all);
    EXPECT_EQ(SingleInstance::usersRunTimeFolder(), "") << "others could take its place";
    std::filesystem::permissions(shared + "/sonavel", std::filesystem::perms::owner_all);
    EXPECT_EQ(SingleInstance::usersRunTimeFolder(), shared + "/sonavel");
    ::unsetenv("XDG_RUNTIME_DIR");
    EXPECT_TRUE(SingleInstance::claim("", "/home/listener"));
    EXPECT_TRUE(SingleInstance::claim("", "/home/listener"));
}

} // namespace
} // namespace sonavel
