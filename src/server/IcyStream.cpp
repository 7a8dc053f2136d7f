#include "server/IcyStream.h"

#include <algorithm>

namespace sonavel {

IcyStream::IcyStream(const DemoStation& station, Titles titles)
    : station_(station)
    , titles_(titles)
{
}

std::string IcyStream::next(std::size_t musicBytes)
{
    const std::string_view loop = station_.music;
    const std::size_t place = musicSent_ % loop.size();
    std::size_t length = std::min(musicBytes, loop.size() - place);
    if (titles_ == Titles::Interleaved)
        length = std::min(length, titleInterval - musicSent_ % titleInterval);
    std::string piece(loop.substr(place, length));
    musicSent_ += length;
    if (titles_ == Titles::Interleaved && musicSent_ % titleInterval == 0)
        piece += titleBlock();
    return piece;
}

/// One byte that counts the blocks of 16 bytes which follow; none follow when the title is the same as before.
std::string IcyStream::titleBlock()
{
    const std::size_t part = musicSent_ % station_.music.size() * station_.titles.size() / station_.music.size();
    const std::string& title = station_.titles[part];
    if (title == lastTitle_)
        return std::string(1, '\0');
    lastTitle_ = title;
    std::string block = "StreamTitle='" + title + "';";
    block.resize((block.size() + 15) / 16 * 16);
    return static_cast<char>(block.size() / 16) + block;
}

} // namespace sonavel
