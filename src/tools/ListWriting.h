// Station lists, written.
#pragma once

#include "model/StationRecords.h"
#include "tools/ListFormat.h"

#include <optional>
#include <string>

namespace sonavel {

/// The list in a format that is writable: as the player exports it, as the player's database, or as JSON with a line
/// feed at the end. Nothing when it is too large for that.
[[nodiscard]] std::optional<std::string> writtenList(const StationRecords& stations, ListFormat format);

/// How many stations the format cannot hold: JSON has one name for each address, that of the last station.
[[nodiscard]] std::size_t stationsLostInWriting(const StationRecords& stations, ListFormat format);

} // namespace sonavel
