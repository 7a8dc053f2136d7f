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
    // A file that may not be accessed may exist.
    return calls_->statusOfName(AT_FDCWD, path.string().c_str(), status) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

FileResult<std::string> PosixFiles::contentsOfFile(const Text& path) const
{
    return readFile(path.string()).map([](Contents contents) { return std::move(contents.bytes); });
}

FileResult<PosixFiles::Contents> PosixFiles::readFile(const std::string& path) const
{
    const auto failure = [](std::errc why) { return tl::unexpected(std::make_error_code(why)); };
    const OpenFile file(*calls_, calls_->open(AT_FDCWD, path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY, 0));
    struct stat status { };
    if (!file.isOpen() || calls_->status(file.descriptor(), status) != 0)
        return lastFailure();
    if (!S_ISREG(status.st_mode))
        return failure(S_ISDIR(status.st_mode) ? std::errc::is_a_directory : std::errc::not_supported);
    if (static_cast<std::size_t>(status.st_size) > maxFileSize)
        return failure(std::errc::file_too_large);

    // One byte more than expected, so that the end is found without growing.
    Contents contents{std::string(static_cast<std::size_t>(status.st_size) + 1, '\0'), status.st_mode & 0777U};
    std::string& bytes = contents.bytes;
    std::size_t filled = 0;
    while (filled <= maxFileSize) {
        if (filled == bytes.size())
            bytes.resize(std::min(filled * 2, maxFileSize + 1));
        const ssize_t size = calls_->read(file.descriptor(), bytes.data() + filled, bytes.size() - filled);
        if (size < 0)
            return lastFailure();
        if (size == 0) {
            bytes.resize(filled);
            return contents;
        }
        filled += static_cast<std::size_t>(size);
    }
    return failure(std::errc::file_too_large);
}

FileResult<> PosixFiles::writeAtomically(const UserFile& file, std::string_view bytes, FileAccess access)
{
    const auto write = [&](const std::string& path) { return AtomicFileWriter(*calls_, path).replace(bytes, access); };
    return reported(linkTarget(file.path.string()).and_then(write), file);
}

void PosixFiles::removeUnfinishedWrite(const Text& path)
{
    if (const auto target = linkTarget(path.string()))
        AtomicFileWriter(*calls_, *target).removeUnfinished();
}

/// The final target of the symbolic links at `path`, which need not exist: the rename of an atomic write would replace
/// the link.
FileResult<std::string> PosixFiles::linkTarget(std::string path) const
{
    for (int links = 0; links < maxLinks; ++links) {
        std::array<char, PATH_MAX> buffer{};
        const ssize_t size = calls_->readLink(path.c_str(), buffer.data(), buffer.size());
        if (size < 0 && (errno == EINVAL || errno == ENOENT))
            return path;
        if (size < 0)
            return lastFailure();
        const std::string target(buffer.data(), static_cast<std::size_t>(size));
        path.resize(target.starts_with('/') ? 0 : path.rfind('/') + 1);
        path.append(target);
    }
    return tl::unexpected(std::make_error_code(std::errc::too_many_symbolic_link_levels));
}

FileResult<> PosixFiles::keepCopy(const Text& path, const Text& copy)
{
    const std::string name = copy.string();
    const auto keep = [&](const std::string& original) {
        FileResult<> kept = linkAs(original, name);
        // File systems without hard links, or a folder on another one.
        if (kept || kept.error() == std::errc::file_exists)
            return kept;
        return readFile(original).and_then([&](const Contents& contents) {
            return AtomicFileWriter(*calls_, name).create(contents.bytes, contents.mode);
        });
    };
    return linkTarget(path.string()).and_then(keep);
}

FileResult<> PosixFiles::linkAs(const std::string& path, const std::string& copy)
{
    const OpenFile folder(*calls_, openFolderOf(*calls_, copy));
    if (!folder.isOpen() || calls_->link(path.c_str(), AT_FDCWD, copy.c_str()) != 0)
        return lastFailure();
    FileResult<> linked = synchronizeFolder(*calls_, folder);
    if (!linked)
        calls_->unlink(AT_FDCWD, copy.c_str());
    return linked;
}

FileResult<> PosixFiles::moveFile(const Text& path, const Text& newPath)
{
    const std::string from = path.string();
    const std::string to = newPath.string();
    if (calls_->renameUnlessTaken(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str()) != 0)
        return lastFailure();
    synchronizeFolderOf(to);
    synchronizeFolderOf(from);
    return {};
}

FileResult<> PosixFiles::removeFile(const Text& path)
{
    if (calls_->unlink(AT_FDCWD, path.string().c_str()) != 0)
        return lastFailure();
    synchronizeFolderOf(path.string());
    return {};
}

/// Failures are ignored: at worst, a power cut undoes the change.
void PosixFiles::synchronizeFolderOf(const std::string& path)
{
    const OpenFile folder(*calls_, openFolderOf(*calls_, path));
    if (folder.isOpen())
        static_cast<void>(synchronizeFolder(*calls_, folder));
}

FileResult<> PosixFiles::makeFolderOf(const UserFile& file)
{
    const std::string path = file.path.string();
    return reported(makeFolders(path.substr(0, path.rfind('/'))), file);
}

FileResult<> PosixFiles::makeFolders(const std::string& path)
{
    constexpr mode_t ownerAlone = 0700;
    if (calls_->makeFolder(path.c_str(), ownerAlone) == 0)
        return {};
    if (errno == EEXIST) {
        struct stat status { };
        if (calls_->statusOfName(AT_FDCWD, path.c_str(), status) != 0)
            return lastFailure();
        if (!S_ISDIR(status.st_mode))
            return tl::unexpected(std::make_error_code(std::errc::not_a_directory));
        return {};
    }
    const std::size_t slash = path.rfind('/');
    if (errno != ENOENT || slash == 0 || slash == std::string::npos)
        return lastFailure();
    return makeFolders(path.substr(0, slash)).and_then([&]() -> FileResult<> {
        if (calls_->makeFolder(path.c_str(), ownerAlone) != 0)
            return lastFailure();
        return {};
    });
}

FileResult<std::vector<std::string>> PosixFiles::namesInFolder(const Text& path) const
{
    std::vector<std::string> names;
    std::error_code failure;
    std::filesystem::directory_iterator entry(path.string(), failure);
    for (; !failure && entry != std::filesystem::directory_iterator(); entry.increment(failure))
        names.push_back(entry->path().filename().string());
    if (failure)
        return tl::unexpected(failure);
    return names;
}

FileResult<> PosixFiles::reported(FileResult<> result, const UserFile& file)
{
    if (!result)
        reportUnsaved(file, result.error());
    return result;
}

void PosixFiles::reportUnsaved(const UserFile& file, const std::error_code& why)
{
    if (saveFailureObserver_)
        saveFailureObserver_(file, why);
}

} // namespace sonavel
