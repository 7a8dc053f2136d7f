#include "adapters/network/CurlHttpClient.h"

#include "adapters/network/CurlLibrary.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace sonavel {

namespace {

constexpr long maxRedirections = 5;
constexpr const char* usableSchemes = "http,https";

/// Only where there is one.
const CurlLibrary& curl()
{
    return *CurlLibrary::shared();
}

struct HandleRelease {
    void operator()(CURL* handle) const { curl().easyCleanup(handle); }
    void operator()(curl_slist* headers) const { curl().slistFreeAll(headers); }
};
using Handle = std::unique_ptr<CURL, HandleRelease>;
using Headers = std::unique_ptr<curl_slist, HandleRelease>;

/// What has arrived so far. A body or heads beyond their limit end the request.
struct Answer {
    const CurlHttpClient::Limits& limits;
    std::string body;
    std::size_t headsSize = 0;
    bool isHeadWhole = false;

    explicit Answer(const CurlHttpClient::Limits& theLimits)
        : limits(theLimits)
    {
    }

    static std::size_t receiveBody(const char* bytes, std::size_t, std::size_t size, void* self)
    {
        auto& answer = *static_cast<Answer*>(self);
        if (size > answer.limits.body - answer.body.size())
            return 0;
        answer.body.append(bytes, size);
        return size;
    }

    static std::size_t receiveHeadLine(const char* bytes, std::size_t, std::size_t size, void* self)
    {
        auto& answer = *static_cast<Answer*>(self);
        const std::string_view line(bytes, size);
        if (line == "\r\n" || line == "\n")
            answer.isHeadWhole = true;
        else if (line.starts_with("HTTP/"))
            answer.isHeadWhole = false;
        answer.headsSize += size;
        return answer.headsSize > answer.limits.heads ? 0 : size;
    }
};

/// The hosts that the environment exempts from its proxies, and this machine, whose own servers no proxy reaches.
std::string hostsWithoutProxy()
{
    const char* exempt = std::getenv("no_proxy");
    if (exempt == nullptr)
        exempt = std::getenv("NO_PROXY");
    const std::string_view others = exempt == nullptr ? "" : exempt;
    if (others == "*")
        return exempt;
    std::string hosts = "localhost,127.0.0.1,::1,";
    return hosts.append(others);
}

template <class Value> void set(const Handle& handle, CURLoption option, Value value)
{
    curl().easySetopt(handle.get(), option, value);
}

void setSafety(const Handle& handle)
{
    set(handle, CURLOPT_PROTOCOLS_STR, usableSchemes); // of redirections too
    set(handle, CURLOPT_FOLLOWLOCATION, 1L);
    set(handle, CURLOPT_MAXREDIRS, maxRedirections);
    set(handle, CURLOPT_NOPROXY, hostsWithoutProxy().c_str());
    set(handle, CURLOPT_NOSIGNAL, 1L);
    // Else the end of the request waits for a name server that does not answer, however long that takes.
    set(handle, CURLOPT_QUICK_EXIT, 1L);
}

void setBounds(const Handle& handle, const HttpRequest& request, const CurlHttpClient::Limits& limits)
{
    const auto whole = request.timeout.value_or(limits.wholeRequest);
    const auto connecting = std::min(whole, limits.connecting);
    set(handle, CURLOPT_TIMEOUT_MS, std::max(1L, static_cast<long>(whole.count())));
    set(handle, CURLOPT_CONNECTTIMEOUT_MS, std::max(1L, static_cast<long>(connecting.count())));
    set(handle, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limits.body));
}

void receiveInto(Answer& answer, const Handle& handle)
{
    set(handle, CURLOPT_WRITEFUNCTION, &Answer::receiveBody);
    set(handle, CURLOPT_WRITEDATA, &answer);
    set(handle, CURLOPT_HEADERFUNCTION, &Answer::receiveHeadLine);
    set(handle, CURLOPT_HEADERDATA, &answer);
}

void appendHeader(Headers& headers, const std::string& line)
{
    headers.reset(curl().slistAppend(headers.release(), line.c_str()));
}

Headers headersOf(const HttpRequest& request)
{
    Headers headers;
    for (const auto& [name, value] : request.headers)
        appendHeader(headers, std::string(name).append(": ").append(value));
    if (request.cachePolicy == HttpRequest::CachePolicy::ReloadIgnoringLocalCache)
        appendHeader(headers, "Cache-Control: no-cache");
    return headers;
}

/// `request` must outlive the use of the handle.
void setContent(const Handle& handle, const HttpRequest& request, const Headers& headers)
{
    set(handle, CURLOPT_URL, request.address.string().c_str());
    set(handle, CURLOPT_HTTPHEADER, headers.get());
    if (request.method == HttpRequest::Method::Post) {
        set(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.body.size()));
        set(handle, CURLOPT_POSTFIELDS, request.body.data());
    }
}

} // namespace

void CurlHttpClient::loadLibrary()
{
    (void)CurlLibrary::shared();
}

CurlHttpClient::CurlHttpClient(const Text& version)
    : CurlHttpClient(version, Limits())
{
}

CurlHttpClient::CurlHttpClient(const Text& version, const Limits& limits)
    : userAgent_("Sonavel/" + version.string())
    , limits_(limits)
{
}

std::optional<std::string> CurlHttpClient::sendSynchronousRequest(const HttpRequest& request)
{
    const Handle handle(CurlLibrary::shared() == nullptr ? nullptr : curl().easyInit());
    if (!handle)
        return std::nullopt;

    Answer answer(limits_);
    const Headers headers = headersOf(request);
    setSafety(handle);
    setBounds(handle, request, limits_);
    receiveInto(answer, handle);
    setContent(handle, request, headers);
    set(handle, CURLOPT_USERAGENT, userAgent_.c_str());
    // A connection that ends within the head is an empty body to libcurl.
    if (curl().easyPerform(handle.get()) != CURLE_OK || !answer.isHeadWhole)
        return std::nullopt;
    return std::move(answer.body);
}

} // namespace sonavel
