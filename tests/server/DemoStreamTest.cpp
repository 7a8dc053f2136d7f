#include "server/IcyStream.h"
#include "server/Stations.h"

#include <gtest/gtest.h>

#include <set>

namespace sonavel {
namespace {

/// What a listener makes of a stream with titles: the music alone, and every title in turn.
struct Heard {
    explicit Heard(std::string_view bytes)
    {
        while (bytes.size() > IcyStream::titleInterval) {
            music += bytes.substr(0, IcyStream::titleInterval);
            bytes.remove_prefix(IcyStream::titleInterval);
            const std::size_t length = 16U * static_cast<unsigned char>(bytes.front());
            const std::string_view block = bytes.substr(1, length);
            if (length > 0)
                titles.emplace_back(block.substr(0, block.find('\0')));
            bytes.remove_prefix(std::min(1 + length, bytes.size()));
        }
    }

    std::string music;
    std::vector<std::string> titles;
};

/// The length of the MP3 frame at the head, 0 when there is none.
std::size_t frameLength(std::string_view bytes)
{
    const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(bytes[index]); };
    const bool isFrame = bytes.size() >= 4 && byte(0) == 0xFF && (byte(1) & 0xFEU) == 0xFA && (byte(2) & 0xFCU) == 0x90;
    return isFrame ? 144 * 128'000 / 44'100 + ((byte(2) >> 1U) & 1U) : 0;
}

TEST(DemoStream, FramesAndTitlesStayInTheirPlacesPastTheEndOfTheLoop)
{
    for (const DemoStation& station : demoStations()) {
        EXPECT_GE(station.music.size(), 30 * IcyStream::bytesPerSecond) << station.name;
        IcyStream stream(station, IcyStream::Titles::Interleaved);
        std::string bytes;
        while (stream.musicSent() < 2 * station.music.size() + IcyStream::titleInterval)
            bytes += stream.next(4096);
        const Heard heard(bytes);

        std::string_view rest = heard.music;
        while (rest.size() > 1000) {
            const std::size_t length = frameLength(rest);
            ASSERT_NE(length, 0U) << station.name << " at " << heard.music.size() - rest.size();
            rest.remove_prefix(length);
        }
        ASSERT_GE(heard.titles.size(), 2 * station.titles.size());
        EXPECT_EQ(std::set(heard.titles.begin(), heard.titles.end()).size(), station.titles.size());
        EXPECT_EQ(heard.titles.front(), "StreamTitle='" + station.titles.front() + "';");
        EXPECT_TRUE(IcyStream(station, IcyStream::Titles::None).next(10'000) == station.music.substr(0, 10'000));
    }
}

} // namespace
} // namespace sonavel
