#include "base/SearchFolding.h"

#include "base/Ascii.h"

namespace sonavel {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

/// Removes one character outside ASCII from the front; invalid UTF-8 becomes replacement characters.
char32_t takeCharacter(std::string_view& bytes)
{
    const auto first = static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(1);
    const std::size_t following = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < following)
        return replacementCharacter;
    char32_t character = first & (0x3FU >> following);
    for (std::size_t index = 0; index < following; ++index) {
        const auto next = static_cast<unsigned char>(bytes[index]);
        if ((next & 0xC0U) != 0x80)
            return replacementCharacter;
        character = character << 6U | (next & 0x3FU);
    }
    bytes.remove_prefix(following);
    return character > 0x10FFFF ? replacementCharacter : character;
}

} // namespace

std::string_view SearchFolding::folded(std::string_view utf8)
{
    folded_.resize(utf8.size());
    unsigned char bits = 0;
    for (std::size_t index = 0; index < utf8.size(); ++index) {
        bits = static_cast<unsigned char>(bits | static_cast<unsigned char>(utf8[index]));
        folded_[index] = asciiLowerCase(utf8[index]);
    }
    if (bits < 0x80)
        return folded_;
    folded_.clear();
    while (!utf8.empty()) {
        if (static_cast<unsigned char>(utf8.front()) < 0x80) {
            folded_ += asciiLowerCase(utf8.front());
            utf8.remove_prefix(1);
        } else {
            folded_ += foldedCharacter(takeCharacter(utf8));
        }
    }
    return folded_;
}

const std::string& SearchFolding::foldedCharacter(char32_t character)
{
    std::unique_ptr<Page>& page = pages_.at(character >> 8U);
    if (!page)
        page = std::make_unique<Page>();
    std::optional<std::string>& folded = page->at(character & 0xFFU);
    if (!folded)
        folded = fold_(character);
    return *folded;
}

} // namespace sonavel
