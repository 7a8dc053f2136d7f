#include "engine/MpvEngine.h"

#include "engine/FailureReason.h"
#include "engine/MpvSetUp.h"
#include "engine/StreamTitle.h"
#include "playback/StreamAddress.h"

#include <mpv/client.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace sonavel {

namespace {

/// A server can make playlists lead to playlists for ever.
constexpr int mostAttempts = 20;
/// What libmpv logs as soon as a server has answered. Other levels choose a demuxer by the address, and for "rtsp" it
/// is the demuxer that connects then.
constexpr std::string_view answerSign = "Trying demuxers for level=normal";

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

} // namespace

std::unique_ptr<MpvEngine> MpvEngine::create(Tell tell)
{
    mpv_handle* player = createMpv();
    if (player == nullptr)
        return nullptr;
    mpv_request_log_messages(player, "v");
    for (const char* property : {"core-idle", "idle-active", "metadata"})
        mpv_observe_property(player, 0, property, MPV_FORMAT_NONE);
    mpv_hook_add(player, 0, "on_load", 0);
    return std::unique_ptr<MpvEngine>(new MpvEngine(player, std::move(tell)));
}

MpvEngine::MpvEngine(mpv_handle* player, Tell tell)
    : player_(player)
    , tell_(std::move(tell))
{
}

MpvEngine::~MpvEngine()
{
    mpv_terminate_destroy(player_);
}

void MpvEngine::perform(const EngineCommand& command)
{
    if (const auto* loading = std::get_if<LoadCommand>(&command)) {
        load(*loading);
    } else if (std::holds_alternative<HoldCommand>(command)) {
        setHeld(true);
    } else if (std::holds_alternative<ContinueCommand>(command)) {
        setHeld(false);
    } else if (std::holds_alternative<StopCommand>(command)) {
        stop();
    } else if (const auto* volume = std::get_if<VolumeCommand>(&command)) {
        volume_ = volume->volume;
        applySound();
    } else if (const auto* muting = std::get_if<MutedCommand>(&command)) {
        isMuted_ = muting->isMuted;
        applySound();
    }
}

void MpvEngine::load(const LoadCommand& command)
{
    stop();
    load_ = command.load;
    isHeld_ = false;
    const Text address = usableStreamAddress(command.address);
    if (address.isAbsent()) {
        failure_ = PlaybackFailure::NotUsable;
        showFailure();
        return;
    }
    applyHold();
    (void)mpv_set_property_string(player_, "force-media-title", command.name.string().c_str());
    const std::string file = address.string();
    std::array<const char*, 3> arguments{"loadfile", file.c_str(), nullptr};
    if (mpv_command(player_, arguments.data()) < 0
        || mpv_get_property(player_, "playlist/0/id", MPV_FORMAT_INT64, &firstEntry_) < 0) {
        failure_ = PlaybackFailure::Unknown;
        showFailure();
    }
}

void MpvEngine::setHeld(bool isHeld)
{
    isHeld_ = isHeld;
    applyHold();
}

void MpvEngine::stop()
{
    load_.reset();
    failure_.reset();
    shownState_.reset();
    shownTitle_ = Text();
    attempts_ = 0;
    hasBegun_ = false;
    progress_ = StreamState::Connecting;
    soundIsSet_ = false;
    endPlaying(player_);
}

int MpvEngine::wakeUpDescriptor() const
{
    return mpv_get_wakeup_pipe(player_);
}

void MpvEngine::handleEvents()
{
    for (;;) {
        const mpv_event* event = mpv_wait_event(player_, 0);
        if (event->event_id == MPV_EVENT_NONE)
            break;
        handle(*event);
    }
    // Log lines, which tell the reason, come after the events that they belong to.
    showFailure();
}

void MpvEngine::handle(const mpv_event& event)
{
    switch (event.event_id) {
    case MPV_EVENT_HOOK:
        checkAddress(event);
        break;
    case MPV_EVENT_LOG_MESSAGE:
        noteLogLine(event);
        break;
    case MPV_EVENT_START_FILE:
        noteStart(event);
        break;
    case MPV_EVENT_FILE_LOADED:
        noteProgress(StreamState::Recognised);
        break;
    case MPV_EVENT_END_FILE:
        noteEnd(event);
        break;
    case MPV_EVENT_AUDIO_RECONFIG:
        applySound();
        break;
    case MPV_EVENT_PROPERTY_CHANGE:
        showState();
        showTitle();
        break;
    default:
        break;
    }
}

/// Whatever a playlist leads to has to be as usable as an address that the user chose.
void MpvEngine::checkAddress(const mpv_event& event)
{
    const auto* hook = static_cast<const mpv_event_hook*>(event.data);
    if (usableStreamAddress(text("stream-open-filename")).isAbsent()) {
        failure_ = PlaybackFailure::NotUsable;
        (void)mpv_set_property_string(player_, "stream-open-filename", "");
    }
    if (++attempts_ > mostAttempts) {
        failure_ = PlaybackFailure::NotAStream;
        endPlaying(player_);
    }
    (void)mpv_hook_continue(player_, hook->id);
}

