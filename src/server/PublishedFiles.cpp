#include "server/PublishedFiles.h"

#include "base/Ascii.h"

#include <algorithm>
#include <utility>

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

} // namespace

PublishedFiles::PublishedFiles(std::string folder)
    : folder_(std::move(folder))
{
}

void PublishedFiles::addBuiltIn(const std::string& name, BuiltIn content)
{
    builtIn_.insert_or_assign(name, std::move(content));
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
