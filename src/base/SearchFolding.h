// Case and accent folding for a search.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace sonavel {

/// Caches the folding of each character, to search through many texts quickly.
class SearchFolding {
public:
    /// `fold` returns the folding of a character outside ASCII, in UTF-8.
    explicit SearchFolding(std::string (*fold)(char32_t character))
        : fold_(fold)
    {
    }

    /// The text in lower case without accents, in UTF-8: "Ö", "ö" and "o" fold to the same, and so do "ß" and "ss".
    /// Valid until the next call.
    [[nodiscard]] std::string_view folded(std::string_view utf8);

private:
    using Page = std::array<std::optional<std::string>, 256>;

    [[nodiscard]] const std::string& foldedCharacter(char32_t character);

    std::string (*const fold_)(char32_t);
    std::string folded_;
    std::array<std::unique_ptr<Page>, 0x1100> pages_; ///< by the character's upper bits
};

} // namespace sonavel
