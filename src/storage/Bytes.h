// A buffer of bytes: what texts are encrypted into and decoded from.
#pragma once

#include <string>

namespace sonavel {

/// Bytes of any value, kept apart from texts by a type of their own. They lie in a string so that decrypted bytes can
/// become a text without being copied.
struct Bytes {
    std::string content;

    friend bool operator==(const Bytes&, const Bytes&) = default;
};

} // namespace sonavel
