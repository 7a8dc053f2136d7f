#include "adapters/network/CurlHttpClient.h"

#include "support/ScriptedServer.h"
#include "support/SelfSignedTls.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <netdb.h>

#include <atomic>
#include <cstdlib>
#include <limits>
#include <mutex>
#include <thread>

namespace {

// A lookup of "silent.invalid" gets no answer for 20 s, or until the test wants one; other names in "invalid" do not
// exist.
std::atomic<int> waitingLookups = 0;
std::atomic<bool> isSilenceOver = false;

/// Whether it comes to hold within 20 s.
template <class Condition> bool comesToHold(Condition condition)
{
    for (int pause = 0; pause < 1000 && !condition(); ++pause)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return condition();
}

} // namespace

/// Takes the place of the system's, for libcurl too.
extern "C" int getaddrinfo(const char* host, const char* service, const addrinfo* hints, addrinfo** found)
{
    const std::string_view name = host == nullptr ? "" : host;
    if (name == "silent.invalid") {
        ++waitingLookups;
        comesToHold([] { return isSilenceOver.load(); });
        --waitingLookups;
    }
    if (name.ends_with(".invalid"))
        return EAI_NONAME;
    static const auto system = reinterpret_cast<decltype(&getaddrinfo)>(::dlsym(RTLD_NEXT, "getaddrinfo"));
    return system(host, service, hints, found);
}

