// An HTTP client whose servers are the test's.
#pragma once

#include "platform/HttpClient.h"

#include <functional>
#include <map>

namespace sonavel {

/// A request to an address without an answer fails.
class ScriptedHttpClient : public HttpClient {
public:
    explicit ScriptedHttpClient(std::vector<std::string>& log)
        : log_(log)
    {
    }

    /// The bodies, by address.
    std::map<std::string, std::string, std::less<>> answers;
    std::vector<HttpRequest> requests;
    /// Runs while a request is under way.
    std::function<void()> whileAsking = [] {};

    /// Logged as "request ADDRESS".
    HttpResult sendSynchronousRequest(const HttpRequest& request) override
    {
        log_.push_back("request " + request.address.string());
        requests.push_back(request);
        whileAsking();
        const auto answer = answers.find(request.address.view());
        return answer == answers.end() ? HttpResult() : answer->second;
    }

private:
    std::vector<std::string>& log_;
};

} // namespace sonavel
