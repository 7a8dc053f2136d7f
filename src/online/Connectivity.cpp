#include "online/Connectivity.h"

#include "platform/HttpClient.h"

namespace sonavel {

Connectivity::Connectivity(HttpClient& httpClient)
    : httpClient_(httpClient)
{
}

bool Connectivity::hasInternetWithSite(const Text& site) const
{
    HttpRequest request;
    request.address = site;
    request.cachePolicy = HttpRequest::CachePolicy::ReloadIgnoringLocalCache;
    request.timeout = std::chrono::seconds(5);
    return httpClient_.sendSynchronousRequest(request).has_value();
}

} // namespace sonavel
