// The user's preferences as values.
#pragma once

#include "base/Moment.h"
#include "base/Text.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace sonavel {

/// The keys of the titles that the station pop-ups show before any station: where none is chosen, and where there are
/// none. A default station may be stored as one, too.
inline constexpr std::string_view selectRadioKey = "POP_UP_BUTTON_SELECT_RADIO";
inline constexpr std::string_view selectRadioNullKey = "POP_UP_BUTTON_SELECT_RADIO_NULL";

struct PreferenceFields {
    /// Choosing a station plays it at once.
    bool PREF_IS_AUTOPLAY = false;
    /// The default station plays when the program starts.
    bool PREF_IS_AUTOPLAY_OPEN_APP = false;
    /// The name of the default station, or the key of a placeholder where there is none; absent when the stored
    /// preferences lack it.
    Text PREF_DEFAULT_STATION;
    /// 0.0 (silent) to 1.0 (full); whatever finite number was stored.
    float PREF_DEFAULT_VOLUME = 0.0F;
    /// The window of the station list is shown when the program starts.
    bool PREF_WINEDIT_IS_VISIBLE = false;
    /// Several rows of the station list can be selected.
    bool PREF_ENABLE_MULTIPLE_SELECTION = false;
    /// How many stations an import goes up to. Not stored.
    std::int64_t PREF_MAX_NUMBER_RADIO = 1'000'000;
    /// The longest station name, in UTF-16 code units.
    std::int64_t PREF_MAX_NAME_RADIO_LENGHT = 0;
    /// Seconds. Kept for the user; no request applies it.
    float PREF_TIMEOUT_LIMIT = 0.0F;
    /// The last check for a new version; absent when there was none.
    std::optional<Moment> PREF_DATE_UPDATE_LAST_APPCHECK;
    /// The last refresh of the station list from the server; absent when there was none.
    std::optional<Moment> PREF_DATE_UPDATE_LAST_DATACHECK;
};

} // namespace sonavel
