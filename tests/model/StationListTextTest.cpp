#include "model/StationListText.h"

#include "model/KVStationWebRadio.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

/// "number name=address" for each station.
std::vector<std::string> described(const StationRecords& records)
{
    std::vector<std::string> lines;
    for (const auto& record : records)
        lines.push_back(
            std::to_string(record->idRadio()) + " " + record->radio().string() + "=" + record->link().string());
    return lines;
}

TEST(StationListText, OnlyLinesThatAreStationsAreReadAndAllAreCounted)
{
    struct Case {
        const char* text;
        std::vector<std::string> stations;
    };
    const std::vector<Case> cases = {
        {"", {}},
        {"radio;link\rBeta;b\rAlpha;a\r", {"1 Beta=b", "2 Alpha=a"}},
        {"Beta;b\rAlpha;a", {"0 Beta=b", "1 Alpha=a"}},
        {"-;a\rlink;b\rradio;c\r;d\r\rKept;e\r", {"5 Kept=e"}},
        {"Radio;a\r--;b\r -;c\rlink ;d\r", {"0 Radio=a", "1 --=b", "2  -=c", "3 link =d"}},
        {"no separator\rradio\rA;a\r", {"2 A=a"}},
        {"A;a;ignored;too\rB;;b\rC;\r", {"0 A=a", "1 B=", "2 C="}},
        {"A;a\r\nB;b\r\n", {"0 A=a", "1 \nB=b"}},
        {"A;a\nB;b\n", {"0 A=a\nB"}},
    };
    for (const Case& row : cases)
        EXPECT_EQ(described(recordsFromListText(row.text)), row.stations) << row.text;
    EXPECT_TRUE(recordsFromListText({}).empty());
}

TEST(StationListText, ReadingCopiesNoNameOrAddress)
{
    const Text text("A station with a name;http://a.station.example\r");
    const StationRecords records = recordsFromListText(text);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0]->radio().view().data(), text.view().data());
    EXPECT_EQ(records[0]->link().view().data(), text.view().data() + 22);
}

TEST(StationListText, ALineByLineReaderMeetsSkippedLinesAndTheLastEmptyOne)
{
    StationListReader reader("radio;link\rA;a\r");
    std::vector<bool> stations;
    std::string lines;
    while (const auto line = reader.next()) {
        lines.append(line->text).append("|");
        EXPECT_EQ(line->number, stations.size());
        stations.push_back(line->isStation);
    }
    EXPECT_EQ(stations, (std::vector{false, true, false}));
    EXPECT_EQ(lines, "radio;link|A;a||");
    EXPECT_FALSE(reader.next());
}

TEST(StationListText, WritingGivesTheHeadingOnlyWhenAsked)
{
    const StationRecords records = recordsFromListText("Alpha;a\rZürich;b\r");
    EXPECT_EQ(listTextFromRecords(records, Heading::None), "Alpha;a\rZürich;b\r");
    EXPECT_EQ(listTextFromRecords(records, Heading::FieldNames), "radio;link\rAlpha;a\rZürich;b\r");
    EXPECT_EQ(listTextFromRecords({}, Heading::None), "");
    EXPECT_EQ(listTextFromRecords({std::make_shared<KVStationWebRadio>()}, Heading::None), ";\r");
}

TEST(StationListText, NoSeparatorGetsIntoANameOrAddress)
{
    for (const auto& [text, expected] : {std::pair("a;b\r;c", "abc"), std::pair(";\r", ""), std::pair("ü;\n", "ü\n")})
        EXPECT_EQ(withoutSeparators(text), Text(expected));
    for (const Text& text : {Text(), Text(""), Text("Zürich\n")})
        EXPECT_TRUE(withoutSeparators(text).isSameObject(text));
    EXPECT_TRUE(withoutSeparators({}).isAbsent());
}

} // namespace
} // namespace sonavel
