// Players of streams that only note what is said to them.
#pragma once

#include "platform/StreamPlayer.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace sonavel {

/// What became of one player. It is kept when the player is gone.
struct RecordedPlayer {
    Text address;
    Text name;
    float volume = 1.0F;
    bool isMuted = false;
    bool isPlaying = false;
    bool isGone = false;
    /// What was said to it, in order: "volume", "muted", "play", "pause".
    std::vector<std::string> said;
    /// Called when it goes.
    std::function<void()> whenGone = [] {};
};

class RecordingStreamPlayers : public StreamPlayers {
public:
    /// Every player that was made, in order.
    std::vector<std::shared_ptr<RecordedPlayer>> players;

    /// Reports the stream's status.
    Observer report;
    void setObserver(Observer observer) override { report = std::move(observer); }

    [[nodiscard]] RecordedPlayer& last() const { return *players.back(); }

    std::unique_ptr<StreamPlayer> playerWithPlayerItem(std::shared_ptr<const PlayerItem> item) override
    {
        players.push_back(std::make_shared<RecordedPlayer>());
        last().address = item->address;
        last().name = item->name;
        return std::make_unique<Recorder>(players.back());
    }

private:
    class Recorder : public StreamPlayer {
    public:
        explicit Recorder(std::shared_ptr<RecordedPlayer> record)
            : record_(std::move(record))
        {
        }
        ~Recorder() override
        {
            record_->isGone = true;
            record_->whenGone();
        }

        void play() override { note("play").isPlaying = true; }
        void pause() override { note("pause").isPlaying = false; }
        void setVolume(float volume) override { note("volume").volume = volume; }
        void setMuted(bool muted) override { note("muted").isMuted = muted; }

    private:
        RecordedPlayer& note(const char* what)
        {
            record_->said.emplace_back(what);
            return *record_;
        }

        std::shared_ptr<RecordedPlayer> record_;
    };
};

} // namespace sonavel
