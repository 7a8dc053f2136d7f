#include "engine/StreamTitle.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(StreamTitle, WhateverBytesAServerSendsAreOneShortLineOfText)
{
    const std::vector<std::pair<std::string, std::string>> rows{
        {"", ""},
        {" \t\n ", ""},
        {"  Title\r\n", "Title"},
        {"one\ntwo\x7Fthree", "one two three"},
        {std::string("a\0b", 3), "a b"},
        {"\x80 5 \x96 M\xFCller\x81", "€ 5 – Müller"},
        {"\xC3\xBC\xFF", "Ã¼ÿ"},
        {"\xC3\xBC", "ü"},
        {"a\xC2\x85z", "a z"},
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
