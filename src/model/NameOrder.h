// The order of station names.
#pragma once

#include <compare>
#include <cstddef>
#include <string_view>
#include <vector>

namespace sonavel {

/// Compares two names in UTF-8 character by character, by Unicode value, except that a run of the digits 0 to 9 counts
/// as one number: "Radio 2" comes before "Radio 10", "Zoo" before "alpha". Numbers of any length are compared exactly;
/// leading zeros do not count, so that different names can be equivalent.
[[nodiscard]] std::weak_ordering compareNames(std::string_view left, std::string_view right);

/// The places of `names` in the order in which they belong: first the place of the least name. Equivalent names keep
/// their order. Meant for many names: it compares words of prepared keys instead of the names.
[[nodiscard]] std::vector<std::size_t> orderOfNames(const std::vector<std::string_view>& names);

} // namespace sonavel
