#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string_view>
#include <system_error>

namespace sonavel {

namespace {

std::string_view withoutLeading(std::string_view text, std::string_view characters)
{
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
    return text;
}

/// A number's sign and what follows it.
struct SignedText {
    bool isNegative = false;
    std::string_view rest;
};

SignedText afterSign(const Text& text)
{
    std::string_view rest = withoutLeading(text.view(), " \t\n\v\f\r");
    const bool isNegative = rest.starts_with('-');
    if (isNegative || rest.starts_with('+'))
        rest.remove_prefix(1);
    return {isNegative, rest};
}

/// The magnitude at the beginning of `rest`; 0 for words such as "inf", which the library would accept.
template <class Number> Number magnitude(std::string_view rest)
{
    if (rest.empty() || (rest.front() != '.' && !isDigit(rest.front())))
        return 0;
    Number number = 0;
    const auto result = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    return result.ec == std::errc() ? number : 0;
}

template <class Number> Number realValue(const Text& text)
{
    const auto [isNegative, rest] = afterSign(text);
    const auto number = magnitude<Number>(rest);
    return isNegative ? -number : number;
}

template <class... Format> Text written(auto number, Format... format)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + 16> characters{};
    const auto end = std::to_chars(characters.data(), characters.data() + characters.size(), number, format...).ptr;
    return std::string_view(characters.data(), static_cast<std::size_t>(end - characters.data()));
}

} // namespace

std::int64_t integerValue(const Text& text)
{
    using Limits = std::numeric_limits<std::int64_t>;
    const auto [isNegative, rest] = afterSign(text);
    std::uint64_t number = 0;
    const auto result = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    const std::uint64_t maxMagnitude = static_cast<std::uint64_t>(Limits::max()) + (isNegative ? 1 : 0);
    if (result.ec == std::errc::result_out_of_range || number > maxMagnitude)
        return isNegative ? Limits::min() : Limits::max();
    return static_cast<std::int64_t>(isNegative ? 0 - number : number);
}

double doubleValue(const Text& text)
{
    return realValue<double>(text);
}

float floatValue(const Text& text)
{
    return realValue<float>(text);
}

bool boolValue(const Text& text)
{
    const std::string_view rest = withoutLeading(afterSign(text).rest, "0");
    return !rest.empty()
        && (isDigit(rest.front()) || std::string_view("YyTt").find(rest.front()) != std::string_view::npos);
}

Text decimalText(std::int64_t number)
{
    return written(number);
}

Text sixDecimalsText(double number)
{
    return written(number, std::chars_format::fixed, 6);
}

} // namespace sonavel
