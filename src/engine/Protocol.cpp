#include "engine/Protocol.h"

#include "engine/Escaping.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace sonavel {

namespace {

template <class Value> struct Word {
    std::string_view word;
    Value value;
};
template <class Value> Word(const char*, Value) -> Word<Value>;

constexpr std::array stateWords{
    Word<StreamState>{"connecting", StreamState::Connecting},
    Word<StreamState>{"answered", StreamState::Answered},
    Word<StreamState>{"recognised", StreamState::Recognised},
    Word<StreamState>{"buffering", StreamState::Buffering},
    Word<StreamState>{"playing", StreamState::Playing},
};

constexpr std::array failureWords{
    Word<PlaybackFailure>{"unknown", PlaybackFailure::Unknown},
    Word<PlaybackFailure>{"no-such-host", PlaybackFailure::NoSuchHost},
    Word<PlaybackFailure>{"refused", PlaybackFailure::Refused},
    Word<PlaybackFailure>{"unreachable", PlaybackFailure::Unreachable},
    Word<PlaybackFailure>{"timed-out", PlaybackFailure::TimedOut},
    Word<PlaybackFailure>{"certificate", PlaybackFailure::Certificate},
    Word<PlaybackFailure>{"not-found", PlaybackFailure::NotFound},
    Word<PlaybackFailure>{"not-allowed", PlaybackFailure::NotAllowed},
    Word<PlaybackFailure>{"rejected", PlaybackFailure::Rejected},
    Word<PlaybackFailure>{"server-error", PlaybackFailure::ServerError},
    Word<PlaybackFailure>{"not-a-stream", PlaybackFailure::NotAStream},
    Word<PlaybackFailure>{"not-usable", PlaybackFailure::NotUsable},
    Word<PlaybackFailure>{"ended", PlaybackFailure::Ended},
    Word<PlaybackFailure>{"silent", PlaybackFailure::Silent},
    Word<PlaybackFailure>{"no-sound-output", PlaybackFailure::NoSoundOutput},
    Word<PlaybackFailure>{"engine-failed", PlaybackFailure::EngineFailed},
};

constexpr std::array flagWords{Word<bool>{"yes", true}, Word<bool>{"no", false}};

template <class Words, class Value> std::string_view wordOf(const Words& words, Value value)
{
    return std::find_if(words.begin(), words.end(), [value](const auto& entry) { return entry.value == value; })->word;
}

template <class Words>
auto valueOf(const Words& words, std::string_view word) -> std::optional<decltype(words[0].value)>
{
    const auto found =
        std::find_if(words.begin(), words.end(), [word](const auto& entry) { return entry.word == word; });
    if (found == words.end())
        return std::nullopt;
    return found->value;
}

/// Cuts the word at the head off, and the blank behind it.
std::string_view takeWord(std::string_view& line)
{
    const std::string_view word = line.substr(0, line.find(' '));
    line.remove_prefix(std::min(word.size() + 1, line.size()));
    return word;
}

template <class Number> std::optional<Number> numberFrom(std::string_view word)
{
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size())
        return std::nullopt;
    return number;
}

std::string lineOf(std::initializer_list<std::string_view> words)
{
    std::string line;
    for (const std::string_view word : words)
        line.append(line.empty() ? "" : " ").append(word);
    return line + '\n';
}

std::string volumeText(float volume)
{
    std::array<char, 64> digits{};
    const auto result =
        std::to_chars(digits.data(), digits.data() + digits.size(), volume, std::chars_format::fixed, 6);
    return {digits.data(), result.ptr};
}

