// The real system calls, of which the n-th fails.
#pragma once

#include "adapters/files/SystemCalls.h"

#include <cerrno>
#include <functional>
#include <utility>

namespace sonavel::test {

class FailingSystemCalls : public SystemCalls {
public:
    enum class Failing { ThatCallAlone, ThatCallAndAllAfter };

    /// Lets the n-th call from here on (the first is 1) fail; 0 for none.
    void fail(int call, Failing failing = Failing::ThatCallAlone)
    {
        countdown_ = call;
        failing_ = failing;
        hasFailed_ = false;
        isPastRename_ = false;
    }

    [[nodiscard]] bool hasFailed() const { return hasFailed_; }
    /// Whether a new file had already taken its name before the first failure.
    [[nodiscard]] bool isPastRename() const { return isPastRename_; }

    int open(int folder, const char* name, int flags, mode_t mode) override
    {
        return isToFail() ? -1 : SystemCalls::open(folder, name, flags, mode);
    }
    ssize_t read(int file, void* buffer, std::size_t size) override
    {
        return isToFail() ? -1 : SystemCalls::read(file, buffer, size);
    }
    /// Writes at most three bytes at a time, so that a write fails in the middle of a content too.
    ssize_t write(int file, const void* bytes, std::size_t size) override
    {
        return isToFail() ? -1 : SystemCalls::write(file, bytes, size < 3 ? size : 3);
    }
    int changeMode(int file, mode_t mode) override { return isToFail() ? -1 : SystemCalls::changeMode(file, mode); }
    int synchronize(int file) override { return isToFail() ? -1 : SystemCalls::synchronize(file); }
    int close(int file) override
    {
        const int result = SystemCalls::close(file);
        return isToFail() ? -1 : result;
    }
    int status(int file, struct stat& status) override { return isToFail() ? -1 : SystemCalls::status(file, status); }
    int statusOfName(int folder, const char* name, struct stat& status) override
    {
        return isToFail() ? -1 : SystemCalls::statusOfName(folder, name, status);
    }
    ssize_t readLink(const char* path, char* buffer, std::size_t size) override
    {
        return isToFail() ? -1 : SystemCalls::readLink(path, buffer, size);
    }
    int rename(int folder, const char* name, int newFolder, const char* newName) override
    {
        return isToFail() ? -1 : noteRename(SystemCalls::rename(folder, name, newFolder, newName));
    }
    int renameUnlessTaken(int folder, const char* name, int newFolder, const char* newName) override
    {
        return isToFail() ? -1 : noteRename(SystemCalls::renameUnlessTaken(folder, name, newFolder, newName));
    }
    int link(const char* path, int newFolder, const char* newName) override
    {
        return isToFail() || areLinksRefused ? -1 : SystemCalls::link(path, newFolder, newName);
    }
    int unlink(int folder, const char* name) override
    {
        const int result = isToFail() ? -1 : SystemCalls::unlink(folder, name);
        const int reason = errno;
        if (afterUnlink)
            std::exchange(afterUnlink, nullptr)();
        errno = reason;
        return result;
    }
    int makeFolder(const char* path, mode_t mode) override
    {
        return isToFail() ? -1 : SystemCalls::makeFolder(path, mode);
    }

    /// As a file system without hard links.
    bool areLinksRefused = false;

    /// What somebody else does right after the next removal.
    std::function<void()> afterUnlink;

private:
    bool isToFail()
    {
        errno = EIO;
        if (hasFailed_)
            return failing_ == Failing::ThatCallAndAllAfter;
        hasFailed_ = countdown_ > 0 && --countdown_ == 0;
        return hasFailed_;
    }

    int noteRename(int result)
    {
        isPastRename_ = isPastRename_ || (result == 0 && !hasFailed_);
        return result;
    }

    int countdown_ = 0;
    Failing failing_ = Failing::ThatCallAlone;
    bool hasFailed_ = false;
    bool isPastRename_ = false;
};

} // namespace sonavel::test
