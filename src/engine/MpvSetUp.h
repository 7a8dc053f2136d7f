// libmpv with the options of a radio, and with what the engine needs to be notified of.
#pragma once

struct mpv_handle;

namespace sonavel {

/// Only the network is played from, and the output is the one in SONAVEL_AUDIO_OUTPUT where that is set. The caller
/// destroys it; null when it cannot be set up.
[[nodiscard]] mpv_handle* createMpv();

} // namespace sonavel
