#include "engine/StreamTitle.h"

#include "base/TextDecoding.h"

#include <algorithm>
#include <string>

namespace sonavel {

namespace {

constexpr std::size_t maxTitleLength = 500;

} // namespace

Text streamTitle(std::string_view bytes)
{
    std::string title = withoutControls(decodeToUtf8(bytes));
    title.erase(0, std::min(title.find_first_not_of(' '), title.size()));
    title.resize(utf8Prefix(title, maxTitleLength).size());
    title.erase(title.find_last_not_of(' ') + 1);
    return title;
}

} // namespace sonavel
