// A buffer of bytes: what texts are encrypted into and decoded from.
#pragma once

#include <string>

namespace sonavel {

/// Bytes of any value, as a type distinct from texts. Stored in a string so that decrypted bytes become a text without
/// a copy.
struct Bytes {
    std::string content;

    friend bool operator==(const Bytes&, const Bytes&) = default;
};

} // namespace sonavel
