// Whether there is a network at all.
#pragma once

namespace sonavel {

class HttpClient;
class Text;

/// Whether a web site, given by its complete address, responds, whatever the content. Takes at most 5.0 seconds; no
/// cache is used. Main thread.
[[nodiscard]] bool hasInternetWithSite(HttpClient& httpClient, const Text& site);

} // namespace sonavel
