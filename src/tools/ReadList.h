// A station list as it was read, and what is wrong with it, told place by place.
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
struct Finding {
    /// What it costs to read the list all the same: nothing, or something of the list is left out or changed.
    enum class Cost { Nothing, Content };

    /// The line, or in JSON the member, counted from 0; nothing for the list as a whole.
    std::optional<std::uint64_t> place;
    /// What is wrong, in one line that may be shown as it is.
    std::string what;
    Cost cost = Cost::Nothing;
};

/// A list as far as it could be read.
struct ReadList {
    /// What its places are called: "line", in JSON "member".
    std::string_view placeName = "line";
    /// Their numbers are the lines, or in JSON the members, that they were read from, counted from 0. A list text can
    /// hold their names and addresses.
    StationRecords stations;
    std::vector<Finding> findings;
};

/// The text in quotes to put into a finding: of any encoding, in one line, short, and without the user information of
/// an address in it.
[[nodiscard]] std::string inQuotes(std::string_view bytes);

/// What to call a station that has no name of its own: the host of its address, or else the address. Absent when no
/// list keeps a station of that name either.
[[nodiscard]] Text nameFromAddress(const Text& address);

} // namespace sonavel
