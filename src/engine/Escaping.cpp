#include "engine/Escaping.h"

#include "base/Ascii.h"

#include <charconv>

namespace sonavel {

namespace {

bool needsEscape(char character, Place place)
{
    return isAsciiControl(character) || character == '%' || (character == ' ' && place == Place::Before);
}

} // namespace

std::string escaped(std::string_view text, Place place)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (needsEscape(character, place))
            result.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
        else
            result += character;
    }
    return result;
}

std::optional<Text> unescaped(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        if (text.front() != '%') {
            result += text.front();
            text.remove_prefix(1);
            continue;
        }
        unsigned byte = 0;
        const std::string_view digits = text.substr(1, 2);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
        if (error != std::errc() || digits.size() != 2 || end != digits.data() + 2)
            return std::nullopt;
        result += static_cast<char>(byte);
        text.remove_prefix(3);
    }
    if (!isValidUtf8(result))
        return std::nullopt;
    return Text(std::move(result));
}

} // namespace sonavel
