#include "engine/StreamTitle.h"

#include "base/ForeignText.h"

#include <algorithm>
#include <string>

namespace sonavel {

namespace {

constexpr std::size_t longestTitle = 500;

void cutAtCharacter(std::string& text)
{
    if (text.size() <= longestTitle)
        return;
    std::size_t end = longestTitle;
    while ((static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    text.resize(end);
}

} // namespace

Text streamTitle(std::string_view bytes)
{
    std::string title = withoutControls(utf8FromForeign(bytes));
    title.erase(0, std::min(title.find_first_not_of(' '), title.size()));
    cutAtCharacter(title);
    title.erase(title.find_last_not_of(' ') + 1);
    return title;
}

} // namespace sonavel
