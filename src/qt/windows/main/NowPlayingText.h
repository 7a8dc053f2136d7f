// What the line "Now playing" says.
#pragma once

#include <QString>

namespace sonavel {

struct StreamReport;

/// One line in the user's language: the stream's title, or what keeps it from sounding, in a few words.
[[nodiscard]] QString nowPlayingText(const StreamReport& report);

} // namespace sonavel
