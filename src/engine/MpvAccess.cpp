#include "engine/MpvAccess.h"

#include <mpv/client.h>

#include <array>

namespace sonavel {

bool flagProperty(mpv_handle* player, const char* name)
{
    int value = 0;
    return mpv_get_property(player, name, MPV_FORMAT_FLAG, &value) >= 0 && value != 0;
}

std::string textProperty(mpv_handle* player, const char* name)
{
    char* value = mpv_get_property_string(player, name);
    std::string result = value == nullptr ? "" : value;
    mpv_free(value);
    return result;
}

std::string titleFromMetadata(mpv_handle* player)
{
    std::string title = textProperty(player, "metadata/by-key/icy-title");
    if (!title.empty())
        return title;
    title = textProperty(player, "metadata/by-key/title");
    const std::string artist = textProperty(player, "metadata/by-key/artist");
    return title.empty() || artist.empty() ? title : artist + " - " + title;
}

void setPause(mpv_handle* player, bool isPaused)
{
    int pause = isPaused ? 1 : 0;
    mpv_set_property(player, "pause", MPV_FORMAT_FLAG, &pause);
}

/// The output that sound servers offer has a volume of its own, which they remember from the last run and which exists
/// only while it is open.
bool setVolume(mpv_handle* player, float volume, bool isMuted)
{
    const std::string output = textProperty(player, "current-ao");
    const bool hasOwnVolume = output == "pulse" || output == "pipewire";
    double percent = 100.0 * volume;
    double full = 100.0;
    int muted = isMuted ? 1 : 0;
    int unmuted = 0;
    mpv_set_property(player, "volume", MPV_FORMAT_DOUBLE, hasOwnVolume ? &full : &percent);
    mpv_set_property(player, "mute", MPV_FORMAT_FLAG, hasOwnVolume ? &unmuted : &muted);
    if (hasOwnVolume) {
        mpv_set_property(player, "ao-volume", MPV_FORMAT_DOUBLE, &percent);
        mpv_set_property(player, "ao-mute", MPV_FORMAT_FLAG, &muted);
    }
    return !output.empty();
}

void endPlaying(mpv_handle* player)
{
    std::array<const char*, 2> arguments{"stop", nullptr};
    (void)mpv_command(player, arguments.data());
}

PlaybackFailure failureFromError(int error)
{
    switch (error) {
    case MPV_ERROR_UNKNOWN_FORMAT:
    case MPV_ERROR_NOTHING_TO_PLAY:
        return PlaybackFailure::NotAStream;
    case MPV_ERROR_AO_INIT_FAILED:
        return PlaybackFailure::NoSoundOutput;
    default:
        return PlaybackFailure::Unknown;
    }
}

} // namespace sonavel
