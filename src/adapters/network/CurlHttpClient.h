// Requests to web servers over libcurl.
#pragma once

#include "platform/HttpClient.h"

namespace sonavel {

/// Verifies certificates, goes through the proxies that the environment names (never for this machine itself), stores
/// no cookies and caches nothing. Sends nothing when the library cannot keep to the limits. Bodies are handed over as
/// they were sent, encoded or not. May be called on any one thread at a time.
class CurlHttpClient : public HttpClient {
public:
    /// A request that goes beyond one of these has failed.
    struct Limits {
        std::chrono::milliseconds connecting = std::chrono::seconds(10);
        /// From the start to the end of the body, for requests without a bound of their own.
        std::chrono::milliseconds wholeRequest = std::chrono::seconds(30);
        /// In bytes.
        std::size_t body = std::size_t{64} << 20U;
        /// In bytes, over all answers of a chain of redirections.
        std::size_t heads = std::size_t{256} << 10U;
    };

    /// Loads the library that the first request needs. Takes some milliseconds; may be called on any thread.
    static void loadLibrary();

    /// `version` is the program's own, for servers to see.
    explicit CurlHttpClient(const Text& version);
    CurlHttpClient(const Text& version, const Limits& limits);

    HttpResult sendSynchronousRequest(const HttpRequest& request) override;

private:
    std::string userAgent_;
    Limits limits_;
};

} // namespace sonavel
