// What a user may want to mend in a station list that can be read.
#pragma once

#include "playlists/ParsedList.h"

namespace sonavel {

/// Looks at every station: addresses that the player cannot play, names that it has met before, control characters, and
/// stations beyond what an import takes. Diagnostic are in the order of the places, those on the whole list first.
[[nodiscard]] std::vector<Diagnostic> checkedStations(const StationRecords& stations);

} // namespace sonavel
