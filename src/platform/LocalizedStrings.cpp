#include "platform/LocalizedStrings.h"

#include "base/Numbers.h"

#include <string>

namespace sonavel {

namespace {

Text withPlaceholder(const Text& localized, std::string_view placeholder, std::string_view value)
{
    std::string text = localized.string();
    const std::size_t place = text.find(placeholder);
    if (place == std::string::npos)
        return localized;
    text.replace(place, placeholder.size(), value);
    return text;
}

} // namespace

Text filledIn(const Text& localized, const Text& value)
{
    return withPlaceholder(localized, "%@", value.view());
}

Text filledIn(const Text& localized, long number)
{
    return withPlaceholder(localized, "%li", decimalText(number).view());
}

} // namespace sonavel
