#include "qt/windows/Messages.h"

#include "platform/StreamPlayer.h"
#include "qt/kit/TextConversion.h"

namespace sonavel {

namespace {

const char* keyOf(PlaybackFailure failure)
{
    switch (failure) {
    case PlaybackFailure::NoSuchHost:
        return "FAILURE_NO_SUCH_HOST";
    case PlaybackFailure::Refused:
        return "FAILURE_REFUSED";
    case PlaybackFailure::Unreachable:
        return "FAILURE_UNREACHABLE";
    case PlaybackFailure::TimedOut:
        return "FAILURE_TIMED_OUT";
    case PlaybackFailure::Certificate:
        return "FAILURE_CERTIFICATE";
    case PlaybackFailure::NotFound:
        return "FAILURE_NOT_FOUND";
    case PlaybackFailure::NotAllowed:
        return "FAILURE_NOT_ALLOWED";
    case PlaybackFailure::Rejected:
        return "FAILURE_REJECTED";
    case PlaybackFailure::ServerError:
        return "FAILURE_SERVER_ERROR";
    case PlaybackFailure::NotAStream:
        return "FAILURE_NOT_A_STREAM";
    case PlaybackFailure::NotUsable:
        return "FAILURE_NOT_USABLE";
    case PlaybackFailure::Ended:
        return "FAILURE_ENDED";
    case PlaybackFailure::Silent:
        return "FAILURE_SILENT";
    case PlaybackFailure::NoSoundOutput:
        return "FAILURE_NO_SOUND_OUTPUT";
    case PlaybackFailure::EngineFailed:
        return "FAILURE_ENGINE_FAILED";
    case PlaybackFailure::Unknown:
        break;
    }
    return "FAILURE_UNKNOWN";
}

const char* keyOf(UserFile::Kind kind)
{
    switch (kind) {
    case UserFile::Kind::StationList:
        return "NOTICE_STATIONS_NOT_SAVED";
    case UserFile::Kind::Preferences:
        return "NOTICE_PREFERENCES_NOT_SAVED";
    default:
        return "NOTICE_FILE_NOT_SAVED";
    }
}

QString titleOr(const char* key, const Text& title)
{
    return title.isEmpty() ? qtTrId(key) : onOneLine(toQString(title));
}

QString brokenText(const StreamReport& report)
{
    const auto seconds = report.reconnectIn.count();
    const QString reason = qtTrId(keyOf(report.failure));
    if (seconds == 0)
        return filledIn("NOW_PLAYING_TRYING", reason);
    const Text text = filledIn(toText(qtTrId("NOW_PLAYING_TRYING_IN")), static_cast<long>(seconds));
    return toQString(filledIn(text, toText(reason)));
}

} // namespace

QString nowPlayingText(const StreamReport& report)
{
    switch (report.state) {
    case StreamReport::State::Connecting:
        return qtTrId("NOW_PLAYING_CONNECTING");
    case StreamReport::State::Buffering:
        return qtTrId("NOW_PLAYING_BUFFERING");
    case StreamReport::State::Playing:
        return titleOr("NOW_PLAYING_UNTITLED", report.title);
    case StreamReport::State::Paused:
        return titleOr("NOW_PLAYING_PAUSED", report.title);
    case StreamReport::State::Reconnecting:
        return brokenText(report);
    case StreamReport::State::Nothing:
        break;
    }
    return qtTrId("NOW_PLAYING_NOTHING");
}

QString saveFailureText(const UserFile& file, const std::error_code& why)
{
    return filledIn(keyOf(file.kind), onOneLine(QString::fromStdString(why.message())));
}

} // namespace sonavel
