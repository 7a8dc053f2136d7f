#include "base/Moment.h"

#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <string_view>

namespace sonavel {

namespace {

/// Whether the text is of the international form: a digit for each "0", either sign for "+".
bool hasForm(std::string_view text)
{
    constexpr std::string_view form = "0000-00-00 00:00:00 +0000";
    return std::equal(text.begin(), text.end(), form.begin(), form.end(), [](char character, char expected) {
        return expected == '0' ? isDigit(character) : character == expected || (expected == '+' && character == '-');
    });
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
    using namespace std::chrono;
    if (!hasForm(text.view()))
        return std::nullopt;
    const auto number = [&](std::size_t place, std::size_t digits) {
        return static_cast<int>(integerValue(text.view().substr(place, digits)));
    };
    const auto date = year(number(0, 4)) / number(5, 2) / number(8, 2);
    const auto time = hours(number(11, 2)) + minutes(number(14, 2)) + seconds(number(17, 2));
    const auto offset = hours(number(21, 2)) + minutes(number(23, 2));
    if (date.year() == year(0) || !date.ok() || number(11, 2) > 23 || number(14, 2) > 59 || number(17, 2) > 59
        || number(21, 2) > 23 || number(23, 2) > 59)
        return std::nullopt;
    const auto local = sys_days(date) + time;
    const auto utc = text.view()[20] == '-' ? local + offset : local - offset;
    return Moment::fromSeconds(utc.time_since_epoch().count());
}

} // namespace sonavel
