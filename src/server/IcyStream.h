// An endless MP3 stream of one loop, with ICY metadata where the client asked for it.
#pragma once

#include "server/Stations.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace sonavel {

/// Each listener has one, which starts at the beginning of the loop.
class IcyStream {
public:
    enum class Titles { None, Interleaved };

    /// The number of audio bytes between two metadata blocks.
    static constexpr std::size_t titleInterval = 16'000;
    /// The bit rate of the music.
    static constexpr std::size_t bytesPerSecond = 16'000;

    /// `station` has to outlive the stream.
    IcyStream(const DemoStation& station, Titles titles);

    /// The next piece of the stream: at most `musicBytes` bytes of audio, followed by a metadata block when one is due.
    [[nodiscard]] std::string next(std::size_t musicBytes);

    /// The number of audio bytes sent so far.
    [[nodiscard]] std::size_t musicSent() const { return musicSent_; }

private:
    [[nodiscard]] std::string titleBlock();

    const DemoStation& station_;
    const Titles titles_;
    std::size_t musicSent_ = 0;
    std::string lastTitle_;
};

} // namespace sonavel
