#include "server/HttpServer.h"

#include "server/DataServer.h"
#include "server/HttpConnection.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <deque>
#include <future>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace sonavel {
namespace {

constexpr char listen[] = "GET /demo/orchard.mp3 HTTP/1.1\r\nRange: bytes=0-\r\n\r\n";
constexpr char ask[] = "GET / HTTP/1.1\r\nConnection: close\r\n\r\n";
constexpr char granted[] = "HTTP/1.1 200 ";

std::unique_ptr<DataServer> startedServer()
{
    DataServerSettings settings;
    settings.content = DataServerSettings::Content::Demo;
    return DataServer::create(settings).value();
}

int portOf(const DataServer& server)
{
    const std::string address = server.baseAddress().string();
    return std::stoi(address.substr(address.rfind(':') + 1));
}

/// Connected to a server on loopback, for what no library would send: half a request, one without an end, or nothing at
/// all. No wait is longer than 30 s.
class RawClient : private NonCopyable {
public:
    explicit RawClient(const DataServer& server)
        : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in peer{};
        peer.sin_family = AF_INET;
        peer.sin_port = htons(static_cast<std::uint16_t>(portOf(server)));
        peer.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (connect(socket_, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) != 0)
            throw std::runtime_error("the server takes no connection");
    }
    ~RawClient() { close(socket_); }

    /// False when the server takes no more.
    bool send(std::string_view bytes) const
    {
        while (!bytes.empty() && waitFor(POLLOUT)) {
            const ssize_t sent = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
            if (sent < 0)
                return false;
            bytes.remove_prefix(static_cast<std::size_t>(sent));
        }
        return bytes.empty();
    }

    /// The next `size` bytes; fewer when the server closes before.
    [[nodiscard]] std::string read(std::size_t size) const
    {
        std::string received;
        std::array<char, 16 * 1024> piece{};
        while (received.size() < size && waitFor(POLLIN)) {
            const ssize_t count = recv(socket_, piece.data(), std::min(piece.size(), size - received.size()), 0);
            if (count <= 0)
                break;
            received.append(piece.data(), static_cast<std::size_t>(count));
        }
        return received;
    }

private:
    [[nodiscard]] bool waitFor(short events) const
    {
        pollfd waiting{socket_, events, 0};
        return poll(&waiting, 1, 30'000) > 0;
    }

    int socket_;
};

std::string responseTo(const DataServer& server, std::string_view request)
{
    const RawClient client(server);
    EXPECT_TRUE(client.send(request));
    return client.read(std::string_view(granted).size());
}

TEST(HttpServer, ARequestWithoutEndIsGivenUp)
{
    const auto server = startedServer();
    const std::string piece(1 << 20, 'a');
    for (const std::string beginning : {"", "GET / HTTP/1.1\r\nName: ", "GET /?file="}) {
        const RawClient client(*server);
        std::size_t taken = 0;
        for (client.send(beginning); taken < 64 && client.send(piece);)
            ++taken;
        EXPECT_LT(taken, 64U) << beginning;
    }
    EXPECT_EQ(responseTo(*server, ask), granted);
}

TEST(HttpServer, AFormThatIsTooBigIsRefusedInWords)
{
    const auto server = startedServer();
    const RawClient client(*server);
    client.send("POST /app_data_files/testpost.php HTTP/1.1\r\nContent-Type: application/x-www-form-urlencoded\r\n"
                "Content-Length: 300000\r\n\r\n"
        + std::string(300'000, 'a'));
    EXPECT_EQ(client.read(13), "HTTP/1.1 413 ");
}

TEST(HttpServer, AConnectionServesAsManyRequestsAsItSays)
{
    const auto server = startedServer();
    const RawClient client(*server);
    for (int request = 0; request < 30; ++request)
        client.send("GET / HTTP/1.1\r\n\r\n");
    const std::string responses = client.read(1 << 20);
    EXPECT_NE(responses.find("max=20"), std::string::npos) << responses.substr(0, 300);
    int count = 0;
    for (std::size_t found = 0; (found = responses.find(granted, found)) != std::string::npos; ++found)
        ++count;
    EXPECT_EQ(count, 20);
}

TEST(HttpConnection, ARequestBeyondTheLimitIsDrainedAfterTheEndOfTheResponse)
{
    const std::string tooMuch(1 << 15, 'a');
    const auto isTakenAfterTheEnd = [&] {
        std::array<int, 2> sockets{};
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()), 0);
        std::thread server([&] {
            HttpConnection connection(sockets[0]);
            EXPECT_TRUE(connection.awaitRequest());
            std::array<char, 4096> piece{};
            while (connection.read(piece.data(), piece.size()) > 0) { }
            EXPECT_TRUE(connection.isLimitExceeded());
        });
        for (int piece = 0; piece < 5; ++piece)
            EXPECT_EQ(::send(sockets[1], tooMuch.data(), tooMuch.size(), MSG_NOSIGNAL), std::ssize(tooMuch));
        char byte = 0;
        EXPECT_EQ(::recv(sockets[1], &byte, 1, 0), 0);
        std::this_thread::sleep_for(
            std::chrono::milliseconds(50)); // a connection that is closed at once is closed then
        const bool isTaken = ::send(sockets[1], "a", 1, MSG_NOSIGNAL) == 1;
        ::close(sockets[1]);
        server.join();
        return isTaken;
    };
    bool isTaken = false;
    for (int attempt = 0; attempt < 5 && !isTaken; ++attempt) // The rest is taken for half a second.
        isTaken = isTakenAfterTheEnd();
    EXPECT_TRUE(isTaken);
}

TEST(HttpServer, ListenersWithoutEndLeaveRoomForRequests)
{
    const auto server = startedServer();
    std::deque<RawClient> listeners;
    const auto isSeated = [&] {
        listeners.emplace_back(*server).send(listen);
        return listeners.back().read(std::string_view(granted).size()) == granted;
    };
    std::size_t seated = 0;
    while (seated < 100 && isSeated())
        ++seated;
    EXPECT_GE(seated, 8U);
    EXPECT_LT(seated, 100U);
    EXPECT_EQ(responseTo(*server, ask), granted);
}

TEST(HttpServer, HalfRequestsOnEveryConnectionHoldUpAPlayersProbeForLessThanItWaits)
{
    const auto server = startedServer();
    std::deque<RawClient> halfway;
    for (int client = 0; client < HttpServer::maxConnections; ++client)
        EXPECT_TRUE(halfway.emplace_back(*server).send("GET / HT"));
    httplib::Client probe("127.0.0.1", portOf(*server));
    probe.set_read_timeout(std::chrono::seconds(5));
    EXPECT_TRUE(probe.Get("/"));
}

TEST(HttpServer, ClientsWhoDoNothingDoNotHoldUpItsEnd)
{
    auto server = startedServer();
    const RawClient silent(*server);
    const RawClient halfway(*server);
    const RawClient listening(*server);
    ASSERT_TRUE(halfway.send("GET / HT"));
    ASSERT_TRUE(listening.send(listen));
    ASSERT_FALSE(listening.read(1).empty());
    std::deque<RawClient> moreThanThreads;
    for (int client = 0; client < HttpServer::maxConnections; ++client)
        moreThanThreads.emplace_back(*server);

    const auto beginning = std::chrono::steady_clock::now();
    server.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - beginning, std::chrono::seconds(2));
    EXPECT_EQ(silent.read(1) + halfway.read(1), "");
}

