// Streams of a tone over HTTP, made as they are sent.
#pragma once

#include "support/ScriptedServer.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace sonavel::test {

inline constexpr unsigned toneRate = 44100;

/// Enough for libmpv to recognise the stream and play it.
inline constexpr std::chrono::milliseconds toneBeginning = std::chrono::seconds(2);

/// So much of a steady tone, as 16-bit stereo samples.
inline std::string tone(std::chrono::milliseconds length)
{
    std::string samples;
    for (unsigned index = 0; index < toneRate * length.count() / 1000; ++index) {
        const auto sample = static_cast<std::int16_t>(index % 100 < 50 ? 9000 : -9000);
        const std::array<char, 2> bytes{static_cast<char>(sample & 0xFF), static_cast<char>((sample >> 8) & 0xFF)};
        samples.append({bytes[0], bytes[1], bytes[0], bytes[1]});
    }
    return samples;
}

/// The head of a WAV file without an end.
inline std::string toneHead()
{
    const auto number = [](std::uint32_t value, int bytes) {
        std::string text;
        for (int index = 0; index < bytes; ++index)
            text += static_cast<char>((value >> (8 * index)) & 0xFFU);
        return text;
    };
    return "RIFF" + number(0xFFFFFFFF, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(2, 2)
        + number(toneRate, 4) + number(4 * toneRate, 4) + number(4, 2) + number(16, 2) + "data" + number(0xFFFFFFFF, 4);
}

inline constexpr std::string_view toneAnswer = "HTTP/1.0 200 OK\r\nContent-Type: audio/wav\r\n\r\n";

/// Answers the request with the beginning of a tone.
inline void beginTone(ScriptedServer::Connection& connection)
{
    connection.readRequestHead();
    connection.send(std::string(toneAnswer) + toneHead() + tone(toneBeginning));
}

/// Answers the request with a tone, at the speed of its sound, until the client or the server is gone.
inline void playTone(ScriptedServer::Connection& connection)
{
    using namespace std::chrono_literals;
    beginTone(connection);
    const std::string more = tone(100ms);
    while (connection.wait(100ms) && connection.send(more)) { }
}

/// A handler that answers the request with the beginning of a tone that bears a title, and keeps the connection open.
inline ScriptedServer::Handler titledTone(const std::string& title)
{
    const std::string about = "StreamTitle='" + title + "';";
    const std::string block =
        static_cast<char>((about.size() + 15) / 16) + about + std::string((16 - about.size() % 16) % 16, '\0');
    return [block](ScriptedServer::Connection& connection) {
        connection.readRequestHead();
        connection.send("ICY 200 OK\r\nContent-Type: audio/wav\r\nicy-metaint: 8000\r\n\r\n");
        const std::string sound = toneHead() + tone(toneBeginning);
        for (std::size_t begin = 0; begin < sound.size(); begin += 8000) {
            connection.send(sound.substr(begin, 8000));
            connection.send(begin == 0 ? block : std::string(1, '\0'));
        }
        connection.waitUntilClosed();
    };
}

} // namespace sonavel::test
