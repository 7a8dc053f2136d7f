#include "playback/StreamStatus.h"

namespace sonavel {

StreamStatus::StreamStatus(StreamPlayers& streamPlayers)
{
    streamPlayers.setObserver([this](const StreamReport& report) {
        report_ = report;
        for (const auto& observer : observers_)
            observer();
    });
}

} // namespace sonavel
