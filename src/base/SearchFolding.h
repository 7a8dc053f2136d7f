// Texts made alike for a search that ignores case and accents.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace sonavel {

/// Folds quickly, for a search through many texts: what becomes of a character is looked up once.
class SearchFolding {
public:
    /// `fold` gives what a character outside ASCII becomes, in UTF-8.
    explicit SearchFolding(std::string (*fold)(char32_t character))
        : fold_(fold)
    {
    }

    /// The text in small letters without accents, in UTF-8; "Ö", "ö" and "o" are alike, and so are "ß" and "ss". Valid
    /// until the next call.
    [[nodiscard]] std::string_view folded(std::string_view utf8);

private:
    using Page = std::array<std::optional<std::string>, 256>;

    [[nodiscard]] const std::string& foldedCharacter(char32_t character);

    std::string (*const fold_)(char32_t);
    std::string folded_;
    std::array<std::unique_ptr<Page>, 0x1100> pages_; ///< by the character's upper bits
};

} // namespace sonavel
