#include "playlists/ListFormats.h"

#include "support/ParsedLists.h"

namespace sonavel {
namespace {

using test::expectParses;

TEST(ListFormats, AListTextOfAnyProgramIsParsedAndEachLossIsDiagnosed)
{
    expectParses(listTextFormat,
        {
            {"", {}},
            {"radio;link\r", {}},
            {"radio;link\rA;a\rB;b\r", {"A=a", "B=b"}},
            {"A;a\rB;b", {"A=a", "B=b"}},
            {"A;a\r\r-;x\rlink;x\r;x\rno separator\rradio;link\r", {"A=a"}, "2 3! 4! 5! 6! 7!"},
            {"A;a;more\rB;b;\rC;\r", {"A=a", "B=b", "C="}, "1! 2!"},
            {"A;a\rB\nC;b\r\nD;c\r", {"A=a", "B\nC=b", "\nD=c"}},
            // Of other programs, read as they were meant.
            {"\xEF\xBB\xBFradio;link\rA;a\r", {"A=a"}, "*"},
            {"radio;link\nA;a\nB;b\n", {"A=a", "B=b"}, "*"},
            {"radio;link\r\nA;a\r\nB;b\r\n", {"A=a", "B=b"}, "*"},
            {"Z\xFCrich;a\rZ\xC3\xBCrich;b\r", {"Zürich=a", "Zürich=b"}, "* 1!"},
            {"\xEF\xBB\xBF\xDC;a\nB;b", {"Ü=a", "B=b"}, "* * * 1!"},
            {std::string("A\0B;a\r", 6), {std::string("A\0B=a", 5)}},
        });
}

TEST(ListFormats, JsonGivesAStationForEachMemberWhoseValueIsAName)
{
    expectParses(jsonFormat,
        {
            {"{}", {}},
            {R"({"http://b.example/": "B", "http://a.example/": "A\n", "http://b.example/": "B again"})",
                {"B=http://b.example/", "A\n=http://a.example/", "B again=http://b.example/"}},
            {R"({"a": 1, "b": null, "c": {"x": "y", "z": [1, {}]}, "d": ["x"], "e": true, "f": 1.5, "g": "G"})",
                {"G=g"}, "1! 2! 3! 4! 5! 6!"},
            {R"({"http://a.example/;x": "A;\r", "http://b.example/": "-", "-": ""})",
                {"A=http://a.example/x", "b.example=http://b.example/"}, "1! 1! 2! 3!"},
            {"\xEF\xBB\xBF{\"a\": \"A\"}", {"A=a"}},
        });
}

TEST(ListFormats, WhatIsNotAJsonObjectIsNoEmptyList)
{
    for (const std::string& bytes :
        {std::string(), std::string("{"), std::string("[]"), std::string("\"a\""), std::string("1"),
            std::string("{\"a\": \"\xFF\"}"), std::string("{} {}"), std::string(1'000'000, '['), std::string("A;a\r")})
        EXPECT_FALSE(jsonFormat.parse(bytes)) << bytes.substr(0, 20);
}

TEST(ListFormats, AnM3uOfAnyMakeGivesItsStations)
{
    expectParses(m3uFormat,
        {
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
            {std::string("#EXTINF:-1,a\0b\nhttp://a.example/\0\nhttp://b.example/", 51),
                {"b.example=http://b.example/"}, "2!"},
        });
}

TEST(ListFormats, APlsGivesItsStationsInTheOrderOfTheirNumbers)
{
    expectParses(plsFormat,
        {
            {"", {}},
            {"[playlist]\nNumberOfEntries=1\nFile1=http://a.example/\nTitle1=One\nLength1=-1\nVersion=2\n",
                {"One=http://a.example/"}},
            {"\xEF\xBB\xBF[Playlist]\r\nTITLE10 = Ten = X\r\nfile2=http://b.example/\r\n file10 = "
             "http://a.example/?x=y "
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
        });
}

} // namespace
} // namespace sonavel
