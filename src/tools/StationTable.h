// A station list for people, and for programs that read lines.
#pragma once

#include "model/KVStationWebRadio.h"

#include <string>

namespace sonavel {

/// In columns for people, separated by tabs for programs.
enum class TableLayout { Columns, TabSeparated };

/// A line with name and address for each station. Control characters in them, line feeds and tabs included, are blanks.
[[nodiscard]] std::string stationTable(const StationRecords& stations, TableLayout layout);

} // namespace sonavel
