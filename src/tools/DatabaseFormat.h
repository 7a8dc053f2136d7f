// The player's station database as a format of lists.
#pragma once

#include "playlists/ListFormats.h"

#include <algorithm>

namespace sonavel {

/// Parsed exactly as the player reads it, and written as the player writes it.
extern const ListFormat databaseFormat;

/// What sonavel-list reads and writes: `playlistFormats`, and the database.
inline constexpr auto allFormats = [] {
    std::array<const ListFormat*, playlistFormats.size() + 1> formats{};
    *std::copy(playlistFormats.begin(), playlistFormats.end(), formats.begin()) = &databaseFormat;
    return formats;
}();

} // namespace sonavel
