// Rejects property lists that would exhaust or crash the parsing library.
#pragma once

#include <string_view>

namespace sonavel {

/// Whether parsing the bytes takes bounded time, memory and stack, and does not end the process: they are neither too
/// large nor nested too deeply, and, in the binary form, no object contains itself or expands far beyond its size in
/// the file, and no text contains a zero character. Does not check that they are a property list.
[[nodiscard]] bool isSafePropertyList(std::string_view bytes);

/// Whether the bytes have the header of the binary form; all others are parsed as XML.
[[nodiscard]] bool isBinaryPropertyList(std::string_view bytes);

} // namespace sonavel