TEST(HttpServer, ItsEndLeavesDescriptorsAloneThatItsFormerConnectionsHad)
{
    auto server = startedServer();
    {
        std::deque<RawClient> clients;
        for (int client = 0; client < 8; ++client)
            clients.emplace_back(*server);
        for (const RawClient& client : clients)
            EXPECT_TRUE(client.send(ask) && client.read(1 << 16).starts_with(granted));
    }
    EXPECT_EQ(responseTo(*server, ask), granted);
    std::array<std::array<int, 2>, 8> pairs{};
    for (auto& pair : pairs)
        ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair.data()), 0);
    server.reset();
    for (const auto& pair : pairs) {
        for (const int end : pair)
            EXPECT_EQ(::send(end, "a", 1, MSG_NOSIGNAL), 1);
        ::close(pair[0]);
        ::close(pair[1]);
    }
}

TEST(HttpServer, ItsEndEndsTheWaitForTheNextPieceOfAStream)
{
    HttpServer server;
    ASSERT_TRUE(server.listenAt("127.0.0.1", 0));
    server.start();
    auto isTimeForThePiece = std::async(std::launch::async,
        [&] { return server.waitUntil(std::chrono::steady_clock::now() + std::chrono::minutes(1)); });
    EXPECT_EQ(isTimeForThePiece.wait_for(std::chrono::milliseconds(20)), std::future_status::timeout);
    server.end();
    ASSERT_EQ(isTimeForThePiece.wait_for(std::chrono::seconds(30)), std::future_status::ready);
    EXPECT_FALSE(isTimeForThePiece.get());
}

TEST(HttpServer, APortInUseIsReportedInOneSentence)
{
    const auto server = startedServer();
    DataServerSettings same;
    same.port = portOf(*server);
    for (const std::string host : {"127.0.0.1", "192.0.2.1", "no address"}) {
        same.address = host;
        const auto refused = DataServer::create(same);
        ASSERT_FALSE(refused) << host;
        EXPECT_NE(refused.error().find(host), std::string::npos);
        EXPECT_EQ(refused.error().back(), '.');
    }
}

} // namespace
} // namespace sonavel
