#include "qt/windows/stationlist/StationFinder.h"

#include <algorithm>
#include <array>

namespace sonavel {

StationFinder::StationFinder(const TableView& table)
    : table_(table)
{
}

std::optional<long> StationFinder::find(const QString& wanted, long start, Direction direction)
{
    wanted_ = folding_.folded(wanted.toStdString());
    const long rows = table_.numberOfRows();
    const long step = direction == Direction::Forward ? 1 : rows - 1;
    long row = std::clamp(start, 0L, std::max(0L, rows - 1));
    for (long looked = 0; looked < rows; ++looked, row = (row + step) % rows) {
        if (matches(row))
            return row;
    }
    return std::nullopt;
}

bool StationFinder::matches(long row)
{
    constexpr std::array columns{"radio", "link"};
    return std::any_of(columns.begin(), columns.end(), [&](const char* column) {
        const Text text = table_.textOfCell(column, row);
        return folding_.folded(text.view()).find(wanted_) != std::string_view::npos;
    });
}

} // namespace sonavel
