// What the windows say of streams and files, in the user's language and one line each.
#pragma once

#include "platform/UserFile.h"

#include <QString>

#include <system_error>

namespace sonavel {

struct StreamReport;

/// For the line "Now playing": the stream's title, or what keeps it from sounding, in a few words.
[[nodiscard]] QString nowPlayingText(const StreamReport& report);

/// That the file could not be saved, with the reason in the system's words.
[[nodiscard]] QString saveFailureText(const UserFile& file, const std::error_code& why);

} // namespace sonavel
