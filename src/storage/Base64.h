// Base64 with the standard alphabet, read leniently.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonavel {

/// The bytes in Base64, padded with "=". A line length of 0 writes one line; otherwise a line feed follows each group
/// of four characters that makes a line as long as that or longer, also the last one. The length of a line is counted
/// in 16 bits, so that no line feed is written for a line length above 65,532.
[[nodiscard]] std::string base64Encoded(std::string_view bytes, std::uint64_t lineLength = 0);

/// The bytes of a Base64 text. The first "=" ends it, characters outside the alphabet are skipped, and
/// values that no group or "=" completes are dropped. Empty when the text has any character outside ASCII.
[[nodiscard]] std::string base64Decoded(std::string_view text);

} // namespace sonavel
