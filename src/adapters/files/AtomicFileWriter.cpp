#include "adapters/files/AtomicFileWriter.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

namespace sonavel {

namespace {

constexpr mode_t ownerAlone = 0600;
constexpr mode_t everybody = 0666; // less what the umask takes off

std::string temporaryNameFor(std::string_view name)
{
    constexpr std::string_view ending = ".saving";
    std::string temporaryName = ".";
    return temporaryName.append(name.substr(0, NAME_MAX - 1 - ending.size())).append(ending);
}

FileResult<> writeAll(SystemCalls& calls, int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = calls.write(file, bytes.data(), bytes.size());
        if (written < 0)
            return lastFailure();
        if (written == 0)
            return tl::unexpected(std::make_error_code(std::errc::no_space_on_device));
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

} // namespace

AtomicFileWriter::AtomicFileWriter(SystemCalls& calls, std::string_view path)
    : calls_(calls)
    , path_(path)
    , name_(path.substr(path.rfind('/') + 1))
    , temporaryName_(temporaryNameFor(name_))
{
}

FileResult<> AtomicFileWriter::replace(std::string_view bytes, FileAccess access)
{
    OpenFile folder(calls_, openFolderOf(calls_, path_));
    if (!folder.isOpen())
        return lastFailure();
    const auto oldMode = modeOfOldFile(folder);
    if (!oldMode)
        return tl::unexpected(oldMode.error());
    const mode_t firstMode = *oldMode || access == FileAccess::OwnerOnly ? ownerAlone : everybody;
    if (auto written = writeTemporary(folder, bytes, firstMode, *oldMode); !written)
        return written;
    if (calls_.rename(folder.descriptor(), temporaryName_.c_str(), folder.descriptor(), name_.c_str()) != 0) {
        const auto failure = lastFailure();
        calls_.unlink(folder.descriptor(), temporaryName_.c_str());
        return failure;
    }
    return synchronizeFolder(calls_, folder);
}

FileResult<> AtomicFileWriter::create(std::string_view bytes, mode_t mode)
{
    OpenFile folder(calls_, openFolderOf(calls_, path_));
    if (!folder.isOpen())
        return lastFailure();
    if (auto written = writeTemporary(folder, bytes, ownerAlone, mode); !written)
        return written;
    const int at = folder.descriptor();
    const bool isRenamed = calls_.renameUnlessTaken(at, temporaryName_.c_str(), at, name_.c_str()) == 0;
    FileResult<> created = isRenamed ? synchronizeFolder(calls_, folder) : lastFailure();
    if (!created)
        calls_.unlink(at, isRenamed ? name_.c_str() : temporaryName_.c_str());
    return created;
}

void AtomicFileWriter::removeUnfinished()
{
    const OpenFile folder(calls_, openFolderOf(calls_, path_));
    const OpenFile unfinished(calls_,
        calls_.open(folder.descriptor(), temporaryName_.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0));
    struct stat status { };
    if (!unfinished.isOpen() || calls_.status(unfinished.descriptor(), status) != 0)
        return;
    if (S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink == 1)
        calls_.unlink(folder.descriptor(), temporaryName_.c_str());
}

FileResult<std::optional<mode_t>> AtomicFileWriter::modeOfOldFile(const OpenFile& folder)
{
    struct stat old { };
    if (calls_.statusOfName(folder.descriptor(), name_.c_str(), old) != 0) {
        if (errno == ENOENT && !name_.empty())
            return std::nullopt;
        return lastFailure();
    }
    if (!S_ISREG(old.st_mode))
        return tl::unexpected(
            std::make_error_code(S_ISDIR(old.st_mode) ? std::errc::is_a_directory : std::errc::not_supported));
    return old.st_mode & 0777U;
}

/// Creates the file with the first mode and changes it to the last one when it is complete. Leaves no temporary file on
/// failure. An existing file of the temporary name, from a crash or an attacker, is removed and never opened or
/// followed.
FileResult<> AtomicFileWriter::writeTemporary(
    const OpenFile& folder, std::string_view bytes, mode_t firstMode, std::optional<mode_t> lastMode)
{
    if (calls_.unlink(folder.descriptor(), temporaryName_.c_str()) != 0 && errno != ENOENT)
        return lastFailure();
    OpenFile temporary(calls_,
        calls_.open(folder.descriptor(), temporaryName_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, firstMode));
    if (!temporary.isOpen())
        return lastFailure();

    FileResult<> written = writeAll(calls_, temporary.descriptor(), bytes);
    // Ignored on failure: some file systems have no modes, and 0600 is the safe value.
    if (written && lastMode && *lastMode != firstMode)
        calls_.changeMode(temporary.descriptor(), *lastMode);
    if (written && calls_.synchronize(temporary.descriptor()) != 0)
        written = lastFailure();
    if (temporary.close() != 0 && written)
        written = lastFailure();
    if (!written)
        calls_.unlink(folder.descriptor(), temporaryName_.c_str());
    return written;
}

int openFolderOf(SystemCalls& calls, std::string_view path)
{
    const std::string folder(path.substr(0, path.rfind('/') + 1));
    return calls.open(AT_FDCWD, folder.c_str(), O_RDONLY | O_DIRECTORY, 0);
}

FileResult<> synchronizeFolder(SystemCalls& calls, const OpenFile& folder)
{
    // EINVAL: the file system does not support syncing folders.
    if (calls.synchronize(folder.descriptor()) != 0 && errno != EINVAL)
        return lastFailure();
    return {};
}

} // namespace sonavel
