#include "server/PublishedFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace sonavel {

namespace {

constexpr off_t largestFile = off_t{64} * 1024 * 1024;
constexpr std::size_t longestName = 255;

bool isPlainName(std::string_view name)
{
    return !name.empty() && name.size() <= longestName && name.front() != '.'
        && std::none_of(name.begin(), name.end(), [](char character) {
               const auto byte = static_cast<unsigned char>(character);
               return byte < 0x20 || byte == 0x7F || byte == '/' || byte == '\\';
           });
}

std::optional<std::string> readAll(int file)
{
    struct stat status { };
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > largestFile)
        return std::nullopt;
    std::string content;
    std::array<char, 65'536> piece{};
    for (;;) {
        const ssize_t count = read(file, piece.data(), piece.size());
        if (count < 0 || content.size() > static_cast<std::size_t>(largestFile))
            return std::nullopt;
        if (count == 0)
            return content;
        content.append(piece.data(), static_cast<std::size_t>(count));
    }
}

} // namespace

PublishedFiles::PublishedFiles(std::string folder)
    : folder_(std::move(folder))
{
}

void PublishedFiles::addBuiltIn(const std::string& name, BuiltIn answer)
{
    builtIn_.insert_or_assign(name, std::move(answer));
}

std::optional<std::string> PublishedFiles::contentOf(const std::string& name, const std::string& baseAddress) const
{
    if (!isPlainName(name))
        return std::nullopt;
    if (!folder_.empty()) {
        const int file = open((folder_ + '/' + name).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (file >= 0) {
            auto content = readAll(file);
            close(file);
            return content;
        }
        if (errno != ENOENT)
            return std::nullopt;
    }
    const auto found = builtIn_.find(name);
    if (found == builtIn_.end())
        return std::nullopt;
    return found->second(baseAddress);
}

} // namespace sonavel
