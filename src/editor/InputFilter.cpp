#include "editor/InputFilter.h"

#include <algorithm>
#include <string>

namespace sonavel {

namespace {

Text withBlankPairsFolded(const Text& text)
{
    constexpr std::string_view pair = "  ";
    const std::string_view from = text.view();
    std::size_t place = from.find(pair);
    if (place == std::string_view::npos)
        return text;
    std::string folded;
    std::size_t taken = 0;
    for (; place != std::string_view::npos; place = from.find(pair, taken)) {
        folded.append(from, taken, place + 1 - taken);
        taken = place + pair.size();
    }
    return folded.append(from, taken);
}

Text withoutSemicolons(const Text& text)
{
    if (text.view().find(';') == std::string_view::npos)
        return text;
    std::string kept = text.string();
    std::erase(kept, ';');
    return kept;
}

} // namespace

Text filteredInput(const Text& text, std::int32_t limit)
{
    const Text folded = withBlankPairsFolded(text);
    return withoutSemicolons(limit < 0 ? folded : folded.prefix(static_cast<std::size_t>(limit)));
}

} // namespace sonavel
