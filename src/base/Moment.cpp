#include "base/Moment.h"

#include "base/Numbers.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>

namespace sonavel {

namespace {

/// Consumes a number of `digits` decimal digits at the beginning of `rest`. Nothing when one is missing.
std::optional<int> takeDigits(std::string_view& rest, std::size_t digits)
{
    if (rest.size() < digits)
        return std::nullopt;
    int value = 0;
    for (const char digit : rest.substr(0, digits)) {
        if (!isDigit(digit))
            return std::nullopt;
        value = value * 10 + (digit - '0');
    }
    rest.remove_prefix(digits);
    return value;
}

bool takeCharacter(std::string_view& rest, char expected)
{
    if (!rest.starts_with(expected))
        return false;
    rest.remove_prefix(1);
    return true;
}

/// Parses `count` numbers joined by `separator`, the first of `firstDigits` digits, the others of two.
template <std::size_t count>
std::optional<std::array<int, count>> takeNumbers(std::string_view& rest, std::size_t firstDigits, char separator)
{
    std::array<int, count> numbers{};
    for (std::size_t index = 0; index < count; ++index) {
        if (index > 0 && !takeCharacter(rest, separator))
            return std::nullopt;
        const auto number = takeDigits(rest, index == 0 ? firstDigits : 2);
        if (!number)
            return std::nullopt;
        numbers.at(index) = *number;
    }
    return numbers;
}

/// Parses "+hhmm" or "-hhmm" up to the end of the text; the offset in seconds.
std::optional<int> takeOffset(std::string_view& rest)
{
    const int sign = rest.starts_with('-') ? -1 : 1;
    if (!takeCharacter(rest, '-') && !takeCharacter(rest, '+'))
        return std::nullopt;
    const auto hours = takeDigits(rest, 2);
    const auto minutes = takeDigits(rest, 2);
    if (!hours || !minutes || *hours > 23 || *minutes > 59 || !rest.empty())
        return std::nullopt;
    return sign * (*hours * 3600 + *minutes * 60);
}

} // namespace

Text internationalForm(Moment moment)
{
    using namespace std::chrono;
    const auto seconds = floor<std::chrono::seconds>(sys_time<microseconds>(microseconds(moment.microseconds)));
    const auto day = floor<days>(seconds);
    const year_month_day date(day);
    const hh_mm_ss time(seconds - day);
    std::array<char, 64> form{};
    const int length = std::snprintf(form.data(), form.size(), "%04d-%02u-%02u %02d:%02d:%02d +0000",
        static_cast<int>(date.year()), static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
        static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
        static_cast<int>(time.seconds().count()));
    return {std::string(form.data(), static_cast<std::size_t>(length))};
}

std::optional<Moment> momentFromInternationalForm(const Text& text)
{
    std::string_view rest = text.view();
    const auto date = takeNumbers<3>(rest, 4, '-');
    if (!date || !takeCharacter(rest, ' '))
        return std::nullopt;
    const auto time = takeNumbers<3>(rest, 2, ':');
    if (!time || !takeCharacter(rest, ' '))
        return std::nullopt;
    const auto offset = takeOffset(rest);
    if (!offset)
        return std::nullopt;

    const auto [year, month, day] = *date;
    const auto [hours, minutes, seconds] = *time;
    const std::chrono::year_month_day calendarDay(std::chrono::year(year),
        std::chrono::month(static_cast<unsigned>(month)), std::chrono::day(static_cast<unsigned>(day)));
    if (year == 0 || !calendarDay.ok() || hours > 23 || minutes > 59 || seconds > 59)
        return std::nullopt;
    const std::int64_t days = std::chrono::sys_days(calendarDay).time_since_epoch().count();
    const std::int64_t secondOfDay = (hours * 60 + minutes) * 60 + seconds;
    return Moment::fromSeconds(days * 86'400 + secondOfDay - *offset);
}

} // namespace sonavel
