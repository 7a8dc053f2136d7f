// Requests to web servers.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace sonavel {

struct HttpRequest {
    enum class Method { Get, Post };
    enum class CachePolicy { Default, ReloadIgnoringLocalCache };

    Method method = Method::Get;
    /// A complete http or https address, percent-escaped where needed.
    Text address;
    CachePolicy cachePolicy = CachePolicy::Default;
    /// The bound on the whole request; absent for the client's own bounds.
    std::optional<std::chrono::milliseconds> timeout;
    std::vector<std::pair<std::string, std::string>> headers;
    /// Sent with Post alone.
    std::string body;
};

/// The body of an answer; nothing when there was none, whose reason is of no use to the program.
using HttpResult = std::optional<std::string>;

class HttpClient : private NonCopyable {
public:
    virtual ~HttpClient() = default;

    /// Sends the request and returns when the body has arrived whole, whatever the HTTP status; it may be empty.
    /// Fails when there is no network or no such host, and when the request is refused, timed out, cut off, too large,
    /// redirected too often or to something other than http and https. Bounded in time and memory whatever the server
    /// does. Main thread; no action of the user is run meanwhile.
    virtual HttpResult sendSynchronousRequest(const HttpRequest& request) = 0;
};

} // namespace sonavel
