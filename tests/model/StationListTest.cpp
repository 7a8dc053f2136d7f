#include "model/StationList.h"

#include "model/StationListText.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

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
