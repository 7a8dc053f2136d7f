// Synchronous requests that keep the windows repainted.
#pragma once

#include "platform/HttpClient.h"

#include <chrono>
#include <functional>

namespace sonavel {

/// Sends each request on a thread of its own and waits in an event loop that paints and runs timers, but defers user
/// input until the request has ended.
class AwaitingHttpClient : public HttpClient {
public:
    /// Called with the request once it is slow, on the main thread.
    using SlowRequestObserver = std::function<void(const HttpRequest&)>;

    /// `client` is called on another thread, one request at a time. A request is slow when it takes longer than
    /// `patience`.
    explicit AwaitingHttpClient(HttpClient& client, std::chrono::milliseconds patience = std::chrono::milliseconds(333))
        : client_(client)
        , patience_(patience)
    {
    }

    /// `ended` is called when a request that was reported as slow has ended.
    void setSlowRequestObserver(SlowRequestObserver observer, std::function<void()> ended = {})
    {
        slowRequestObserver_ = std::move(observer);
        slowRequestEnded_ = std::move(ended);
    }

    HttpResult sendSynchronousRequest(const HttpRequest& request) override;

private:
    HttpClient& client_;
    std::chrono::milliseconds patience_;
    SlowRequestObserver slowRequestObserver_;
    std::function<void()> slowRequestEnded_;
};

} // namespace sonavel
