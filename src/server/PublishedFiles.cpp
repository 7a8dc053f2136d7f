#include "server/PublishedFiles.h"

#include "base/Ascii.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

namespace sonavel {

namespace {

constexpr std::size_t maxFileSize = std::size_t{64} * 1024 * 1024;
constexpr std::size_t maxNameLength = 255;

bool isPlainName(std::string_view name)
{
    return !name.empty() && name.size() <= maxNameLength && name.front() != '.'
        && std::none_of(name.begin(), name.end(),
            [](char character) { return isAsciiControl(character) || character == '/' || character == '\\'; });
}

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

tl::expected<std::string, PublishedFileError> PublishedFiles::contentOf(
    const std::string& name, const std::string& baseAddress) const
{
    if (!isPlainName(name))
        return tl::unexpected(PublishedFileError::Unusable);
    if (!folder_.empty()) {
        auto content = readPublishedFile(folder_ + '/' + name, maxFileSize);
        if (content || content.error() != PublishedFileError::Absent)
            return content;
    }
    const auto found = builtIn_.find(name);
    if (found == builtIn_.end())
        return tl::unexpected(PublishedFileError::Absent);
    return found->second(baseAddress);
}

} // namespace sonavel
