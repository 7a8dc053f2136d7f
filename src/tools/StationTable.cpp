#include "tools/StationTable.h"

#include "base/TextDecoding.h"
#include "model/KVStationWebRadio.h"

#include <algorithm>
#include <clocale>
#include <cwchar>

namespace sonavel {

namespace {

/// Longer names extend into the second column, so that a single one does not push all addresses far to the right.
constexpr std::size_t maxColumnWidth = 40;

/// The number of terminal cells of the character.
std::size_t widthOf(wchar_t character)
{
    const int width = ::wcwidth(character);
    return width < 0 ? 1 : static_cast<std::size_t>(width);
}

/// The same of a text in UTF-8.
std::size_t widthOf(const std::string& text)
{
    std::size_t width = 0;
    std::mbstate_t state{};
    wchar_t character = 0;
    for (const char *place = text.data(), *end = place + text.size(); place < end;) {
        const std::size_t size = std::mbrtowc(&character, place, static_cast<std::size_t>(end - place), &state);
        if (size == 0 || size > text.size())
            return text.size(); // without the locale the width is unknown
        width += widthOf(character);
        place += size;
    }
    return width;
}

std::size_t widthOfNames(const std::vector<std::string>& names)
{
    std::size_t widest = 0;
    for (const std::string& name : names)
        if (const std::size_t width = widthOf(name); width <= maxColumnWidth)
            widest = std::max(widest, width);
    return widest;
}

std::vector<std::string> namesOf(const StationRecords& stations)
{
    std::vector<std::string> names;
    names.reserve(stations.size());
    for (const auto& station : stations)
        names.push_back(withoutControls(station->radio().view()));
    return names;
}

} // namespace

std::string stationTable(const StationRecords& stations, TableLayout layout)
{
    constexpr std::string_view gap = "  ";
    const bool isInColumns = layout == TableLayout::Columns;
    if (isInColumns)
        static_cast<void>(std::setlocale(LC_CTYPE, "C.UTF-8")); // without it, widths are estimated
    const std::vector<std::string> names = namesOf(stations);
    const std::size_t column = isInColumns ? widthOfNames(names) : 0;
    std::string table;
    for (std::size_t place = 0; place < names.size(); ++place) {
        table += names[place];
        if (isInColumns)
            table.append(column - std::min(column, widthOf(names[place])), ' ').append(gap);
        else
            table += '\t';
        table.append(withoutControls(stations[place]->link().view())) += '\n';
    }
    return table;
}

} // namespace sonavel
