// Synchronous requests that leave the windows alive.
#pragma once

#include "platform/HttpClient.h"

#include <functional>

namespace sonavel {

/// Sends each request on a thread of its own and waits for it in a loop that paints and runs timers, but holds back
/// clicks and keys until the answer is there.
class AwaitingHttpClient : public HttpClient {
public:
    /// Told of the request once it takes longer than a third of a second, on the main thread.
    using SlowRequestObserver = std::function<void(const HttpRequest&)>;

    /// `client` does the work; it must bear being called on another thread, one request at a time.
    explicit AwaitingHttpClient(HttpClient& client);

    void setSlowRequestObserver(SlowRequestObserver observer) { slowRequestObserver_ = std::move(observer); }

    std::optional<std::string> sendSynchronousRequest(const HttpRequest& request) override;

private:
    HttpClient& client_;
    SlowRequestObserver slowRequestObserver_;
};

} // namespace sonavel
