#include "server/Stations.h"

// The music is part of the executable; pages of it are loaded when they are first sent.
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): it generates symbol names for the assembler.
#define SONAVEL_MUSIC(name)                                                                                            \
    __asm__(".pushsection .rodata\n"                                                                                   \
            ".global sonavelMusic_" #name "\n"                                                                         \
            "sonavelMusic_" #name ":\n"                                                                                \
            ".incbin \"" SONAVEL_DEMO_FOLDER "/" #name ".mp3\"\n"                                                      \
            ".global sonavelMusicEnd_" #name "\n"                                                                      \
            "sonavelMusicEnd_" #name ":\n"                                                                             \
            ".popsection\n");                                                                                          \
    extern "C" const char sonavelMusic_##name[];                                                                       \
    extern "C" const char sonavelMusicEnd_##name[];

SONAVEL_MUSIC(harbour)
SONAVEL_MUSIC(lamplight)
SONAVEL_MUSIC(orchard)

namespace sonavel {

namespace {

std::string_view musicBetween(const char* begin, const char* end)
{
    return {begin, static_cast<std::size_t>(end - begin)};
}

} // namespace

const std::vector<DemoStation>& demoStations()
{
    static const std::vector<DemoStation> stations{
        {"Harbour Calm", "/demo/harbour.mp3", musicBetween(sonavelMusic_harbour, sonavelMusicEnd_harbour),
            {"The Quiet Harbour - First Light", "The Quiet Harbour - Slack Water", "The Quiet Harbour - Far Bell"}},
        {"Lamplight Radio", "/demo/lamplight.mp3", musicBetween(sonavelMusic_lamplight, sonavelMusicEnd_lamplight),
            {"The Late Window - Warm Rain", "The Late Window - Last Tram", "The Late Window - Two Cups"}},
        {"Orchard Waltz", "/demo/orchard.mp3", musicBetween(sonavelMusic_orchard, sonavelMusicEnd_orchard),
            {"The Orchard Trio - Under the Pears", "The Orchard Trio - Swallows", "The Orchard Trio - Evening Gate"}},
    };
    return stations;
}

} // namespace sonavel
