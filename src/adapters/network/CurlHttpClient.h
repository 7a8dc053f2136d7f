// Requests to web servers over libcurl.
#pragma once

#include "platform/HttpClient.h"

namespace sonavel {

/// Verifies certificates, uses the proxies of the environment (never for this machine itself), stores no cookies and
/// caches nothing. Sends nothing when the library cannot enforce the limits. Bodies are not decoded. May be
/// called on any thread, one request at a time.
class CurlHttpClient : public HttpClient {
public:
    /// A request that exceeds one of these fails.
    struct Limits {
        std::chrono::milliseconds connecting = std::chrono::seconds(10);
        /// From the start to the end of the body, for requests without a time-out of their own.
        std::chrono::milliseconds wholeRequest = std::chrono::seconds(30);
        /// In bytes.
        std::size_t body = std::size_t{64} << 20U;
        /// In bytes, over all responses of a chain of redirections.
        std::size_t heads = std::size_t{256} << 10U;
    };

    /// Loads libcurl ahead of the first request. Takes some milliseconds; may be called on any thread.
    static void loadLibrary();

    /// `version` is the program's own, for the user agent.
    explicit CurlHttpClient(const Text& version);
    CurlHttpClient(const Text& version, const Limits& limits);

    HttpResult sendSynchronousRequest(const HttpRequest& request) override;

private:
    std::string userAgent_;
    Limits limits_;
};

} // namespace sonavel
