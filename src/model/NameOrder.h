// The order of station names.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace sonavel {

/// The places of `names`, which are in UTF-8, in the order in which they belong: first the place of the least name.
///
/// Names compare character by character, by Unicode value, except that a run of the digits 0 to 9 counts as one number:
/// "Radio 2" comes before "Radio 10", "Zoo" before "alpha". Numbers of any length are compared exactly; leading zeros
/// do not count, so that different names can be equivalent. Equivalent names keep their order.
[[nodiscard]] std::vector<std::size_t> orderOfNames(const std::vector<std::string_view>& names);

} // namespace sonavel
