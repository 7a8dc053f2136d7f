#include "engine/Protocol.h"

#include "engine/LineReader.h"
#include "engine/StreamTitle.h"
#include "model/StreamAddress.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

const std::vector<std::string> hostileTexts{"", " ", "http://host/a b", "a\nstop\n", "\r\n\t\x7F", "%", "%41", "100 %",
    "Bj\xC3\xB6rk \xE2\x80\x93 \xF0\x9F\x8E\xB5", std::string("a\0b", 3)};

TEST(Protocol, NoTextCanSayMoreThanItself)
{
    for (const std::string& text : hostileTexts) {
        const LoadCommand command{18446744073709551615U, text, text};
        const TitleEvent event{7, text};
        for (std::string line : {lineFromCommand(command), lineFromEvent(event)}) {
            ASSERT_EQ(line.find('\n'), line.size() - 1);
            line.pop_back();
            const auto readCommand = commandFromLine(line);
            const auto readEvent = eventFromLine(line);
            EXPECT_TRUE(readCommand == EngineCommand(command) || readEvent == EngineEvent(event)) << line;
        }
    }
}

std::string withoutLineFeed(std::string line)
{
    line.pop_back();
    return line;
}

TEST(Protocol, EveryVolumeStateAndReasonComesBack)
{
    for (const float volume : {0.0F, 0.5F, 1.0F})
        EXPECT_EQ(commandFromLine(withoutLineFeed(lineFromCommand(VolumeCommand{volume}))),
            EngineCommand(VolumeCommand{volume}));
    for (int state = 0; state <= static_cast<int>(StreamState::Playing); ++state) {
        const EngineEvent event = StateEvent{7, static_cast<StreamState>(state)};
        EXPECT_EQ(eventFromLine(withoutLineFeed(lineFromEvent(event))), event) << state;
    }
    for (int reason = 0; reason <= static_cast<int>(PlaybackFailure::EngineFailed); ++reason) {
        const EngineEvent event = FailedEvent{7, static_cast<PlaybackFailure>(reason)};
        EXPECT_EQ(eventFromLine(withoutLineFeed(lineFromEvent(event))), event) << reason;
    }
}

TEST(Protocol, LinesThatAreNotOfTheProtocolAreIgnored)
{
    for (const char* line : {"", " ", "load", "loud 1 http://a/", "load -1 http://a/", "load 1x http://a/",
             "load 18446744073709551616 http://a/", "load 1 http://a/%4", "load 1 http://a/%zz", "load 1 http://a/% 1",
             "load 1 http://a/%FF", "load 1 \xFF", "load 1 http://a/ %4", "load 1 http://a/ \xFF", "stop now", " pause",
             "HOLD", "volume", "volume 1.1", "volume -0.1", "volume nan", "volume inf", "volume 0,5", "volume 0.5 ",
             "volume 1e99", "muted", "muted maybe", "muted yes no"})
        EXPECT_FALSE(commandFromLine(line).has_value()) << line;
    for (const char* line : {"", "state", "state playing", "state 1", "state 1 dancing", "state 1 playing ", "title x",
             "title 1 %0", "title 1 \xC3", "failed 1", "failed 1 no reason", "failed one ended", "load 1 http://a/"})
        EXPECT_FALSE(eventFromLine(line).has_value()) << line;
}

TEST(Protocol, LinesComeOutWholeWhateverPiecesTheyComeIn)
{
    const std::string bytes = "pause\n\nstop\n" + std::string(LineReader::maxLine, 'x') + "\nresume\n";
    for (const std::size_t piece : {std::size_t{1}, std::size_t{5}, std::size_t{4096}, bytes.size()}) {
        LineReader reader;
        std::vector<std::string> lines;
        for (std::size_t begin = 0; begin < bytes.size(); begin += piece) {
            reader.append(std::string_view(bytes).substr(begin, piece));
            while (const auto line = reader.nextLine())
                lines.push_back(*line);
        }
        EXPECT_EQ(
            lines, (std::vector<std::string>{"pause", "", "stop", std::string(LineReader::maxLine, 'x'), "resume"}));
    }
}

TEST(Protocol, ALineThatNeverEndsIsDroppedAndTheNextOneIsRead)
{
    LineReader reader;
    for (int piece = 0; piece < 1000; ++piece) {
        reader.append(std::string(4096, 'x'));
        ASSERT_FALSE(reader.nextLine().has_value());
    }
    reader.append("the rest of it\npause\n");
    EXPECT_EQ(reader.nextLine(), "pause");
}

TEST(Protocol, TheLongestAddressAndNameFitALine)
{
    const std::string address = "http://host/" + std::string(maxAddressLength - 12, '%');
    LineReader reader;
    const LoadCommand command{1, address, streamTitle(std::string(10'000, '%'))};
    reader.append(lineFromCommand(command));
    const auto line = reader.nextLine();
    ASSERT_TRUE(line.has_value());
    EXPECT_EQ(commandFromLine(*line), EngineCommand(command));
}

TEST(StreamTitle, WhateverBytesAServerSendsAreOneShortLineOfText)
{
    const std::vector<std::pair<std::string, std::string>> rows{
        {"", ""},
        {" \t\n ", ""},
        {"  Title\r\n", "Title"},
        {"one\ntwo\x7Fthree", "one two three"},
        {std::string("a\0b", 3), "a b"},
        {"\x80 5 \x96 M\xFCller\x81", "€ 5 – Müller"},
        {"a\xE2\x80\xA8z\xE2\x80\xAE", "a z"},
        {"\xD7\xA9\xE2\x80\x8F!", "\xD7\xA9\xE2\x80\x8F!"},
    };
    for (const auto& [bytes, title] : rows)
        EXPECT_EQ(streamTitle(bytes), Text(title));
}

TEST(StreamTitle, ALongTitleIsCutAtACharacter)
{
    std::string bytes = "x";
    while (bytes.size() < 4000)
        bytes += "\xE2\x80\x93";
    const Text title = streamTitle(bytes);
    EXPECT_EQ(title.view().size(), 499U);
    EXPECT_TRUE(isValidUtf8(title.view()));
}

} // namespace
} // namespace sonavel
