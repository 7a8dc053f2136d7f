// Imports: merging, replacing, full lists, and files that are none.
#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class StationImportTest : public ControllerTest {
protected:
    static constexpr const char* path = "/media/stick/list.csv";
    static constexpr const char* erase = "<ERASE_ALL_PREVIOUS_DATA>";

    void import(std::string_view content)
    {
        platform.files.files[path] = content;
        platform.filePanels.choice = path;
        controller.stationImport.importRadioListFromFile();
    }

    void startAnswering(const Text& listText, int answer)
    {
        startWithStations(listText);
        platform.alerts.expect(erase, answer);
    }

    [[nodiscard]] int items() const { return popUp.numberOfItems(); }
    [[nodiscard]] Text status() const { return controls.stationList.labelListStatus.stringValue(); }
    [[nodiscard]] bool hasRescueCopy() const
    {
        return platform.files.files.contains(platform.files.inPreferences("radiolist.before-import.rdb"));
    }
};

TEST_F(StationImportTest, AnEmptyListTakesEveryLineAsItStands)
{
    start();
    platform.log.clear();
    import("radio;link\rB;http://b/;more\r\rradio;x\rlink;x\r-;x\rno address\rA  A;\rB;http://b2/\r");
    EXPECT_EQ(list(), "B;http://b/\rA  A;\rB;http://b2/\r");
    EXPECT_EQ(controller.stationList.listRadio()->back()->idRadio(), 3U);
    EXPECT_EQ(database(), Text(list()));
    EXPECT_EQ(std::count_if(platform.log.begin(), platform.log.end(),
                  [](const std::string& entry) { return entry.starts_with("write "); }),
        1);
    EXPECT_EQ(items(), 4);
    EXPECT_EQ(listWindow.state().title, "<WIN_EDIT_RADIO_LIST> (0)") << "keeps its count";
    EXPECT_EQ(platform.filePanels.opened->allowedFileType, "csv");
}

TEST_F(StationImportTest, AMergingImportNumbersWhatIsTaken)
{
    startAnswering("A;http://a/\rB;http://b/\r", secondButtonAnswer);
    platform.localizedStrings.texts = {{"STATUS_IMPORTED", "Imported: %li."}};
    platform.alerts.expect("<AS_DUPLICATED_DATA>", firstButtonAnswer, [&] {
        EXPECT_EQ(database(), Text(list()));
        EXPECT_EQ(items(), 8) << "the last line has no end: it is not shown yet";
    });
    import("A;1\ra;2\rC;3\rC;4\rA (3);5\rA;6");
    EXPECT_EQ(list(), "A;http://a/\rB;http://b/\rA (3);1\ra;2\rC;3\rC (6);4\rA (3) (7);5\rA (8);6\r");
    EXPECT_EQ(table.numberOfRows(), 7);
    EXPECT_EQ(status(), "Imported: 6.");
}

TEST_F(StationImportTest, YesReplacesTheListAndKeepsTheFormerOne)
{
    startAnswering("A;http://a/\rB;http://b/\r", firstButtonAnswer);
    platform.localizedStrings.texts = {{"STATUS_LIST_KEPT", "Kept: %@."}};
    import("C;http://c/\r");
    EXPECT_EQ(list(), "C;http://c/\r");
    EXPECT_EQ(controller.stationList.listRadio()->front()->idRadio(), 1U);
    const std::string copy = platform.files.files.at(platform.files.inPreferences("radiolist.before-import.rdb"));
    EXPECT_EQ(decodeStationList(copy), "A;http://a/\rB;http://b/\r");
    EXPECT_EQ(status(), "<STATUS_IMPORTED> Kept: radiolist.before-import.rdb.");
}

TEST_F(StationImportTest, WithoutARescueCopyNothingIsReplaced)
{
    startAnswering("A;http://a/\r", firstButtonAnswer);
    platform.files.failAll("keep ");
    import("C;http://c/\r");
    EXPECT_EQ(list(), "A;http://a/\r");
    EXPECT_EQ(database(), "A;http://a/\r");
    EXPECT_EQ(status(), "<STATUS_LIST_NOT_KEPT>");
}

