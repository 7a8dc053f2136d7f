// What keeps hostile property lists away from the library that parses them.
#pragma once

#include <string_view>

namespace sonavel {

/// Whether parsing the bytes takes bounded time, memory and stack, and does not end the process: they are neither too
/// large nor nested too deeply, and, in the binary form, no object contains itself or stands for far more than it takes
/// in the file, and no text contains a zero character. Whether they are a property list at all is for the parser to
/// say.
[[nodiscard]] bool isSafePropertyList(std::string_view bytes);

/// Whether the bytes claim to be a property list of the binary form; all others are parsed as XML.
[[nodiscard]] bool isBinaryPropertyList(std::string_view bytes);

} // namespace sonavel
