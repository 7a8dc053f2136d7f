// A file of the user that could not be written, in words.
#pragma once

#include "base/Text.h"

#include <QString>

namespace sonavel {

/// One line in the user's language; `why` in the system's words.
[[nodiscard]] QString saveFailureText(const Text& path, const Text& why);

} // namespace sonavel
