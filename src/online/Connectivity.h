// Whether there is a network at all.
#pragma once

namespace sonavel {

class HttpClient;
class Text;

/// Asks a web site, by its complete address, and answers whether it answered, whatever it said. Takes at most 5.0
/// seconds; nothing is read from a cache. Main thread.
[[nodiscard]] bool hasInternetWithSite(HttpClient& httpClient, const Text& site);

} // namespace sonavel
