// The key text of all station data.
#pragma once

#include <string_view>

namespace sonavel {

/// Protects the station database and the published station list alike. Used as text: its first 32 characters are the
/// key.
inline constexpr std::string_view stationDatabasePassphrase =
    "A48958B191A1424E189DAB58F4695D6F01053A6CDDD18C27C1BAF9C42B91BF6E";

} // namespace sonavel
