#include "adapters/files/SystemCalls.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace sonavel {

namespace {

auto untilNotInterrupted(auto call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

} // namespace

int SystemCalls::open(int folder, const char* name, int flags, mode_t mode)
{
    return untilNotInterrupted([&] { return ::openat(folder, name, flags | O_CLOEXEC, mode); });
}

ssize_t SystemCalls::read(int file, void* buffer, std::size_t size)
{
    return untilNotInterrupted([&] { return ::read(file, buffer, size); });
}

ssize_t SystemCalls::write(int file, const void* bytes, std::size_t size)
{
    return untilNotInterrupted([&] { return ::write(file, bytes, size); });
}

int SystemCalls::synchronize(int file)
{
    return untilNotInterrupted([&] { return ::fsync(file); });
}

int SystemCalls::close(int file)
{
    // An interrupted close has closed the descriptor; closing again could close another file.
    const int result = ::close(file);
    return result < 0 && errno == EINTR ? 0 : result;
}

int SystemCalls::statusOfName(int folder, const char* name, struct stat& status)
{
    return ::fstatat(folder, name, &status, 0);
}

int SystemCalls::rename(int folder, const char* name, int newFolder, const char* newName)
{
    return ::renameat(folder, name, newFolder, newName);
}

int SystemCalls::renameUnlessTaken(int folder, const char* name, int newFolder, const char* newName)
{
    const int result = ::renameat2(folder, name, newFolder, newName, RENAME_NOREPLACE);
    if (result == 0 || (errno != EINVAL && errno != ENOSYS))
        return result;
    // The file system does not support the flag; checking first leaves a small race.
    struct stat taken { };
    if (::fstatat(newFolder, newName, &taken, AT_SYMLINK_NOFOLLOW) == 0) {
        errno = EEXIST;
        return -1;
    }
    return ::renameat(folder, name, newFolder, newName);
}

int SystemCalls::link(const char* path, int newFolder, const char* newName)
{
    return ::linkat(AT_FDCWD, path, newFolder, newName, 0);
}

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

int OpenFile::close()
{
    return isOpen() ? calls_.close(std::exchange(file_, -1)) : 0;
}

} // namespace sonavel
