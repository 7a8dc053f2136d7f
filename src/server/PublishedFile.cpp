#include "server/PublishedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace sonavel {

namespace {

constexpr auto unusable = tl::unexpected(PublishedFileError::Unusable);

tl::expected<std::string, PublishedFileError> readAll(int file, std::size_t maxSize)
{
    struct stat status { };
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        return unusable;
    std::string content;
    std::array<char, 65'536> piece{};
    while (content.size() <= maxSize) {
        const ssize_t count = read(file, piece.data(), piece.size());
        if (count < 0)
            return unusable;
        if (count == 0)
            return content;
        content.append(piece.data(), static_cast<std::size_t>(count));
    }
    return unusable;
}

} // namespace

tl::expected<std::string, PublishedFileError> readPublishedFile(const std::string& path, std::size_t maxSize)
{
    const int file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return tl::unexpected(errno == ENOENT ? PublishedFileError::Absent : PublishedFileError::Unusable);
    auto content = readAll(file, maxSize);
    close(file);
    return content;
}

} // namespace sonavel
