#include "model/KVStationWebRadio.h"

#include "model/KeyedArchive.h"

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

} // namespace
} // namespace sonavel
