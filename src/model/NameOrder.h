// The order of station names.
#pragma once

#include <compare>
#include <cstdint>
#include <string_view>

namespace sonavel {

/// Compares two names in UTF-8 character by character, by Unicode value, except that a run of the digits 0 to 9 counts
/// as one number: "Radio 2" comes before "Radio 10", "Zoo" before "alpha". Numbers of any length are compared exactly;
/// leading zeros do not count, so that different names can be equivalent.
[[nodiscard]] std::weak_ordering compareNames(std::string_view left, std::string_view right);

/// The beginning of a name in a form that compares quickly, for sorting many names.
///
/// When the keys of two names differ, the names stand in the same order as their keys. When they are equal, nothing is
/// known, and `compareNames` has to tell.
struct NameKey {
    explicit NameKey(std::string_view name);

    friend auto operator<=>(const NameKey&, const NameKey&) = default;

private:
    std::uint64_t first_ = 0;
    std::uint64_t second_ = 0;
};

} // namespace sonavel
