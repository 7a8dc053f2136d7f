#include "model/StationList.h"

#include "model/KeyedArchive.h"
#include "model/StationListText.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(KVStationWebRadio, ACopySharesItsTextsAndChangesAlone)
{
    const KVStationWebRadio station(7, "Alpha", "http://alpha.example");
    KVStationWebRadio copy = station;
    EXPECT_EQ(copy.idRadio(), 7U);
    EXPECT_TRUE(copy.radio().isSameObject(station.radio()));
    EXPECT_TRUE(copy.link().isSameObject(station.link()));
    copy.setLink("http://other.example");
    EXPECT_EQ(station.link(), Text("http://alpha.example"));
}

TEST(KVStationWebRadio, TheThreeFieldLineEndsWithACarriageReturn)
{
    EXPECT_EQ(KVStationWebRadio(0, "A", "B").returnPropertyIntoFormatDefaultCSV(), "0;A;B\r");
    EXPECT_EQ(KVStationWebRadio().returnPropertyIntoFormatDefaultCSV(), "0;;\r");
}

TEST(KVStationWebRadio, EncodingLosesNoField)
{
    for (const auto& station : {KVStationWebRadio(UINT64_MAX, "A;\r", ""), KVStationWebRadio(1, {}, "B")}) {
        KeyedArchive archive;
        station.encodeWithCoder(archive);
        const KVStationWebRadio again(archive);
        EXPECT_EQ(again.idRadio(), station.idRadio());
        EXPECT_EQ(again.radio(), station.radio());
        EXPECT_EQ(again.link(), station.link());
    }
    EXPECT_TRUE(KVStationWebRadio(KeyedArchive()).radio().isAbsent());
}

StationList listOf(const Text& text)
{
    StationList list;
    list.setListRadio(recordsFromListText(text));
    return list;
}

TEST(StationList, SortingMovesTheRecords)
{
    StationList list = listOf("Radio 10;a\rRadio 2;c\rradio 1;b\r");
    const StationRecords before = *list.listRadio();
    list.sortingRadioWithKey("radio");
    EXPECT_EQ(*list.listRadio(), (StationRecords{before[1], before[0], before[2]}));
    list.sortingRadioWithKey("link");
    EXPECT_EQ(*list.listRadio(), (StationRecords{before[0], before[2], before[1]}));
    list.sortingRadioWithKey("idRadio");
    EXPECT_EQ(*list.listRadio(), (StationRecords{before[0], before[2], before[1]}));

    StationList notLoaded;
    notLoaded.sortingRadioWithKey("radio");
    EXPECT_EQ(notLoaded.listRadio(), nullptr);
}

TEST(StationList, JsonHoldsTheLastNameOfEachAddress)
{
    EXPECT_EQ(listOf("First;b\rOther \"quoted\";a\rZürich;b\r").convertRadioListToJSON(),
        Text("{\n  \"a\": \"Other \\\"quoted\\\"\",\n  \"b\": \"Zürich\"\n}"));
    EXPECT_EQ(listOf("").convertRadioListToJSON(), Text("{}"));
    EXPECT_TRUE(StationList().convertRadioListToJSON().isAbsent());
    EXPECT_TRUE(listOf("bad \xFF;a\r").convertRadioListToJSON().isAbsent());
    EXPECT_TRUE(listOf("name;bad \xC3\r").convertRadioListToJSON().isAbsent());
}

} // namespace
} // namespace sonavel
