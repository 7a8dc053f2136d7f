// Texts from strangers: in whatever encoding they come, and whatever they hold to confuse who reads them.
#pragma once

#include <string>
#include <string_view>

namespace sonavel {

/// The bytes as UTF-8: as they are where they are valid UTF-8, otherwise read as Windows-1252, of which Latin-1 is a
/// part, without the bytes that have no meaning there.
[[nodiscard]] std::string decodeToUtf8(std::string_view bytes);

/// The text with a blank in the place of each control character, and of each that ends a line or overrides the
/// direction of what follows: something to show in one line, on a terminal too. The text has to be valid UTF-8.
[[nodiscard]] std::string withoutControls(std::string_view utf8);

/// Without the byte order mark of UTF-8 at the head, if there is one.
[[nodiscard]] std::string_view withoutByteOrderMark(std::string_view bytes);

} // namespace sonavel
