// Synchronous requests that leave the windows alive.
#pragma once

#include "platform/HttpClient.h"

#include <chrono>
#include <functional>

namespace sonavel {

/// Sends each request on a thread of its own and waits for it in a loop that paints and runs timers, but holds back
/// clicks and keys until the answer is there.
class AwaitingHttpClient : public HttpClient {
public:
    /// Told of the request once it is slow, on the main thread.
    using SlowRequestObserver = std::function<void(const HttpRequest&)>;

    /// `client` does the work; it must bear being called on another thread, one request at a time. A request is slow
    /// when it takes longer than `patience`.
    explicit AwaitingHttpClient(
        HttpClient& client, std::chrono::milliseconds patience = std::chrono::milliseconds(333));

    /// `ended` is called when a request that was reported has its answer, or has failed.
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
