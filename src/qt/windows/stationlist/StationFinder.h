// Finds stations by a part of their name or address.
#pragma once

#include "base/SearchFolding.h"
#include "ui/TableView.h"

#include <QString>

#include <optional>

namespace sonavel {

/// Case and accents do not matter. Reads the program's table, which has to outlive the finder.
class StationFinder {
public:
    enum class Direction { Forward, Backward };

    explicit StationFinder(const TableView& table);

    /// The first matching row from `start` on in the given direction, round the end and back to before `start`; none
    /// when no row matches. A `start` beyond the rows means the nearest one.
    [[nodiscard]] std::optional<long> find(const QString& wanted, long start, Direction direction);

private:
    [[nodiscard]] bool matches(long row);

    const TableView& table_;
    SearchFolding folding_;
    std::string wanted_;
};

} // namespace sonavel
