// The system calls that PosixFiles uses, behind an interface so that tests can make each fail.
#pragma once

#include "base/NonCopyable.h"

#include <sys/stat.h>
#include <sys/types.h>
#include <tl/expected.hpp>
#include <unistd.h>

#include <cstddef>
#include <system_error>

namespace sonavel {

/// Each operation is the system call of the same purpose: it returns −1 with the reason in `errno` on failure, and
/// never fails with EINTR. A name is relative to the open folder `folder`, which is AT_FDCWD for an absolute path.
class SystemCalls : private NonCopyable {
public:
    virtual ~SystemCalls() = default;

    /// The file descriptor is closed on exec.
    virtual int open(int folder, const char* name, int flags, mode_t mode);
    virtual ssize_t read(int file, void* buffer, std::size_t size);
    virtual ssize_t write(int file, const void* bytes, std::size_t size);
    virtual int changeMode(int file, mode_t mode) { return ::fchmod(file, mode); }
    /// Waits until content and metadata are on disk.
    virtual int synchronize(int file);
    /// The descriptor is closed, whatever the result.
    virtual int close(int file);
    virtual int status(int file, struct stat& status) { return ::fstat(file, &status); }
    /// Follows links.
    virtual int statusOfName(int folder, const char* name, struct stat& status);
    /// Writes no terminating zero; returns the number of bytes.
    virtual ssize_t readLink(const char* path, char* buffer, std::size_t size)
    {
        return ::readlink(path, buffer, size);
    }
    virtual int rename(int folder, const char* name, int newFolder, const char* newName);
    /// Fails with EEXIST when `newName` exists.
    virtual int renameUnlessTaken(int folder, const char* name, int newFolder, const char* newName);
    virtual int link(const char* path, int newFolder, const char* newName);
    virtual int unlink(int folder, const char* name) { return ::unlinkat(folder, name, 0); }
    virtual int makeFolder(const char* path, mode_t mode) { return ::mkdir(path, mode); }
};

/// `errno` as a value with a message.
[[nodiscard]] std::error_code lastError();
[[nodiscard]] inline tl::unexpected<std::error_code> lastFailure()
{
    return tl::unexpected(lastError());
}

/// Owns a file descriptor.
class OpenFile : private NonCopyable {
public:
    OpenFile(SystemCalls& calls, int file)
        : calls_(calls)
        , file_(file)
    {
    }
    ~OpenFile() { close(); }

    [[nodiscard]] bool isOpen() const { return file_ >= 0; }
    [[nodiscard]] int descriptor() const { return file_; }

    /// −1 when closing failed, which for a written file means that the content may be lost.
    int close();

private:
    SystemCalls& calls_;
    int file_;
};

} // namespace sonavel
