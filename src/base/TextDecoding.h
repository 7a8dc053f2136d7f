// Text from untrusted sources: unknown encodings, and control characters.
#pragma once

#include <string>
#include <string_view>

namespace sonavel {

/// The bytes as UTF-8: unchanged if they are valid UTF-8, otherwise decoded as Windows-1252, a superset of printable
/// Latin-1, without the bytes that are undefined there.
[[nodiscard]] std::string decodeToUtf8(std::string_view bytes);

/// The text with a blank in place of each control character, line separator and bidirectional override, to be shown in
/// one line, on a terminal too. The text has to be valid UTF-8.
[[nodiscard]] std::string withoutControls(std::string_view utf8);

/// Without the byte order mark of UTF-8 at the head, if there is one.
[[nodiscard]] std::string_view withoutByteOrderMark(std::string_view bytes);

} // namespace sonavel
