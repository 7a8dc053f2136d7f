// AES-256 over whole buffers, as station data is encrypted: cipher block chaining from an all-zero vector, PKCS#7
// padding.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace sonavel {

/// Bytes of any value, as a type distinct from texts. Stored in a string so that decrypted bytes become a text without
/// a copy.
struct Bytes {
    std::string content;

    friend bool operator==(const Bytes&, const Bytes&) = default;
};

using CipherKey = std::array<unsigned char, 32>;

/// The first 32 bytes of the text, filled up with zero bytes.
[[nodiscard]] CipherKey cipherKeyFromText(std::string_view keyText);

/// Transforms the buffer in place, so pass it with `std::move` when it is no longer needed; 16 bytes of spare
/// capacity save `encrypted` a copy. Buffers of 2 GiB and above are refused with an absent result.
[[nodiscard]] std::optional<Bytes> encrypted(Bytes plain, const CipherKey& key);

/// Absent when the length is 0 or no multiple of 16, or the padding is not valid, as mostly with another key.
[[nodiscard]] std::optional<Bytes> decrypted(Bytes cipherText, const CipherKey& key);

} // namespace sonavel
