#include "engine/Confinement.h"

#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <functional>

namespace sonavel {
namespace {

/// The number that `action` gives in a confined process of its own; nothing where the kernel cannot confine.
std::optional<int> confined(const std::function<int()>& action)
{
    constexpr int notSupported = 77;
    const int process = ::fork();
    if (process == 0)
        ::_exit(enterSandbox() ? action() : notSupported);
    int status = 0;
    ::waitpid(process, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) == notSupported)
        return std::nullopt;
    return WEXITSTATUS(status);
}

bool opens(const std::string& path, int flags)
{
    return ::open(path.c_str(), flags | O_CLOEXEC, 0600) >= 0;
}

TEST(Confinement, NothingOfTheUsersCanBeReadWrittenOrRemovedNoProgramStartedAndNoMemoryWithoutEndTaken)
{
    const test::TemporaryFolder folder;
    const std::string list = folder.path("list.rdb");
    folder.put("list.rdb", "stations");
    const auto faults = confined([&] {
        int result = 0;
        result |= opens(list, O_RDONLY) ? 1 : 0;
        result |= opens(list, O_WRONLY) ? 2 : 0;
        result |= opens(list + "2", O_WRONLY | O_CREAT) ? 4 : 0;
        result |= ::unlink(list.c_str()) == 0 ? 8 : 0;
        result |= ::rename(list.c_str(), "/dev/shm/stolen") == 0 ? 16 : 0;
        result |= opens("/etc/sonavel-test", O_WRONLY | O_CREAT) ? 32 : 0;
        constexpr std::size_t tooMuch = std::size_t{2} << 30U;
        void* const memory =
            ::mmap(nullptr, tooMuch, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        result |= memory != MAP_FAILED ? 64 : 0;
        ::execl("/bin/false", "/bin/false", nullptr);
        return result;
    });
    if (!faults)
        GTEST_SKIP() << "this kernel cannot confine a process";
    EXPECT_EQ(*faults, 0);
    EXPECT_TRUE(std::ifstream(list).good());
}

TEST(Confinement, WhatPlayingNeedsIsStillThere)
{
    const auto missing = confined([] {
        int result = 0;
        result |= opens("/etc/passwd", O_RDONLY) ? 0 : 1;
        result |= opens("/usr/lib", O_RDONLY | O_DIRECTORY) ? 0 : 2;
        result |= opens("/dev/null", O_RDWR) ? 0 : 4;
        result |= opens("/dev/urandom", O_RDONLY) ? 0 : 8;
        const std::string shared = "/dev/shm/sonavel-test-" + std::to_string(::getpid());
        result |= opens(shared, O_RDWR | O_CREAT | O_EXCL) && ::unlink(shared.c_str()) == 0 ? 0 : 16;
        return result;
    });
    if (!missing)
        GTEST_SKIP() << "this kernel cannot confine a process";
    EXPECT_EQ(*missing, 0);
}

} // namespace
} // namespace sonavel
