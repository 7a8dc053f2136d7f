// The version that the data server publishes unless its maker states one.
#pragma once

#include "server/PublishedVersion.h"

namespace sonavel {

struct DataServerSettings;

/// The version of the settings, or the one that they offer in its place.
[[nodiscard]] PublishedVersion builtInVersion(const DataServerSettings& settings);

} // namespace sonavel
