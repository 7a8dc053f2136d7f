#include "adapters/engineclient/EngineProcessFixture.h"
#include "support/SelfSignedTls.h"

#include <csignal>

namespace sonavel::test {
namespace {

using namespace std::chrono_literals;
using HostileStreams = EngineProcessTest;

std::string answer(std::string_view type, std::string_view body)
{
    return "HTTP/1.0 200 OK\r\nContent-Type: " + std::string(type) + "\r\n\r\n" + std::string(body);
}

TEST_F(HostileStreams, WhatIsNoStreamSaysWhyAndTheNextOneStillPlays)
{
    const std::string page = "<!DOCTYPE html><html><body>" + std::string(3000, 'x') + "</body></html>";
    const std::vector<std::pair<std::string, PlaybackFailure>> rows{
        {"HTTP/1.0 404 Not Found\r\nContent-Length: 0\r\n\r\n", PlaybackFailure::NotFound},
        {"HTTP/1.0 403 Forbidden\r\nContent-Length: 0\r\n\r\n", PlaybackFailure::NotAllowed},
        {"HTTP/1.0 503 Busy\r\nContent-Length: 0\r\n\r\n", PlaybackFailure::ServerError},
        {answer("text/html", page), PlaybackFailure::NotAStream},
        {"HTTP/1.0 410 Gone\r\nContent-Length: 0\r\n\r\n", PlaybackFailure::Rejected},
        {answer("audio/mpeg", ""), PlaybackFailure::NotAStream},
        {answer("audio/x-mpegurl", "#EXTM3U\n"), PlaybackFailure::NotAStream},
        {answer("audio/x-scpls", "[playlist]\nNumberOfEntries=0\n"), PlaybackFailure::NotAStream},
        {answer("audio/x-mpegurl", "#EXTM3U\nagain.m3u\n"), PlaybackFailure::NotAStream},
        {answer("audio/x-mpegurl", "#EXTM3U\nhttp://127.0.0.1:1/\n"), PlaybackFailure::Refused},
        {"", PlaybackFailure::Unknown},
        {"no server of the web at all\r\n", PlaybackFailure::Unknown},
        {"HTTP/1.0 302 Found\r\nLocation: /\r\nContent-Length: 0\r\n\r\n", PlaybackFailure::Unknown},
    };
    const ScriptedServer good(playTone);
    for (const auto& [text, failure] : rows) {
        const ScriptedServer bad(ScriptedServer::answering(text));
        play(bad.address("/certificate")); // What an address contains is no reason.
        EXPECT_TRUE(failsWith(failure)) << text.substr(0, 40);
        EXPECT_TRUE(loop_.runUntil([&] { return bad.connectionCount() >= 2; })) << "not tried again";
        play(good.address());
        EXPECT_TRUE(comesTo(State::Playing)) << text.substr(0, 40);
    }
    EXPECT_GE(errors_, static_cast<int>(rows.size()));
}

TEST_F(HostileStreams, AHostThatCannotBeReachedSaysWhy)
{
    // The engine goes away from a server that it does not trust.
    ::signal(SIGPIPE, SIG_IGN);
    const SelfSignedTls tls("HTTP/1.0 200 OK\r\n\r\n");
    const ScriptedServer forged([&](ScriptedServer::Connection& connection) { tls.serve(connection.descriptor()); });
    const std::vector<std::pair<std::string, PlaybackFailure>> rows{
        {"http://127.0.0.1:1/", PlaybackFailure::Refused},
        {"rtsp://127.0.0.1:1/", PlaybackFailure::Refused},
        {"mms://127.0.0.1:1/", PlaybackFailure::Refused},
        {"http://nobody..example/", PlaybackFailure::NoSuchHost},
        {"https" + forged.address().substr(4), PlaybackFailure::Certificate},
    };
    for (const auto& [address, failure] : rows) {
        play(address);
        EXPECT_TRUE(failsWith(failure)) << address;
    }
}

TEST_F(HostileStreams, NothingLeadsToALocalFileOrIntoTheEngine)
{
    // One that the confined engine can read: other files are out of its reach anyway.
    const std::string file = "/etc/passwd";
    const std::vector<std::string> addresses{"file://" + file, file, "av://lavfi:sine", "lavf://file:" + file,
        "memory://x", "fd://0", "fdclose://0", "edl://" + file, "concat:" + file, "archive://" + file, "--ao=null",
        "http://", ""};
    for (const std::string& address : addresses) {
        play(address);
        EXPECT_TRUE(failsWith(PlaybackFailure::NotUsable)) << address;
    }
    for (const std::string& entry : {"file://" + file, file, std::string("av://lavfi:sine"), "lavf://file:" + file,
             std::string("memory://x"), std::string("fd://0"), "edl://" + file, "archive://" + file}) {
        for (const std::string& list :
            {"#EXTM3U\n" + entry + "\n", "[playlist]\nNumberOfEntries=1\nFile1=" + entry + "\n"}) {
            const ScriptedServer server(ScriptedServer::answering(answer("audio/x-scpls", list)));
            play(server.address());
            EXPECT_TRUE(failsWith(PlaybackFailure::NotUsable)) << list;
        }
        // What a decoder opens by itself.
        const std::vector<std::pair<std::string, std::string>> references{
            {"application/vnd.apple.mpegurl", "#EXTM3U\n#EXT-X-TARGETDURATION:9\n#EXTINF:9,\n" + entry + "\n"},
            {"application/octet-stream", "# mpv EDL v0\n" + entry + "\n"},
            {"application/octet-stream", "ffconcat version 1.0\nfile '" + entry + "'\n"},
        };
        for (const auto& [type, list] : references) {
            const ScriptedServer server(ScriptedServer::answering(answer(type, list)));
            play(server.address());
            EXPECT_TRUE(comesTo(State::Reconnecting)) << list;
            EXPECT_FALSE(states_.contains(State::Playing)) << list;
        }
    }
}

TEST_F(HostileStreams, APlaylistLeadsToItsStream)
{
    const ScriptedServer stream(playTone);
    for (const std::string& list :
        {"#EXTM3U\n" + stream.address() + "\n", "[playlist]\nNumberOfEntries=1\nFile1=" + stream.address() + "\n"}) {
        const ScriptedServer server(ScriptedServer::answering(answer("audio/x-scpls", list)));
        play(server.address());
        EXPECT_TRUE(comesTo(State::Playing)) << list;
        player_.reset();
    }
}

TEST_F(HostileStreams, AStreamThatNeverComesToItsSoundIsGivenUp)
{
    use({.connectTimeout = 500ms});
    const ScriptedServer endlessHead([](ScriptedServer::Connection& connection) {
        connection.send("HTTP/1.0 200 OK\r\n");
        while (connection.send("X-Filler: " + std::string(1000, 'x') + "\r\n") && connection.wait(1ms)) { }
    });
    const ScriptedServer noAnswer([](ScriptedServer::Connection& connection) { connection.waitUntilClosed(); });
    for (const std::string& address :
        {endlessHead.address(), noAnswer.address(), "rtsp" + noAnswer.address().substr(4)}) {
        play(address);
        EXPECT_TRUE(failsWith(PlaybackFailure::TimedOut)) << address;
    }
    use({.connectTimeout = 3s});
    const ScriptedServer noise([](ScriptedServer::Connection& connection) {
        connection.readRequestHead();
        connection.send(answer("audio/mpeg", {}));
        unsigned byte = 1;
        while (connection.wait(10ms) && connection.send(std::string(100, static_cast<char>(byte *= 37)))) { }
    });
    play(noise.address());
    EXPECT_TRUE(failsWith(PlaybackFailure::NotAStream));
}

TEST_F(HostileStreams, AServerThatNeverAnswersDoesNotLeaveTheReasonOpen)
{
    const ScriptedServer server([](ScriptedServer::Connection& connection) { connection.waitUntilClosed(); });
    play(server.address());
    EXPECT_TRUE(loop_.runUntil([&] { return lastFailure_.has_value(); }, 60s));
    EXPECT_EQ(lastFailure_, PlaybackFailure::TimedOut);
}

TEST_F(HostileStreams, AReasonStaysUntilTheStreamSoundsOrAnotherOneIsKnown)
{
    std::atomic<int> count = 0;
    std::atomic<bool> isToGoOn = false;
    const ScriptedServer server([&](ScriptedServer::Connection& connection) {
        const int attempt = ++count;
        if (attempt <= 3)
            connection.readRequestHead();
        if (attempt == 1)
            connection.send("HTTP/1.0 404 Not Found\r\nContent-Length: 0\r\n\r\n");
        else if (attempt == 3)
            while (!isToGoOn && connection.wait(5ms)) { }
        else if (attempt > 3)
            playTone(connection);
    });
    play(server.address());
    EXPECT_TRUE(failsWith(PlaybackFailure::NotFound));
    EXPECT_TRUE(loop_.runUntil([&] { return count == 3; }));
    EXPECT_EQ(shown_.state, State::Reconnecting);
    EXPECT_EQ(shown_.failure, PlaybackFailure::NotFound);
    EXPECT_EQ(shown_.reconnectIn, 0s) << "an attempt is under way";
    isToGoOn = true;
    EXPECT_TRUE(comesTo(State::Playing));
}

TEST_F(HostileStreams, ATitleInAnyEncodingIsShown)
{
    for (const auto& [sent, shown] :
        {std::pair("Bj\xF6rk \x96 J\xF3ga", "Björk – Jóga"), {"It's a \x01\n'title'", "It's a   'title'"}}) {
        const ScriptedServer server(titledTone(sent));
        play(server.address());
        EXPECT_TRUE(loop_.runUntil([&] { return shown_.title == Text(shown); })) << shown;
        player_.reset();
    }
    std::string head = toneHead();
    head.insert(head.find("data"), std::string("LIST\x1C\0\0\0INFOIART\3\0\0\0Ann\0INAM\4\0\0\0Song", 36));
    const ScriptedServer tagged([&](ScriptedServer::Connection& connection) {
        connection.readRequestHead();
        connection.send(std::string(toneAnswer) + head + tone(toneBeginning));
        connection.waitUntilClosed();
    });
    play(tagged.address());
    EXPECT_TRUE(loop_.runUntil([&] { return shown_.title == Text("Ann - Song"); }));
}

} // namespace
} // namespace sonavel::test