void MpvEngine::noteLogLine(const mpv_event& event)
{
    const auto* message = static_cast<const mpv_event_log_message*>(event.data);
    if (!load_ || !hasBegun_)
        return;
    if (message->log_level > MPV_LOG_LEVEL_WARN) {
        if (std::string_view(message->prefix) == "demux" && std::string_view(message->text).starts_with(answerSign))
            noteProgress(StreamState::Answered);
        return;
    }
    // It may come after the end that it explains.
    const bool isUnexplained = !failure_ || *failure_ == PlaybackFailure::Unknown;
    if (const auto failure = failureFromLogLine(message->text); failure && isUnexplained)
        failure_ = failure;
}

void MpvEngine::noteProgress(StreamState progress)
{
    progress_ = std::max(progress_, progress);
    showState();
}

void MpvEngine::noteStart(const mpv_event& event)
{
    if (!isPresentEntry(static_cast<const mpv_event_start_file*>(event.data)->playlist_entry_id))
        return;
    hasBegun_ = true;
    progress_ = StreamState::Connecting;
    showState();
}

void MpvEngine::noteEnd(const mpv_event& event)
{
    const auto* end = static_cast<const mpv_event_end_file*>(event.data);
    const bool isPlaylist = end->reason == MPV_END_FILE_REASON_REDIRECT;
    if (!isPresentEntry(end->playlist_entry_id) || (isPlaylist && end->playlist_insert_num_entries > 0))
        return;
    soundIsSet_ = false;
    if (end->reason == MPV_END_FILE_REASON_EOF)
        failure_ = PlaybackFailure::Ended;
    else if (isPlaylist)
        failure_ = PlaybackFailure::NotAStream;
    else if (!failure_ || failureFromError(end->error) == PlaybackFailure::NoSoundOutput)
        failure_ = failureFromError(end->error);
}

void MpvEngine::showState()
{
    if (!load_ || !hasBegun_)
        return;
    const bool sounds = !flag("core-idle");
    const StreamState state = sounds ? StreamState::Playing : progress_;
    if (sounds)
        progress_ = StreamState::Buffering;
    if (state == shownState_)
        return;
    shownState_ = state;
    tell_(StateEvent{*load_, state});
}

void MpvEngine::showTitle()
{
    if (!load_)
        return;
    std::string title = text("metadata/by-key/icy-title");
    if (title.empty())
        title = text("metadata/by-key/title");
    const std::string artist = text("metadata/by-key/artist");
    if (!title.empty() && !artist.empty() && text("metadata/by-key/icy-title").empty())
        title.insert(0, artist + " - ");
    Text shown = streamTitle(title);
    if (shown == shownTitle_ || (shown.isEmpty() && shownTitle_.isAbsent()))
        return;
    shownTitle_ = shown;
    tell_(TitleEvent{*load_, std::move(shown)});
}

/// Once libmpv has nothing left to play, the load is over.
void MpvEngine::showFailure()
{
    if (!load_ || !failure_ || !flag("idle-active"))
        return;
    const FailedEvent event{*std::exchange(load_, std::nullopt), *failure_};
    tell_(event);
}

/// The output that sound servers offer has a volume of its own, which they remember from the last run and which exists
/// only while it is open. So a load is held until it is set.
void MpvEngine::applySound()
{
    const std::string output = text("current-ao");
    const bool hasOwnVolume = output == "pulse" || output == "pipewire";
    double percent = 100.0 * volume_;
    double full = 100.0;
    int muted = isMuted_ ? 1 : 0;
    int unmuted = 0;
    mpv_set_property(player_, "volume", MPV_FORMAT_DOUBLE, hasOwnVolume ? &full : &percent);
    mpv_set_property(player_, "mute", MPV_FORMAT_FLAG, hasOwnVolume ? &unmuted : &muted);
    if (hasOwnVolume) {
        mpv_set_property(player_, "ao-volume", MPV_FORMAT_DOUBLE, &percent);
        mpv_set_property(player_, "ao-mute", MPV_FORMAT_FLAG, &muted);
    }
    soundIsSet_ = !output.empty();
    applyHold();
}

void MpvEngine::applyHold()
{
    int pause = isHeld_ || !soundIsSet_ ? 1 : 0;
    mpv_set_property(player_, "pause", MPV_FORMAT_FLAG, &pause);
}

bool MpvEngine::flag(const char* property) const
{
    int value = 0;
    return mpv_get_property(player_, property, MPV_FORMAT_FLAG, &value) >= 0 && value != 0;
}

std::string MpvEngine::text(const char* property) const
{
    char* value = mpv_get_property_string(player_, property);
    std::string result = value == nullptr ? "" : value;
    mpv_free(value);
    return result;
}

} // namespace sonavel
