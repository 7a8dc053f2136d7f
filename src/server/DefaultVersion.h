// The version that the data server publishes without a version file.
#pragma once

#include "server/PublishedVersion.h"

namespace sonavel {

struct DataServerSettings;

/// The version of the settings, or the one that they offer in its place.
[[nodiscard]] PublishedVersion defaultVersion(const DataServerSettings& settings);

} // namespace sonavel
