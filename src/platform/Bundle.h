// What the program knows of itself.
#pragma once

#include "base/Text.h"

namespace sonavel {

struct Bundle {
    Text displayName; ///< CFBundleDisplayName
    Text shortVersion; ///< CFBundleShortVersionString, such as 1.2.0
    Text version; ///< CFBundleVersion, the number of the build
};

/// This program's own. The one place where the numbers of the build description enter the code.
[[nodiscard]] Bundle programBundle();

} // namespace sonavel