TEST_F(StationImportTest, AFileWithoutStationsLeavesOldRowsThatNothingTripsOver)
{
    const char* const contents[] = {"\xFF\xFE", "caf\xE9;http://x/\r"};
    for (const char* content : contents) {
        putDatabase("A;http://a/\rB;http://b/\r");
        keepStations(0);
        startAnswering("A;http://a/\rB;http://b/\r", firstButtonAnswer);
        table.selectedByUser({1}, 1);
        import(content);
        EXPECT_EQ(list(), "");
        EXPECT_EQ(database(), "");
        EXPECT_TRUE(hasRescueCopy());
        EXPECT_EQ(table.state().numberOfRows, 2U) << "no line, no refresh";
        EXPECT_EQ(popUp.state().titles->size(), 3U);

        controller.editSheet.radioEditToList();
        controller.stationRemoval.radioRemoveToList();
        table.editedByUser({"Z", "radio", 0});
        popUp.chosenByUser(2);
        EXPECT_EQ(list(), "");
        EXPECT_FALSE(controller.player.isPlay);
        EXPECT_EQ(controls.editSheet.winEditData.isVisible(), false);
    }
}

TEST_F(StationImportTest, NewStationsDoNotInheritTheSelectionOfThoseThatTheyReplace)
{
    putPreferences({{"enableMultipleSelection", "YES"}});
    for (const bool leavesOldRows : {false, true}) {
        startAnswering("A;http://a/\rB;http://b/\r", firstButtonAnswer);
        table.selectedByUser({0, 1}, 0);
        if (leavesOldRows)
            import("\xFF");
        import("C;http://c/\rD;http://d/\rE;http://e/\r");
        EXPECT_EQ(table.state().numberOfRows, 3U);
        EXPECT_TRUE(table.state().selectedRowIndexes.isEmpty());
    }
    startAnswering("A;http://a/\rB;http://b/\r", secondButtonAnswer);
    table.selectedByUser({1}, 1);
    import("C;http://c/\r");
    EXPECT_EQ(table.selectedRow(), 1) << "stations that stay keep it";
}

TEST_F(StationImportTest, TheCountLimitStopsBeforeTheNextLineWhateverItIs)
{
    start();
    controller.preferences.PREF_MAX_NUMBER_RADIO = 2;
    platform.alerts.expect("<LIMIT_IMPORT_DATA>", firstButtonAnswer, [&] { EXPECT_EQ(items(), 3); });
    import("A;1\rB;2\r");
    EXPECT_EQ(list(), "A;1\rB;2\r");
    controller.preferences.PREF_MAX_NUMBER_RADIO = 1;
    platform.alerts.expect(erase, secondButtonAnswer);
    platform.alerts.expect("<LIMIT_IMPORT_DATA>", firstButtonAnswer);
    import("C;3\r");
    EXPECT_EQ(database(), "A;1\rB;2\r");
}

TEST_F(StationImportTest, OddFilesGiveTheStationsThatTheyHold)
{
    const std::string longName(100'000, 'n');
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"radio;link", ""},
        {"\xEF\xBB\xBFradio;link\rA;1\r", "A;1\r"},
        {"radio;link\nA;1\nB;2\n", ""},
        {"radio;link\r\nA;1\r\n", "\nA;1\r"},
        {std::string("A\0B;1\r", 6), std::string("A\0B;1\r", 6)},
        {longName + ";1\r", longName + ";1\r"},
        {std::string(20'000'000, 'x') + "\rA;1\r", "A;1\r"},
    };
    for (const auto& [content, expected] : cases) {
        start();
        keepStations(0);
        import(content);
        EXPECT_EQ(list(), expected);
    }
    platform.filePanels.choice = "/media/stick/vanished.csv";
    keepStations(0);
    controller.stationImport.importRadioListFromFile();
    EXPECT_EQ(list(), "");
    EXPECT_EQ(status(), "<STATUS_FILE_NOT_READ>");
}

TEST_F(StationImportTest, TheSameOutcomeIsAnnouncedAnew)
{
    start();
    std::vector<Text> announced;
    controls.stationList.labelListStatus.connect(
        {}, [&](const TextFieldState& state) { announced.push_back(state.stringValue); });
    announced.clear();
    import("");
    import("");
    EXPECT_EQ(announced, std::vector<Text>(2, "<STATUS_NOTHING_IMPORTED>"));
}

TEST_F(StationImportTest, ACancelledPanelAsksAndChangesNothing)
{
    startWithStations("A;http://a/\r");
    platform.log.clear();
    controller.stationImport.importRadioListFromFile();
    EXPECT_TRUE(platform.log.empty());
}

} // namespace
} // namespace sonavel
