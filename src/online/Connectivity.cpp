#include "online/Connectivity.h"

#include "platform/HttpClient.h"

namespace sonavel {

bool hasInternetWithSite(HttpClient& httpClient, const Text& site)
{
    HttpRequest request;
    request.address = site;
    request.cachePolicy = HttpRequest::CachePolicy::ReloadIgnoringLocalCache;
    request.timeout = std::chrono::seconds(5);
    return httpClient.sendSynchronousRequest(request).has_value();
}

} // namespace sonavel
