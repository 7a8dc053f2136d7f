#include "engine/MpvEngine.h"

#include "engine/FailureReason.h"
#include "engine/MpvAccess.h"
#include "engine/StreamTitle.h"
#include "model/StreamAddress.h"

#include <mpv/client.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace sonavel {

namespace {

/// A server can make playlists lead to playlists for ever.
constexpr int maxAttempts = 20;
/// What libmpv logs as soon as a server has answered. Other levels choose a demuxer by the address, and for "rtsp" it
/// is the demuxer that connects then.
constexpr std::string_view answerSign = "Trying demuxers for level=normal";

} // namespace

std::unique_ptr<MpvEngine> MpvEngine::create(SendEvent sendEvent)
{
    mpv_handle* player = createMpv();
    return std::unique_ptr<MpvEngine>(player == nullptr ? nullptr : new MpvEngine(player, std::move(sendEvent)));
}

MpvEngine::MpvEngine(mpv_handle* player, SendEvent sendEvent)
    : player_(player)
    , sendEvent_(std::move(sendEvent))
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
    } else if (const auto* bare = std::get_if<BareCommand>(&command)) {
        if (*bare == BareCommand::Stop)
            return stop();
        isPaused_ = *bare == BareCommand::Pause;
        applyPause();
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
    isPaused_ = false;
    const Text address = usableStreamAddress(command.address);
    if (address.isAbsent()) {
        failure_ = PlaybackFailure::NotUsable;
        showFailure();
        return;
    }
    applyPause();
    (void)mpv_set_property_string(player_, "force-media-title", command.name.string().c_str());
    const std::string file = address.string();
    std::array<const char*, 3> arguments{"loadfile", file.c_str(), nullptr};
    if (mpv_command(player_, arguments.data()) < 0
        || mpv_get_property(player_, "playlist/0/id", MPV_FORMAT_INT64, &firstEntry_) < 0) {
        failure_ = PlaybackFailure::Unknown;
        showFailure();
    }
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
    // Log lines, which give the reason, come after the events that they belong to.
    showFailure();
}

void MpvEngine::handle(const mpv_event& event)
{
    switch (event.event_id) {
    case MPV_EVENT_HOOK:
        return checkAddress(event);
    case MPV_EVENT_LOG_MESSAGE:
        return noteLogLine(event);
    case MPV_EVENT_START_FILE:
        return noteStart(event);
    case MPV_EVENT_FILE_LOADED:
        return noteProgress(StreamState::Recognised);
    case MPV_EVENT_END_FILE:
        return noteEnd(event);
    case MPV_EVENT_AUDIO_RECONFIG:
        return applySound();
    case MPV_EVENT_PROPERTY_CHANGE:
        showState();
        return showTitle();
    default:
        return;
    }
}

/// Whatever a playlist leads to has to be as usable as an address that the user chose.
void MpvEngine::checkAddress(const mpv_event& event)
{
    const auto* hook = static_cast<const mpv_event_hook*>(event.data);
    if (usableStreamAddress(textProperty(player_, "stream-open-filename")).isAbsent()) {
        failure_ = PlaybackFailure::NotUsable;
        (void)mpv_set_property_string(player_, "stream-open-filename", "");
    }
    if (++attempts_ > maxAttempts) {
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
    const bool sounds = !flagProperty(player_, "core-idle");
    const StreamState state = sounds ? StreamState::Playing : progress_;
    if (sounds)
        progress_ = StreamState::Buffering;
    if (state == shownState_)
        return;
    shownState_ = state;
    sendEvent_(StateEvent{*load_, state});
}

void MpvEngine::showTitle()
{
    if (!load_)
        return;
    Text shown = streamTitle(titleFromMetadata(player_));
    if (shown == shownTitle_ || (shown.isEmpty() && shownTitle_.isAbsent()))
        return;
    shownTitle_ = shown;
    sendEvent_(TitleEvent{*load_, std::move(shown)});
}

/// Once libmpv has nothing left to play, the load is over.
void MpvEngine::showFailure()
{
    if (!load_ || !failure_ || !flagProperty(player_, "idle-active"))
        return;
    const FailedEvent event{*std::exchange(load_, std::nullopt), *failure_};
    sendEvent_(event);
}

/// A load stays paused until the sound output has its volume.
void MpvEngine::applySound()
{
    soundIsSet_ = setVolume(player_, volume_, isMuted_);
    applyPause();
}

void MpvEngine::applyPause()
{
    setPause(player_, isPaused_ || !soundIsSet_);
}

} // namespace sonavel
