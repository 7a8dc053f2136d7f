// Addresses as they are sent to a server, and whether there is a network at all.
#pragma once

#include "base/Text.h"

namespace sonavel {

class HttpClient;

/// The address with every byte percent-escaped that may not stand in one: blanks, controls, quotes and everything
/// outside ASCII. What is escaped already stays.
[[nodiscard]] Text percentEscaped(const Text& address);

/// The address itself when it is a complete http or https address with a host and without anything to escape; absent
/// otherwise.
[[nodiscard]] Text usableWebAddress(const Text& address);

/// Whether a web site, given by its complete address, responds, whatever the content. Takes at most 5.0 seconds; no
/// cache is used. Main thread.
[[nodiscard]] bool hasInternetWithSite(HttpClient& httpClient, const Text& site);

} // namespace sonavel
