// A station list as it was parsed, with what is wrong with it, place by place.
#pragma once

#include "base/Text.h"
#include "model/StationRecords.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonavel {

/// One thing that the user should know about a list.
struct Diagnostic {
    /// With a loss, something of the list is left out or changed.
    enum class Severity { Note, Loss };

    /// The line, or in JSON the member, counted from 0; nothing for the list as a whole.
    std::optional<std::uint64_t> place;
    /// What is wrong, in one line that may be shown as it is.
    std::string what;
    Severity severity = Severity::Note;
};

/// A list as far as it could be read.
struct ParsedList {
    /// What its places are called: "line", in JSON "member".
    std::string_view placeName = "line";
    /// Their numbers are the lines, or in JSON the members, that they were read from, counted from 0. A list text can
    /// hold their names and addresses.
    StationRecords stations;
    std::vector<Diagnostic> diagnostics;
};

/// The text in quotes to put into a diagnostic: of any encoding, in one line, short, and without the user information
/// of an address in it.
[[nodiscard]] std::string inQuotes(std::string_view bytes);

/// What to call a station that has no name of its own: the host of its address, or else the address. Absent when no
/// list keeps a station of that name either.
[[nodiscard]] Text nameFromAddress(const Text& address);

/// Adds the station of a playlist's entry, its address and title in UTF-8; diagnoses an address that cannot be played.
void addStation(ParsedList& list, std::uint64_t line, const Text& address, std::string_view title);

} // namespace sonavel
