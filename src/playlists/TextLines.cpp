#include "playlists/TextLines.h"

#include <algorithm>

namespace sonavel {

std::optional<std::string_view> TextLines::next()
{
    if (rest_.empty())
        return std::nullopt;
    ++count_;
    const std::size_t end = rest_.find_first_of("\r\n");
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(line.size());
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : std::min<std::size_t>(rest_.size(), 1));
    return line;
}

} // namespace sonavel
