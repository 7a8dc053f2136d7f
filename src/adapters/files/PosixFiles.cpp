#include "adapters/files/PosixFiles.h"

#include "adapters/files/AtomicFileWriter.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <filesystem>

namespace sonavel {

namespace {

constexpr int maxLinks = 40; // as the kernel has it

std::string_view withoutTrailingSlashes(std::string_view path)
{
    return path.substr(0, path.find_last_not_of('/') + 1);
}

} // namespace

PosixFiles::PosixFiles(const Text& homeDirectory, std::unique_ptr<SystemCalls> calls)
    : calls_(std::move(calls))
    , homeDirectory_(withoutTrailingSlashes(homeDirectory.view()))
{
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

bool PosixFiles::fileExists(const Text& path) const
{
    struct stat status { };
    // What the program may not look at might well be there.
    return calls_->statusOfName(AT_FDCWD, path.string().c_str(), status) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

std::optional<std::string> PosixFiles::contentsOfFile(const Text& path) const
{
    std::string content;
    mode_t mode = 0;
    if (readFile(path.string(), content, mode))
        return std::nullopt;
    return content;
}

std::error_code PosixFiles::readFile(const std::string& path, std::string& content, mode_t& mode) const
{
    const OpenFile file(*calls_, calls_->open(AT_FDCWD, path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY, 0));
    struct stat status { };
    if (!file.isOpen() || calls_->status(file.descriptor(), status) != 0)
        return lastError();
    if (!S_ISREG(status.st_mode))
        return std::make_error_code(std::errc::not_supported);
    if (static_cast<std::size_t>(status.st_size) > maxFileSize)
        return std::make_error_code(std::errc::file_too_large);
    mode = status.st_mode & 0777U;

    // One byte more than expected, so that the end is met without growing.
    content.resize(static_cast<std::size_t>(status.st_size) + 1);
    std::size_t filled = 0;
    while (filled <= maxFileSize) {
        if (filled == content.size())
            content.resize(std::min(filled * 2, maxFileSize + 1));
        const ssize_t size = calls_->read(file.descriptor(), content.data() + filled, content.size() - filled);
        if (size < 0)
            return lastError();
        if (size == 0) {
            content.resize(filled);
            return {};
        }
        filled += static_cast<std::size_t>(size);
    }
    return std::make_error_code(std::errc::file_too_large);
}

bool PosixFiles::writeAtomically(const Text& path, std::string_view bytes, FileAccess access)
{
    std::string target = path.string();
    std::error_code failure = followLinks(target);
    if (!failure)
        failure = AtomicFileWriter(*calls_, target).replace(bytes, access);
    return tell(failure, path);
}

void PosixFiles::removeUnfinishedWrite(const Text& path)
{
    std::string target = path.string();
    if (!followLinks(target))
        AtomicFileWriter(*calls_, target).removeUnfinished();
}

/// Replaces `path` by what it leads to in the end, which need not be there: the rename of an atomic write would put a
/// file in the place of the link.
std::error_code PosixFiles::followLinks(std::string& path) const
{
    for (int links = 0; links < maxLinks; ++links) {
        std::array<char, PATH_MAX> buffer{};
        const ssize_t size = calls_->readLink(path.c_str(), buffer.data(), buffer.size());
        if (size < 0)
            return errno == EINVAL || errno == ENOENT ? std::error_code() : lastError();
        const std::string target(buffer.data(), static_cast<std::size_t>(size));
        path.resize(target.starts_with('/') ? 0 : path.rfind('/') + 1);
        path.append(target);
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

bool PosixFiles::keepCopy(const Text& path, const Text& copy)
{
    std::string original = path.string();
    std::error_code failure = followLinks(original);
    if (!failure)
        failure = linkAs(original, copy.string());
    // File systems without hard links, or a folder on another one.
    if (failure && failure != std::errc::file_exists)
        failure = copyAs(original, copy.string());
    return tell(failure, copy);
}

std::error_code PosixFiles::linkAs(const std::string& path, const std::string& copy)
{
    const OpenFile folder(*calls_, openFolderOf(*calls_, copy));
    if (!folder.isOpen() || calls_->link(path.c_str(), AT_FDCWD, copy.c_str()) != 0)
        return lastError();
    const std::error_code failure = synchronizeFolder(*calls_, folder);
    if (failure)
        calls_->unlink(AT_FDCWD, copy.c_str());
    return failure;
}

std::error_code PosixFiles::copyAs(const std::string& path, const std::string& copy)
{
    std::string content;
    mode_t mode = 0;
    if (const std::error_code failure = readFile(path, content, mode))
        return failure;
    return AtomicFileWriter(*calls_, copy).create(content, mode);
}

bool PosixFiles::moveFile(const Text& path, const Text& newPath)
{
    const std::string from = path.string();
    const std::string to = newPath.string();
    if (calls_->renameUnlessTaken(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str()) != 0)
        return false;
    synchronizeFolderOf(to);
    synchronizeFolderOf(from);
    return true;
}

bool PosixFiles::removeFile(const Text& path)
{
    if (calls_->unlink(AT_FDCWD, path.string().c_str()) != 0)
        return false;
    synchronizeFolderOf(path.string());
    return true;
}

/// A power cut may undo the change all the same when this fails; nothing could be done about it.
void PosixFiles::synchronizeFolderOf(const std::string& path)
{
    const OpenFile folder(*calls_, openFolderOf(*calls_, path));
    if (folder.isOpen())
        static_cast<void>(synchronizeFolder(*calls_, folder));
}

bool PosixFiles::makeFolder(const Text& path)
{
    return tell(makeFolders(path.string()), path);
}

std::error_code PosixFiles::makeFolders(const std::string& path)
{
    constexpr mode_t ownerAlone = 0700;
    if (calls_->makeFolder(path.c_str(), ownerAlone) == 0)
        return {};
    if (errno == EEXIST) {
        struct stat status { };
        if (calls_->statusOfName(AT_FDCWD, path.c_str(), status) != 0)
            return lastError();
        return S_ISDIR(status.st_mode) ? std::error_code() : std::make_error_code(std::errc::not_a_directory);
    }
    const std::size_t slash = path.rfind('/');
    if (errno != ENOENT || slash == 0 || slash == std::string::npos)
        return lastError();
    if (const std::error_code failure = makeFolders(path.substr(0, slash)))
        return failure;
    return calls_->makeFolder(path.c_str(), ownerAlone) == 0 ? std::error_code() : lastError();
}

std::vector<std::string> PosixFiles::namesInFolder(const Text& path) const
{
    std::vector<std::string> names;
    std::error_code failure;
    std::filesystem::directory_iterator entry(path.string(), failure);
    for (; !failure && entry != std::filesystem::directory_iterator(); entry.increment(failure))
        names.push_back(entry->path().filename().string());
    return names;
}

bool PosixFiles::tell(std::error_code failure, const Text& path) const
{
    if (failure && writeFailureObserver_)
        writeFailureObserver_(path, Text(failure.message()));
    return !failure;
}

} // namespace sonavel
