#include "adapters/network/CurlHttpClient.h"

#include "adapters/network/CurlLibrary.h"
#include "base/NonCopyable.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace sonavel {

namespace {

constexpr long maxRedirections = 5;
constexpr const char* usableSchemes = "http,https";

/// Only when the library is loaded.
const CurlLibrary& curl()
{
    return *CurlLibrary::shared();
}

struct HeadersRelease {
    void operator()(curl_slist* headers) const { curl().slistFreeAll(headers); }
};
using Headers = std::unique_ptr<curl_slist, HeadersRelease>;

/// What has arrived so far. A body or headers beyond their limit abort the request.
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

/// The hosts that the environment exempts from its proxies, and this machine, whose servers no proxy reaches.
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

/// One transfer. After an option could not be set, as in a version of the library without it, nothing is sent.
class Transfer : private NonCopyable {
public:
    Transfer()
        : handle_(curl().easyInit())
        , status_(handle_ == nullptr ? CURLE_FAILED_INIT : CURLE_OK)
    {
    }
    ~Transfer() { curl().easyCleanup(handle_); }

    template <class Value> void set(CURLoption option, Value value)
    {
        if (status_ == CURLE_OK)
            status_ = curl().easySetopt(handle_, option, value);
    }

    [[nodiscard]] CURLcode perform() { return status_ == CURLE_OK ? curl().easyPerform(handle_) : status_; }

private:
    CURL* handle_;
    CURLcode status_;
};

void setSafety(Transfer& transfer)
{
    transfer.set(CURLOPT_PROTOCOLS_STR, usableSchemes); // of redirections too
    transfer.set(CURLOPT_FOLLOWLOCATION, 1L);
    transfer.set(CURLOPT_MAXREDIRS, maxRedirections);
    transfer.set(CURLOPT_NOPROXY, hostsWithoutProxy().c_str());
    transfer.set(CURLOPT_NOSIGNAL, 1L);
    // Otherwise cleaning up waits for a name server that does not respond.
    transfer.set(CURLOPT_QUICK_EXIT, 1L);
}

void setBounds(Transfer& transfer, const HttpRequest& request, const CurlHttpClient::Limits& limits)
{
    const auto whole = request.timeout.value_or(limits.wholeRequest);
    const auto connecting = std::min(whole, limits.connecting);
    transfer.set(CURLOPT_TIMEOUT_MS, std::max(1L, static_cast<long>(whole.count())));
    transfer.set(CURLOPT_CONNECTTIMEOUT_MS, std::max(1L, static_cast<long>(connecting.count())));
    transfer.set(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limits.body));
}

void receiveInto(Answer& answer, Transfer& transfer)
{
    transfer.set(CURLOPT_WRITEFUNCTION, &Answer::receiveBody);
    transfer.set(CURLOPT_WRITEDATA, &answer);
    transfer.set(CURLOPT_HEADERFUNCTION, &Answer::receiveHeadLine);
    transfer.set(CURLOPT_HEADERDATA, &answer);
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

/// `request` must outlive the transfer.
void setContent(Transfer& transfer, const HttpRequest& request, const Headers& headers)
{
    transfer.set(CURLOPT_URL, request.address.string().c_str());
    transfer.set(CURLOPT_HTTPHEADER, headers.get());
    if (request.method == HttpRequest::Method::Post) {
        transfer.set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.body.size()));
        transfer.set(CURLOPT_POSTFIELDS, request.body.data());
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

HttpResult CurlHttpClient::sendSynchronousRequest(const HttpRequest& request)
{
    if (CurlLibrary::shared() == nullptr)
        return std::nullopt;
    Answer answer(limits_);
    const Headers headers = headersOf(request);
    Transfer transfer;
    setSafety(transfer);
    setBounds(transfer, request, limits_);
    receiveInto(answer, transfer);
    setContent(transfer, request, headers);
    transfer.set(CURLOPT_USERAGENT, userAgent_.c_str());
    // To libcurl, a connection that ends within the headers is an empty body.
    if (transfer.perform() != CURLE_OK || !answer.isHeadWhole)
        return std::nullopt;
    return std::move(answer.body);
}

} // namespace sonavel
