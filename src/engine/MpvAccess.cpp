#include "engine/MpvAccess.h"

#include <mpv/client.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace sonavel {

namespace {

struct Option {
    const char* name;
    const char* value;
};

/// Where a stream may lead to, and what carries it.
constexpr const char* usableProtocols =
    "protocol_whitelist=[http,https,httpproxy,tcp,tls,udp,rtp,rtsp,rtmp,rtmpt,rtmps,mmsh,mmst,crypto]";
/// Opening a broken stream again is the player's business.
constexpr const char* noReconnecting = ",reconnect=0,reconnect_streamed=0";

/// The defaults are made for films from the user's disk. A radio plays sound from strangers.
constexpr std::array options{
    Option{"config", "no"},
    Option{"load-scripts", "no"},
    // Scripts of its own for a screen that is never there; to run them it reads every font of the system.
    Option{"osc", "no"},
    Option{"load-osd-console", "no"},
    Option{"load-stats-overlay", "no"},
    Option{"load-auto-profiles", "no"},
    Option{"ytdl", "no"},
    Option{"terminal", "no"},
    Option{"input-default-bindings", "no"},
    Option{"vid", "no"},
    Option{"sid", "no"},
    Option{"audio-display", "no"},
    Option{"load-unsafe-playlists", "no"},
    Option{"autoload-files", "no"},
    Option{"idle", "yes"},
    Option{"cache", "yes"},
    Option{"cache-on-disk", "no"},
    Option{"demuxer-max-bytes", "3MiB"},
    // With nothing kept, the titles that lie between the music are lost.
    Option{"demuxer-max-back-bytes", "256KiB"},
    // The player gives a stream up before that.
    Option{"network-timeout", "30"},
    Option{"tls-verify", "yes"},
    Option{"metadata-codepage", "utf-8"},
    Option{"audio-client-name", "Sonavel"},
    // What sound servers call the stream.
    Option{"title", "${force-media-title}"},
    Option{"user-agent", "Sonavel"},
    // A sound server that speaks the older protocol is the common case, and the quickest to ask.
    Option{"ao", "pulse,pipewire,"},
    // A large buffer saves most of the processor time; volume and muting of the output itself are heard at once.
    Option{"pulse-buffer", "1000"},
    Option{"replaygain", "no"},
};

bool set(mpv_handle* player, const char* name, const std::string& value)
{
    return mpv_set_option_string(player, name, value.c_str()) >= 0;
}

bool setOptions(mpv_handle* player)
{
    const char* output = std::getenv("SONAVEL_AUDIO_OUTPUT");
    const bool hasOutput = output != nullptr && *output != '\0';
    return std::all_of(options.begin(), options.end(),
               [player](const Option& option) { return set(player, option.name, option.value); })
        && set(player, "stream-lavf-o", std::string(usableProtocols) + noReconnecting)
        && set(player, "demuxer-lavf-o", usableProtocols) && (!hasOutput || set(player, "ao", output));
}

void subscribe(mpv_handle* player)
{
    mpv_request_log_messages(player, "v");
    for (const char* property : {"core-idle", "idle-active", "metadata"})
        mpv_observe_property(player, 0, property, MPV_FORMAT_NONE);
    mpv_hook_add(player, 0, "on_load", 0);
}

} // namespace

mpv_handle* createMpv()
{
    mpv_handle* player = mpv_create();
    if (player != nullptr && setOptions(player) && mpv_initialize(player) >= 0) {
        subscribe(player);
        return player;
    }
    mpv_terminate_destroy(player);
    return nullptr;
}

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
