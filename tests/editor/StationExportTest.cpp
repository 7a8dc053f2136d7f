// The export of the list, and its way back.
#include "support/ControllerTest.h"

namespace sonavel {
namespace {

using StationExportTest = ControllerTest;

TEST_F(StationExportTest, WritesTheHeadingAndALineForEachStation)
{
    startWithStations("Ä;http://a/\rB;http://b/\r");
    platform.filePanels.choice = platform.files.inPreferences("mine.csv");
    controls.stationList.radioExport.pressedByUser();
    EXPECT_EQ(platform.files.files.at(platform.filePanels.choice.string()), "radio;link\rB;http://b/\rÄ;http://a/\r");
    EXPECT_EQ(platform.filePanels.saved->nameFieldStringValue, "Radio List.csv");
    EXPECT_EQ(platform.filePanels.saved->directory, platform.files.homeDirectory());
}

TEST_F(StationExportTest, ACancelledPanelWritesNothing)
{
    startWithStations("A;http://a/\r");
    platform.log.clear();
    controller.stationExport.exportRadioListIntoFile();
    EXPECT_TRUE(platform.log.empty());
}

TEST_F(StationExportTest, WhatIsExportedComesBackTheSame)
{
    const Text text = "radio;link\rÄ 2;http://a/?x=1\rÄ 10;\r \n;http://b/\r\U0001F4FB;x\r";
    platform.files.files["/x.csv"] = text.string();
    platform.filePanels.choice = "/x.csv";
    start();
    controller.stationImport.importRadioListFromFile();
    for (int round = 0; round < 2; ++round) {
        platform.filePanels.choice = "/home/listener/Library/Preferences/y.csv";
        controller.stationExport.exportRadioListIntoFile();
        EXPECT_EQ(platform.files.files.at(platform.filePanels.choice.string()), text.view());
        platform.alerts.expect("<ERASE_ALL_PREVIOUS_DATA>", firstButtonAnswer);
        controller.stationImport.importRadioListFromFile();
    }
}

} // namespace
} // namespace sonavel
