// A parsed station list, with diagnostics.
#pragma once

#include "base/Text.h"
#include "model/KVStationWebRadio.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonavel {

/// A problem of a list, for the user.
struct Diagnostic {
    /// With a loss, something of the list is left out or changed.
    enum class Severity { Note, Loss };

    /// The line, or in JSON the member, counted from 0; nothing for the list as a whole.
    std::optional<std::uint64_t> place;
    /// One line of UTF-8 without control characters.
    std::string what;
    Severity severity = Severity::Note;
};

/// What could be parsed of a list.
struct ParsedList {
    /// What a place is called: "line", in JSON "member".
    std::string_view placeName = "line";
    /// Their numbers are the lines, or in JSON the members, that they were read from, counted from 0. A list text can
    /// hold their names and addresses.
    StationRecords stations;
    std::vector<Diagnostic> diagnostics;
};

/// The text in quotes, for a diagnostic: decoded, in one line, truncated, and without the user information of addresses
/// in it.
[[nodiscard]] std::string inQuotes(std::string_view bytes);

/// The name of a station that has none of its own: the host of its address, or else the address. Absent when no list
/// keeps a station of that name either.
[[nodiscard]] Text nameFromAddress(const Text& address);

/// Adds the station of a playlist's entry, its address and title in UTF-8; diagnoses an address that cannot be played.
void addStation(ParsedList& list, std::uint64_t line, const Text& address, std::string_view title);

} // namespace sonavel
