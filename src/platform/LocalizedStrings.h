// The texts that the user sees, by their keys.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

#include <string_view>

namespace sonavel {

class LocalizedStrings : private NonCopyable {
public:
    virtual ~LocalizedStrings() = default;

    /// The text in the user's language; the key itself when there is none. "%@" in it stands for a text, "%li" for a
    /// number.
    [[nodiscard]] virtual Text localizedStringForKey(std::string_view key) const = 0;
};

/// Puts `value` in the place of the first "%@" of a localized text. What `value` contains is not expanded again.
[[nodiscard]] Text filledIn(const Text& localized, const Text& value);
/// Puts `number` in the place of the first "%li".
[[nodiscard]] Text filledIn(const Text& localized, long number);

} // namespace sonavel
