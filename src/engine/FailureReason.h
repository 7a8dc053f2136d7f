// What the decoding library logs about a stream that fails, as a reason.
#pragma once

#include "engine/Protocol.h"

#include <optional>
#include <string_view>

namespace sonavel {

/// Nothing when the line has no reason.
[[nodiscard]] std::optional<PlaybackFailure> failureFromLogLine(std::string_view line);

} // namespace sonavel
