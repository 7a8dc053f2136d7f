// The operations that encrypt station data and write it in Base64.
//
// None keeps any state or changes its input; they may run on any thread. Bytes that are passed with `std::move`
// are transformed in place.
#pragma once

#include "base/Text.h"
#include "storage/Cipher.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace sonavel {

/// The bytes encrypted with AES-256 (cipher block chaining from an all-zero vector, PKCS#7 padding). The first 32 bytes
/// of the key text are the key, filled up with zero bytes. Absent when the cipher fails, as for 2 GiB and above.
[[nodiscard]] std::optional<Bytes> AES256EncryptWithKey(Bytes bytes, const Text& key);

/// The reverse; absent also for a length that is 0 or no multiple of 16, and for invalid padding, as mostly with
/// another key.
[[nodiscard]] std::optional<Bytes> AES256DecryptWithKey(Bytes bytes, const Text& key);

/// The encryption of the text's UTF-8 bytes, in Base64 in one line. An absent text counts as empty.
[[nodiscard]] Text AES256EncryptWithKey(const Text& text, const Text& key);

/// Reads back what the encryption of a text gave. Absent when the bytes cannot be decrypted or are not valid UTF-8.
[[nodiscard]] Text AES256DecryptWithKey(const Text& base64, const Text& key);

/// The bytes of a Base64 text, see `base64Decoded`; empty for an absent text.
[[nodiscard]] Bytes initWithBase64EncodedString(const Text& base64);
[[nodiscard]] Bytes dataWithBase64EncodedString(const Text& base64);

/// The bytes in Base64, see `base64Encoded`; in one line, or in lines as long as `lineLength` where that is not 0.
[[nodiscard]] Text base64Encoding(const Bytes& bytes);
[[nodiscard]] Text base64EncodingWithLineLength(const Bytes& bytes, std::uint64_t lineLength);

/// Whether the buffer begins or ends with the `length` bytes at `part`; never for a null pointer or a length of 0.
[[nodiscard]] bool hasPrefixBytes(const Bytes& bytes, const void* part, std::size_t length);
[[nodiscard]] bool hasSuffixBytes(const Bytes& bytes, const void* part, std::size_t length);

} // namespace sonavel
