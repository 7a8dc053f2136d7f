#include "engine/Protocol.h"

#include "base/Ascii.h"
#include "base/Numbers.h"

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
    Word{"connecting", StreamState::Connecting},
    Word{"answered", StreamState::Answered},
    Word{"recognised", StreamState::Recognised},
    Word{"buffering", StreamState::Buffering},
    Word{"playing", StreamState::Playing},
};

constexpr std::array failureWords{
    Word{"unknown", PlaybackFailure::Unknown},
    Word{"no-such-host", PlaybackFailure::NoSuchHost},
    Word{"refused", PlaybackFailure::Refused},
    Word{"unreachable", PlaybackFailure::Unreachable},
    Word{"timed-out", PlaybackFailure::TimedOut},
    Word{"certificate", PlaybackFailure::Certificate},
    Word{"not-found", PlaybackFailure::NotFound},
    Word{"not-allowed", PlaybackFailure::NotAllowed},
    Word{"rejected", PlaybackFailure::Rejected},
    Word{"server-error", PlaybackFailure::ServerError},
    Word{"not-a-stream", PlaybackFailure::NotAStream},
    Word{"not-usable", PlaybackFailure::NotUsable},
    Word{"ended", PlaybackFailure::Ended},
    Word{"silent", PlaybackFailure::Silent},
    Word{"no-sound-output", PlaybackFailure::NoSoundOutput},
    Word{"engine-failed", PlaybackFailure::EngineFailed},
};

constexpr std::array bareWords{
    Word{"pause", BareCommand::Pause},
    Word{"resume", BareCommand::Resume},
    Word{"stop", BareCommand::Stop},
};

constexpr std::array flagWords{Word{"yes", true}, Word{"no", false}};

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

/// Whether a text is the last argument of its line, so that it may hold blanks.
enum class Place { Last, Before };

bool needsEscape(char character, Place place)
{
    return isAsciiControl(character) || character == '%' || (character == ' ' && place == Place::Before);
}

std::string escaped(std::string_view text, Place place)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (needsEscape(character, place))
            result.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
        else
            result += character;
    }
    return result;
}

template <class Number> std::optional<Number> numberFrom(std::string_view word, auto... base)
{
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number, base...);
    if (error != std::errc() || end != word.data() + word.size())
        return std::nullopt;
    return number;
}

/// Nothing when an escape is broken or the result is not valid UTF-8.
std::optional<Text> unescaped(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        if (text.front() != '%') {
            result += text.front();
            text.remove_prefix(1);
            continue;
        }
        const std::string_view digits = text.substr(1, 2);
        const auto byte = numberFrom<unsigned char>(digits, 16);
        if (digits.size() != 2 || !byte)
            return std::nullopt;
        result += static_cast<char>(*byte);
        text.remove_prefix(3);
    }
    if (!isValidUtf8(result))
        return std::nullopt;
    return Text(std::move(result));
}

/// Cuts the word at the head off, and the blank behind it.
std::string_view takeWord(std::string_view& line)
{
    const std::string_view word = line.substr(0, line.find(' '));
    line.remove_prefix(std::min(word.size() + 1, line.size()));
    return word;
}

std::string lineOf(std::initializer_list<std::string_view> words)
{
    std::string line;
    for (const std::string_view word : words)
        line.append(line.empty() ? "" : " ").append(word);
    return line + '\n';
}

struct CommandLine {
    std::string operator()(const LoadCommand& command) const
    {
        return lineOf({"load", std::to_string(command.load), escaped(command.address.view(), Place::Before),
            escaped(command.name.view(), Place::Last)});
    }
    std::string operator()(BareCommand command) const { return lineOf({wordOf(bareWords, command)}); }
    std::string operator()(const VolumeCommand& command) const
    {
        return lineOf({"volume", sixDecimalsText(command.volume).view()});
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

/// The message with that value as its last field; nothing without the value.
template <class Message, class Value, class... Fields>
std::optional<Message> messageWith(const std::optional<Value>& value, Fields... before)
{
    if (!value)
        return std::nullopt;
    return Message{before..., *value};
}

std::optional<LoadCommand> loadFrom(std::string_view arguments)
{
    const auto load = numberFrom<std::uint64_t>(takeWord(arguments));
    const auto address = unescaped(takeWord(arguments));
    if (!load || !address)
        return std::nullopt;
    return messageWith<LoadCommand>(unescaped(arguments), *load, *address);
}

std::optional<VolumeCommand> volumeFrom(std::string_view arguments)
{
    const auto volume = numberFrom<float>(arguments);
    if (!volume || !(*volume >= 0.0F && *volume <= 1.0F))
        return std::nullopt;
    return VolumeCommand{*volume};
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
    const std::string_view word = takeWord(line);
    if (word == "load")
        return loadFrom(line);
    if (word == "volume")
        return volumeFrom(line);
    if (word == "muted")
        return messageWith<MutedCommand>(valueOf(flagWords, line));
    return line.empty() ? valueOf(bareWords, word) : std::nullopt;
}

std::optional<EngineEvent> eventFromLine(std::string_view line)
{
    const std::string_view word = takeWord(line);
    const auto load = numberFrom<std::uint64_t>(takeWord(line));
    if (!load)
        return std::nullopt;
    if (word == "state")
        return messageWith<StateEvent>(valueOf(stateWords, line), *load);
    if (word == "failed")
        return messageWith<FailedEvent>(valueOf(failureWords, line), *load);
    if (word == "title")
        return messageWith<TitleEvent>(unescaped(line), *load);
    return std::nullopt;
}

} // namespace sonavel
