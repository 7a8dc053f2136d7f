#include "playlists/Parsers.h"

#include "support/ParsedListText.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

using test::placesOf;
using test::stationsOf;
using Case = test::ReadListCase;

TEST(PlaylistText, AnM3uOfAnyMakeGivesItsStations)
{
    const std::vector<Case> cases{
        {"", {}},
        {"#EXTM3U\n", {}},
        {"#EXTM3U\n#EXTINF:-1,One\nhttp://a.example/\n", {"One=http://a.example/"}},
        {"#EXTINF:-1,One\rhttp://a.example/\r", {"One=http://a.example/"}},
        {"\xEF\xBB\xBF#EXTM3U\r\n\r\n#extinf:-1,One\r\n\r\n  http://a.example/ \r\n", {"One=http://a.example/"}},
        {"http://a.example:8000/x\nhttps://u:p@b.example",
            {"a.example=http://a.example:8000/x", "b.example=https://u:p@b.example"}},
        {"#EXTINF:-1 tvg-name=\"A, B\" logo=\"x,y\",One, Two\nhttp://a.example/", {"One, Two=http://a.example/"}},
        {"#EXTINF:-1 tvg-name=\"A,One\nhttp://a.example/", {"One=http://a.example/"}},
        {"#EXTINF:-1 tvg-name=\"A\"\nhttp://a.example/", {"a.example=http://a.example/"}},
        {"#EXTINF:-1,\nhttp://a.example/\n#EXTINF:-1, -\nhttp://b.example/",
            {"a.example=http://a.example/", "b.example=http://b.example/"}},
        {"#EXTINF:-1,One\n#EXTGRP:x\n#EXTVLCOPT:a=b\nhttp://a.example/\nhttp://b.example/",
            {"One=http://a.example/", "b.example=http://b.example/"}},
        {"#EXTINF:-1,Z\xFCrich \x80\nhttp://a.example/\n#EXTINF:-1,Z\xC3\xBCrich\nhttp://b.example/",
            {"Zürich €=http://a.example/", "Zürich=http://b.example/"}},
        {"#EXTINF:-1, ; a;\tb\x1B[31m ;\nhttp://a.example/", {"a b [31m=http://a.example/"}},
        {"#EXTINF:-1,One\nhttp://a.example:8000/;stream.mp3", {"One=http://a.example:8000/stream.mp3"}, "2!"},
        {"http://radio/", {"http://radio/=http://radio/"}},
        {"#EXTINF:-1,One\nmusic/one.mp3\nC:\\music\\two.mp3\n/three.mp3\nfile:///four.mp3\nhttp://;/\nhttp://"
         "a.example/",
            {"a.example=http://a.example/"}, "2! 3! 4! 5! 6!"},
        {std::string("#EXTINF:-1,a\0b\nhttp://a.example/\0\nhttp://b.example/", 51), {"b.example=http://b.example/"},
            "2!"},
    };
    for (const Case& row : cases) {
        const ParsedList list = parseM3u(row.bytes);
        EXPECT_EQ(stationsOf(list), row.stations) << row.bytes;
        EXPECT_EQ(placesOf(list.diagnostics), row.diagnostics) << row.bytes;
    }
}

TEST(PlaylistText, APlsGivesItsStationsInTheOrderOfTheirNumbers)
{
    const std::vector<Case> cases{
        {"", {}},
        {"[playlist]\nNumberOfEntries=1\nFile1=http://a.example/\nTitle1=One\nLength1=-1\nVersion=2\n",
            {"One=http://a.example/"}},
        {"\xEF\xBB\xBF[Playlist]\r\nTITLE10 = Ten = X\r\nfile2=http://b.example/\r\n file10 = http://a.example/?x=y "
         "\r\n",
            {"b.example=http://b.example/", "Ten = X=http://a.example/?x=y"}},
        {"File01=http://a.example/\rTitle1=\xDC"
         "ber;\r",
            {"Über=http://a.example/"}},
        {"File1=http://a.example/\nFile1=http://b.example/\nTitle1=One\nTitle1=Two\n", {"One=http://a.example/"},
            "2! 4!"},
        {"Title3=alone\nFile1=one.mp3\nFile2=file:///x\n", {}, "2! 3! 1!"},
        {"File=http://a.example/\nFile1x=http://a.example/\nFile-1=http://a.example/\n"
         "File99999999999999999999=http://a.example/\nFiles\nFile7\n=\n",
            {}},
        {"File18446744073709551615=http://a.example/\nFile0=http://b.example/",
            {"b.example=http://b.example/", "a.example=http://a.example/"}},
    };
    for (const Case& row : cases) {
        const ParsedList list = parsePls(row.bytes);
        EXPECT_EQ(stationsOf(list), row.stations) << row.bytes;
        EXPECT_EQ(placesOf(list.diagnostics), row.diagnostics) << row.bytes;
    }
}

} // namespace
} // namespace sonavel
