// What a user may want to fix in a station list that can be read.
#pragma once

#include "playlists/ParsedList.h"

namespace sonavel {

/// Reports addresses that the player cannot play, repeated names, control characters in names, and more stations than
/// an import takes. Diagnostics on the whole list come first, the others in the order of their places.
[[nodiscard]] std::vector<Diagnostic> checkedStations(const StationRecords& stations);

} // namespace sonavel
