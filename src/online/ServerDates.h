// What the data server said of itself at the last check for a new version.
#pragma once

#include "base/Moment.h"

#include <optional>

namespace sonavel {

/// In memory only; absent until the first check of the run, and when its response had no such date.
struct ServerDates {
    /// When the newest version of the program came out.
    std::optional<Moment> DATE_UPDATED_APP;
    /// When the server's station list last changed.
    std::optional<Moment> DATE_UPDATED_DATA;
};

} // namespace sonavel