namespace sonavel {
namespace {

using test::ScriptedServer;
using Connection = ScriptedServer::Connection;
using namespace std::chrono_literals;

constexpr std::size_t mebibyte = std::size_t{1} << 20U;

HttpResult get(const std::string& address, const CurlHttpClient::Limits& limits = {},
    std::optional<std::chrono::milliseconds> timeout = {})
{
    HttpRequest request;
    request.address = address;
    request.timeout = timeout;
    return CurlHttpClient("1.2.3", limits).sendSynchronousRequest(request);
}

HttpResult answerTo(std::string_view answer)
{
    const ScriptedServer server(ScriptedServer::answering(std::string(answer)));
    return get(server.address());
}

TEST(CurlHttpClient, AWholeAnswerIsItsBodyWhateverTheStatus)
{
    using namespace std::string_literals;
    const std::vector<std::pair<std::string, std::string>> rows{
        {"HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", ""},
        {"HTTP/1.1 204 No Content\r\n\r\n", ""},
        {"HTTP/1.1 404 Not Found\r\nContent-Length: 4\r\n\r\ngone", "gone"},
        {"HTTP/1.1 500 Oh\r\nContent-Length: 0\r\n\r\n", ""},
        {"HTTP/1.0 200 OK\r\n\r\nuntil closed", "until closed"},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n", "abcde"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n\xFF\x00\xC3\x28"s, "\xFF\x00\xC3\x28"s},
        {"HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 4\r\n\r\n\x1F\x8B..", "\x1F\x8B.."},
        {"HTTP/1.1 200 OK\r\nContent-Encoding: odd\r\nContent-Length: 4\r\n\r\nbody", "body"},
    };
    for (const auto& [answer, body] : rows)
        EXPECT_EQ(answerTo(answer), body) << answer;
}

TEST(CurlHttpClient, AnAnswerThatIsCutOrSenselessIsAFailedRequest)
{
    for (const char* answer : {"", "hello", "HTTP/1.1 200 OK\r\n", "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhello",
             "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhel",
             "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\nhello\r\n0\r\n\r\n",
             "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhello\r\n",
             "HTTP/1.1 200 OK\r\nContent-Length: 5x\r\n\r\n"})
        EXPECT_FALSE(answerTo(answer)) << answer;

    const ScriptedServer resetting([](Connection& connection) {
        connection.readRequestHead();
        connection.send("HTTP/1.0 200 OK\r\n\r\nhel");
        connection.reset();
    });
    EXPECT_FALSE(get(resetting.address()));
    EXPECT_FALSE(get("http://127.0.0.1:1/")) << "nobody listens there";
    EXPECT_FALSE(get("http://nowhere.invalid/"));
}

TEST(CurlHttpClient, AnAddressOfAnotherKindIsNeverAsked)
{
    for (const char* address : {"", "http://", "no address", "file:///etc/hostname", "http://127.0.0.1:99999/",
             "http://127.0.0.1/\r\nHost: x"})
        EXPECT_FALSE(get(address)) << address;
    EXPECT_FALSE(CurlHttpClient("").sendSynchronousRequest({}));

    const ScriptedServer other([](Connection&) {});
    for (const char* scheme : {"ftp", "gopher", "dict", "telnet", "smtp", "file"}) {
        const std::string location = scheme + std::string("://127.0.0.1:") + std::to_string(other.port()) + "/";
        EXPECT_FALSE(get(location)) << location;
        EXPECT_FALSE(answerTo("HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + location + "\r\n\r\n"))
            << location;
    }
    EXPECT_EQ(other.connectionCount(), 0);
}

TEST(CurlHttpClient, FiveRedirectionsAreFollowedAndALoopIsLeft)
{
    const ScriptedServer server([](Connection& connection) {
        const std::string head = connection.readRequestHead();
        const int left = std::atoi(head.c_str() + std::string_view("GET /").size());
        const std::string location = "Location: /" + std::to_string(left - 1) + "\r\n";
        connection.send(left == 0
                ? "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: 4\r\n\r\nhere"
                : "HTTP/1.1 301 Moved\r\nConnection: close\r\nContent-Length: 0\r\n" + location + "\r\n");
    });
    EXPECT_EQ(get(server.address("/5")), "here");
    EXPECT_FALSE(get(server.address("/6")));
    const int before = server.connectionCount();
    EXPECT_FALSE(get(server.address("/1000000")));
    EXPECT_EQ(server.connectionCount() - before, 6);
}

/// Sends `head` and then `piece` again and again; returns how much the client took before it went away.
std::size_t sentUntilFailure(std::string_view head, std::string_view piece)
{
    std::atomic<std::size_t> sent = 0;
    const ScriptedServer server([&](Connection& connection) {
        connection.readRequestHead();
        connection.send(head);
        while (connection.send(piece))
            sent += piece.size();
    });
    EXPECT_FALSE(get(server.address(), {.body = mebibyte})) << head;
    return sent;
}

TEST(CurlHttpClient, AnEndlessAnswerIsGivenUpAtItsLimit)
{
    const std::string x(10'000, 'x');
    constexpr std::size_t limitAndBuffers = 24 * mebibyte;
    EXPECT_LT(sentUntilFailure("HTTP/1.0 200 OK\r\n\r\n", x), limitAndBuffers);
    EXPECT_LT(sentUntilFailure("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n", "2710\r\n" + x + "\r\n"),
        limitAndBuffers);
    EXPECT_LT(sentUntilFailure("HTTP/1.1 200 OK\r\n", "X-Endless: yes\r\n"), limitAndBuffers);
    EXPECT_LT(sentUntilFailure("HTTP/1.1 200 OK\r\nX-Long: ", x), limitAndBuffers);
    EXPECT_LT(sentUntilFailure("", "HTTP/1.1 102 Processing\r\n\r\n"), limitAndBuffers);

    std::string lines;
    for (int line = 0; line < 10; ++line)
        lines += "X-Line: " + x + "\r\n";
    const std::string begin = "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n";
    EXPECT_EQ(answerTo(begin + lines + "\r\n"), "");
    EXPECT_FALSE(answerTo(begin + lines + lines + lines + "\r\n"));
}

TEST(CurlHttpClient, ABodyAnnouncedAsTooLargeIsNotWaitedFor)
{
    const ScriptedServer server([](Connection& connection) {
        connection.readRequestHead();
        connection.send("HTTP/1.1 200 OK\r\nContent-Length: 67108865\r\n\r\n");
        connection.waitUntilClosed();
    });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(get(server.address()));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 20s);

    const ScriptedServer exact(ScriptedServer::answering("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello"));
    EXPECT_EQ(get(exact.address(), {.body = 5}), "hello");
}

TEST(CurlHttpClient, ASilentOrDribblingServerIsLeftInTime)
{
    for (const bool isSilent : {true, false}) {
        const ScriptedServer server([&](Connection& connection) {
            connection.readRequestHead();
            if (isSilent)
                connection.waitUntilClosed();
            else if (connection.send("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n"))
                while (connection.send("x") && connection.wait(20ms)) { }
        });
        const auto start = std::chrono::steady_clock::now();
        EXPECT_FALSE(get(server.address(), {}, 200ms));
        EXPECT_FALSE(get(server.address(), {.wholeRequest = 200ms}));
        EXPECT_LT(std::chrono::steady_clock::now() - start, 20s);
    }
}

TEST(CurlHttpClient, ANameServerThatDoesNotAnswerIsLeftInTime)
{
    EXPECT_FALSE(get("http://silent.invalid/", {}, 200ms));
    EXPECT_TRUE(comesToHold([] { return waitingLookups > 0; })) << "waited to the end";
    isSilenceOver = true;
    EXPECT_TRUE(comesToHold([] { return waitingLookups == 0; }));
}

TEST(CurlHttpClient, ServersAreSentWhatTheRequestSays)
{
    std::mutex mutex;
    std::string received;
    const ScriptedServer server([&](Connection& connection) {
        const std::lock_guard lock(mutex);
        received = connection.readRequestHead();
        received += received.starts_with("POST") ? connection.read(9) : "";
        connection.send("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n");
    });
    HttpRequest request;
    request.address = server.address("/testget.php?file=a%20b");
    ASSERT_TRUE(CurlHttpClient("1.2.3").sendSynchronousRequest(request));
    EXPECT_TRUE(received.starts_with("GET /testget.php?file=a%20b HTTP/1.1\r\n")) << received;
    EXPECT_NE(received.find("User-Agent: Sonavel/1.2.3\r\n"), std::string::npos);
    for (const char* header : {"Cache-Control", "Accept-Encoding", "Cookie", "Expect"})
        EXPECT_EQ(received.find(header), std::string::npos) << received;

    request.cachePolicy = HttpRequest::CachePolicy::ReloadIgnoringLocalCache;
    ASSERT_TRUE(CurlHttpClient("1.2.3").sendSynchronousRequest(request));
    EXPECT_NE(received.find("Cache-Control: no-cache\r\n"), std::string::npos);

    request.method = HttpRequest::Method::Post;
    request.body = std::string("file=\0abc", 9);
    request.headers = {{"X-One", "1"}, {"Content-Type", "text/plain"}};
    ASSERT_TRUE(CurlHttpClient("1.2.3").sendSynchronousRequest(request));
    EXPECT_TRUE(received.starts_with("POST ") && received.ends_with("\r\n\r\n" + request.body)) << received;
    EXPECT_NE(received.find("Content-Length: 9\r\n"), std::string::npos);
    EXPECT_NE(received.find("X-One: 1\r\n"), std::string::npos);
    EXPECT_NE(received.find("Content-Type: text/plain\r\n"), std::string::npos);
}

TEST(CurlHttpClient, TheProxyOfTheEnvironmentIsUsedForOtherMachinesAlone)
{
    const ScriptedServer proxy(ScriptedServer::answering("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nproxy"));
    const ScriptedServer own(ScriptedServer::answering("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nown"));
    ::setenv("http_proxy", proxy.address("").c_str(), 1);
    ::setenv("no_proxy", "exempt.invalid", 1);
    EXPECT_EQ(get("http://elsewhere.invalid/"), "proxy");
    EXPECT_FALSE(get("http://exempt.invalid/"));
    EXPECT_EQ(get(own.address()), "own");
    ::setenv("no_proxy", "*", 1);
    EXPECT_FALSE(get("http://elsewhere.invalid/"));
    ::unsetenv("no_proxy");
    EXPECT_EQ(get("http://elsewhere.invalid/"), "proxy");
    EXPECT_EQ(get(own.address()), "own");
    ::unsetenv("http_proxy");
}

TEST(CurlHttpClient, WithoutALimitNothingIsSent)
{
    const ScriptedServer server(ScriptedServer::answering("HTTP/1.1 200 OK\r\n\r\n"));
    constexpr std::size_t refusedByLibcurl = std::numeric_limits<std::size_t>::max();
    EXPECT_FALSE(get(server.address(), {.body = refusedByLibcurl}));
    EXPECT_EQ(server.connectionCount(), 0);
}

TEST(CurlHttpClient, AServerWhoseCertificateNobodyVouchesForIsNotTrusted)
{
    const test::SelfSignedTls tls("HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: 5\r\n\r\nhello");
    const ScriptedServer server([&](Connection& connection) { tls.serve(connection.descriptor()); });
    EXPECT_FALSE(get("https://localhost:" + std::to_string(server.port()) + "/"));
    EXPECT_EQ(server.connectionCount(), 1);
}

} // namespace
} // namespace sonavel
