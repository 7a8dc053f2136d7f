// The keys of the titles that the station pop-ups show before any station. A default station may be stored as one, too.
#pragma once

#include <string_view>

namespace sonavel {

/// There are stations, none is chosen.
inline constexpr std::string_view selectRadioKey = "POP_UP_BUTTON_SELECT_RADIO";
/// There are no stations.
inline constexpr std::string_view selectRadioNullKey = "POP_UP_BUTTON_SELECT_RADIO_NULL";

} // namespace sonavel
