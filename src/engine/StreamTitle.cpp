#include "engine/StreamTitle.h"

#include "base/ForeignText.h"

#include <algorithm>
#include <string>

namespace sonavel {

namespace {

constexpr std::size_t longestTitle = 500;

} // namespace

Text streamTitle(std::string_view bytes)
{
    std::string title = withoutControls(utf8FromForeign(bytes));
    title.erase(0, std::min(title.find_first_not_of(' '), title.size()));
    title.resize(utf8Prefix(title, longestTitle).size());
    title.erase(title.find_last_not_of(' ') + 1);
    return title;
}

} // namespace sonavel
