// libmpv with the options of a radio, and what the engine reads from it and sets there.
#pragma once

#include "engine/Protocol.h"

#include <string>

struct mpv_handle;

namespace sonavel {

/// Only the network is played from, and the output is the one in SONAVEL_AUDIO_OUTPUT where that is set. What the
/// engine needs to be notified of is subscribed to. The caller destroys it; null when it cannot be set up.
[[nodiscard]] mpv_handle* createMpv();

/// False for a property that is not available.
[[nodiscard]] bool flagProperty(mpv_handle* player, const char* name);
/// Empty for a property that is not available.
[[nodiscard]] std::string textProperty(mpv_handle* player, const char* name);

/// The title that the stream's metadata give; empty when they give none.
[[nodiscard]] std::string titleFromMetadata(mpv_handle* player);

void setPause(mpv_handle* player, bool isPaused);
/// `volume` is from 0.0 to 1.0. False while no sound output is open, whose own volume cannot be set then.
[[nodiscard]] bool setVolume(mpv_handle* player, float volume, bool isMuted);

/// Ends what is played, and empties the playlist.
void endPlaying(mpv_handle* player);

/// Why a stream ended with this error of libmpv.
[[nodiscard]] PlaybackFailure failureFromError(int error);

} // namespace sonavel
