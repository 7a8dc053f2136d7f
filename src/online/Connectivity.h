// Whether there is a network at all.
#pragma once

#include "base/Text.h"

namespace sonavel {

class HttpClient;

class Connectivity {
public:
    explicit Connectivity(HttpClient& httpClient);

    /// Asks a web site, by its complete address, and answers whether it answered, whatever it said. Takes at most 5.0
    /// seconds; nothing is read from a cache. Main thread.
    [[nodiscard]] bool hasInternetWithSite(const Text& site) const;

private:
    HttpClient& httpClient_;
};

} // namespace sonavel
