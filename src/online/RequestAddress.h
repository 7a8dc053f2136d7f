// Addresses as they are sent to a server.
#pragma once

#include "base/Text.h"

namespace sonavel {

/// The address with every byte percent-escaped that may not stand in one: blanks, controls, quotes and everything
/// outside ASCII. What is escaped already stays.
[[nodiscard]] Text percentEscaped(const Text& address);

/// The address itself when it is a complete http or https address with a host and without anything to escape; absent
/// otherwise.
[[nodiscard]] Text usableWebAddress(const Text& address);

} // namespace sonavel
