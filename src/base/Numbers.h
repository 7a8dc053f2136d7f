// Numbers and flags as text, independent of the locale.
#pragma once

#include "base/Text.h"

#include <cstdint>

namespace sonavel {

/// Whether it is one of the digits 0 to 9.
[[nodiscard]] constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The number at the beginning of a text, after white space and with an optional sign; what follows is ignored. 0 for a
/// text without a number, and for an absent text.
///
/// An integer beyond 64 bits is clamped.
[[nodiscard]] std::int64_t integerValue(const Text& text);

/// A decimal number with an optional fraction and exponent, always finite: a number out of range counts as none.
[[nodiscard]] double doubleValue(const Text& text);
[[nodiscard]] float floatValue(const Text& text);

/// Whether a text means yes: after white space, an optional sign and any zeros it begins with "Y", "y", "T", "t" or a
/// digit from 1 to 9.
[[nodiscard]] bool boolValue(const Text& text);

/// The digits of a number, with "-" before a negative one.
[[nodiscard]] Text decimalText(std::int64_t number);

/// A number with six decimals, such as "0.700000".
[[nodiscard]] Text sixDecimalsText(double number);

} // namespace sonavel