struct CommandLine {
    std::string operator()(const LoadCommand& command) const
    {
        return lineOf({"load", std::to_string(command.load), escaped(command.address.view(), Place::Before),
            escaped(command.name.view(), Place::Last)});
    }
    std::string operator()(const PauseCommand&) const { return lineOf({"pause"}); }
    std::string operator()(const ResumeCommand&) const { return lineOf({"resume"}); }
    std::string operator()(const StopCommand&) const { return lineOf({"stop"}); }
    std::string operator()(const VolumeCommand& command) const
    {
        return lineOf({"volume", volumeText(command.volume)});
    }
    std::string operator()(const MutedCommand& command) const
    {
        return lineOf({"muted", wordOf(flagWords, command.isMuted)});
    }
};

struct EventLine {
    std::string operator()(const StateEvent& event) const
    {
        return lineOf({"state", std::to_string(event.load), wordOf(stateWords, event.state)});
    }
    std::string operator()(const FailedEvent& event) const
    {
        return lineOf({"failed", std::to_string(event.load), wordOf(failureWords, event.failure)});
    }
    std::string operator()(const TitleEvent& event) const
    {
        return lineOf({"title", std::to_string(event.load), escaped(event.title.view(), Place::Last)});
    }
};

std::optional<EngineCommand> loadFrom(std::string_view arguments)
{
    const auto load = numberFrom<std::uint64_t>(takeWord(arguments));
    const auto address = unescaped(takeWord(arguments));
    const auto name = unescaped(arguments);
    if (!load || !address || !name)
        return std::nullopt;
    return LoadCommand{*load, *address, *name};
}

std::optional<EngineCommand> volumeFrom(std::string_view arguments)
{
    const auto volume = numberFrom<float>(arguments);
    if (!volume || !(*volume >= 0.0F && *volume <= 1.0F))
        return std::nullopt;
    return VolumeCommand{*volume};
}

std::optional<EngineCommand> mutedFrom(std::string_view arguments)
{
    const auto isMuted = valueOf(flagWords, arguments);
    if (!isMuted)
        return std::nullopt;
    return MutedCommand{*isMuted};
}

template <class Command> std::optional<EngineCommand> bareFrom(std::string_view arguments)
{
    if (!arguments.empty())
        return std::nullopt;
    return Command{};
}

std::optional<EngineEvent> stateFrom(std::uint64_t load, std::string_view argument)
{
    const auto state = valueOf(stateWords, argument);
    if (!state)
        return std::nullopt;
    return StateEvent{load, *state};
}

std::optional<EngineEvent> failedFrom(std::uint64_t load, std::string_view argument)
{
    const auto failure = valueOf(failureWords, argument);
    if (!failure)
        return std::nullopt;
    return FailedEvent{load, *failure};
}

std::optional<EngineEvent> titleFrom(std::uint64_t load, std::string_view argument)
{
    const auto title = unescaped(argument);
    if (!title)
        return std::nullopt;
    return TitleEvent{load, *title};
}

} // namespace

std::string lineFromCommand(const EngineCommand& command)
{
    return std::visit(CommandLine(), command);
}

std::string lineFromEvent(const EngineEvent& event)
{
    return std::visit(EventLine(), event);
}

std::optional<EngineCommand> commandFromLine(std::string_view line)
{
    constexpr std::array readers{
        Word{"load", &loadFrom},
        Word{"pause", &bareFrom<PauseCommand>},
        Word{"resume", &bareFrom<ResumeCommand>},
        Word{"stop", &bareFrom<StopCommand>},
        Word{"volume", &volumeFrom},
        Word{"muted", &mutedFrom},
    };
    const auto reader = valueOf(readers, takeWord(line));
    return reader ? (*reader)(line) : std::nullopt;
}

std::optional<EngineEvent> eventFromLine(std::string_view line)
{
    constexpr std::array readers{
        Word{"state", &stateFrom},
        Word{"failed", &failedFrom},
        Word{"title", &titleFrom},
    };
    const auto reader = valueOf(readers, takeWord(line));
    const auto load = numberFrom<std::uint64_t>(takeWord(line));
    return reader && load ? (*reader)(*load, line) : std::nullopt;
}

} // namespace sonavel
