// The status of the stream, as all see it who show it.
#pragma once

#include "base/NonCopyable.h"
#include "platform/StreamPlayer.h"

#include <functional>
#include <utility>
#include <vector>

namespace sonavel {

/// Main thread. Borrows the players, whose only observer it is.
class StreamStatus : private NonCopyable {
public:
    explicit StreamStatus(StreamPlayers& streamPlayers)
    {
        streamPlayers.setObserver([this](const StreamReport& report) {
            report_ = report;
            for (const auto& observer : observers_)
                observer();
        });
    }

    [[nodiscard]] const StreamReport& report() const { return report_; }

    /// Calls `observer` after every change of the report; it may come in the middle of an action.
    void addObserver(std::function<void()> observer) { observers_.push_back(std::move(observer)); }

private:
    StreamReport report_;
    std::vector<std::function<void()>> observers_;
};

} // namespace sonavel
