// Messages for files that could not be saved.
#pragma once

#include "platform/UserFile.h"

#include <QString>

#include <system_error>

namespace sonavel {

/// One line in the user's language, with the reason in the system's words.
[[nodiscard]] QString saveFailureText(const UserFile& file, const std::error_code& why);

} // namespace sonavel
