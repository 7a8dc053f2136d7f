// The formats of station lists: how each is recognised, parsed and written.
#pragma once

#include "playlists/ParsedList.h"

#include <tl/expected.hpp>

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace sonavel {

/// A list in the bytes of a format.
struct SerializedList {
    std::string bytes;
    /// How many stations the format cannot hold.
    std::size_t stationsLost = 0;
};

/// One format. Errors are half a sentence about the bytes or the list.
struct ListFormat {
    /// In lower case; extensions of files, too. The first is what the format is called.
    std::array<std::string_view, 2> names;
    /// Whether the bytes, without a byte order mark and outer blanks, look like the format.
    bool (*looksLike)(std::string_view bytes) = nullptr;
    /// Parses bytes of any origin.
    tl::expected<ParsedList, std::string> (*parse)(std::string_view bytes) = nullptr;
    /// Null for a format that is only read.
    tl::expected<SerializedList, std::string> (*serialize)(const StationRecords& stations) = nullptr;
};

// Each is described in the file that defines it.
extern const ListFormat jsonFormat;
extern const ListFormat listTextFormat;
extern const ListFormat m3uFormat;
extern const ListFormat plsFormat;

/// Parses a list text exactly as the player does. Lines that are skipped and fields that are ignored are diagnosed.
[[nodiscard]] ParsedList parseListText(const Text& text);

using ListFormats = std::span<const ListFormat* const>;

/// In the order in which bytes of an unknown format are compared with them; the first is that of any other text.
inline constexpr std::array playlistFormats{&listTextFormat, &jsonFormat, &plsFormat, &m3uFormat};

/// The format with that name, in upper or lower case; null when there is none.
[[nodiscard]] const ListFormat* formatNamed(std::string_view name, ListFormats formats = playlistFormats);

/// The format that the extension of a path names; null when there is none.
[[nodiscard]] const ListFormat* formatOfPath(std::string_view path, ListFormats formats = playlistFormats);

/// The format that the bytes look most like; they may be of none.
[[nodiscard]] const ListFormat& formatOfContent(std::string_view bytes, ListFormats formats = playlistFormats);

} // namespace sonavel
