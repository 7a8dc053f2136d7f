#include "server/PublishedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <optional>
#include <utility>

namespace sonavel {

namespace {

std::optional<std::string> readAll(int file, std::size_t largest)
{
    struct stat status { };
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    std::string content;
    std::array<char, 65'536> piece{};
    while (content.size() <= largest) {
        const ssize_t count = read(file, piece.data(), piece.size());
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            return content;
        content.append(piece.data(), static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

} // namespace

PublishedFile readPublishedFile(const std::string& path, std::size_t largest)
{
    const int file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return {errno == ENOENT ? PublishedFile::State::Absent : PublishedFile::State::Unusable, {}};
    auto content = readAll(file, largest);
    close(file);
    if (!content)
        return {PublishedFile::State::Unusable, {}};
    return {PublishedFile::State::Read, *std::move(content)};
}

} // namespace sonavel
