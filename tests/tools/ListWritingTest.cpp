#include "model/StationListText.h"
#include "tools/ListFormats.h"
#include "tools/StationTable.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(ListWriting, AListIsWrittenAsThePlayerWouldWriteIt)
{
    const StationRecords stations = recordsFromListText("Alpha;a\rBeta;b\r");
    EXPECT_EQ(serializedList(stations, ListFormat::Csv), "radio;link\rAlpha;a\rBeta;b\r");
    EXPECT_EQ(serializedList(stations, ListFormat::Rdb), "yCHhQV+4mfw55E8WfFF64Q==");
    EXPECT_EQ(serializedList(stations, ListFormat::Json), "{\n  \"a\": \"Alpha\",\n  \"b\": \"Beta\"\n}\n");
    EXPECT_EQ(stationsLostBySerializing(recordsFromListText("A;a\rB;b\rC;a\rD;a\r"), ListFormat::Json), 2U);
    EXPECT_EQ(stationsLostBySerializing(recordsFromListText("A;a\rC;a\r"), ListFormat::Csv), 0U);
}

TEST(StationTable, NoNameBreaksALineOrReachesTheTerminalAsACommand)
{
    const StationRecords stations = recordsFromListText("A\tB\n\x1B[2J;http://a/\n\rC;\r");
    EXPECT_EQ(stationTable(stations, TableLayout::TabSeparated), "A B  [2J\thttp://a/ \nC\t\n");
}

TEST(StationTable, ColumnsStandUnderEachOtherWhateverTheLetters)
{
    const std::string longName(41, 'x');
    const StationRecords stations =
        recordsFromListText(Text("Zu\xCC\x88rich;a\r日本;b\r\U0001F4FB;c\rA;d\r" + longName + ";e\r"));
    EXPECT_EQ(stationTable(stations, TableLayout::Columns),
        "Zu\xCC\x88rich  a\n日本    b\n\U0001F4FB      c\nA       d\n" + longName + "  e\n");
}

} // namespace
} // namespace sonavel
