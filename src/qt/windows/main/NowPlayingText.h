// What the line "Now playing" says.
#pragma once

#include <QString>

namespace sonavel {

struct NowPlaying;

/// One line in the user's language: the stream's title, or what keeps it from sounding, in a few words.
[[nodiscard]] QString nowPlayingText(const NowPlaying& nowPlaying);

} // namespace sonavel
