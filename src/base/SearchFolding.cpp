#include "base/SearchFolding.h"

#include "base/Ascii.h"
#include "base/Text.h"

namespace sonavel {

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
