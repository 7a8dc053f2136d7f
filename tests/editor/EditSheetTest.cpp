// Adding and changing stations through the sheet.
#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class EditSheetTest : public ControllerTest {
protected:
    void select(const IndexSet& rows) { table.selectedByUser(rows, static_cast<long>(rows.last())); }

    void add(const Text& name, const Text& address)
    {
        controller.editSheet.radioAddToList();
        type(name, address);
        controls.editSheet.buttonAction.setEnabled(true);
        controls.editSheet.buttonAction.pressedByUser();
    }

    void type(const Text& name, const Text& address)
    {
        controls.editSheet.textFieldRadioName.typedByUser(name);
        controls.editSheet.textFieldRadioLink.typedByUser(address);
    }

    [[nodiscard]] Text title() const { return listWindow.state().title; }
};

TEST_F(EditSheetTest, AStationNeedsANameOrAnAddressOfItsLeastLength)
{
    startWithStations("B;http://b/\r");
    add("1", "123456789");
    EXPECT_EQ(list(), "B;http://b/\r");
    EXPECT_TRUE(platform.log.back().starts_with("write ")) << "a confirmed sheet is always stored";
    add("12", "");
    add("", "1234567890");
    EXPECT_EQ(list(), ";1234567890\r12;\rB;http://b/\r");
    add("\U0001F4FB", "");
    EXPECT_EQ(controller.stationList.numberOfStations(), 4U) << "two UTF-16 code units";
    EXPECT_EQ(database(), Text(list()));
}

TEST_F(EditSheetTest, AnAddedStationIsSortedInAndTheLastRowSelected)
{
    startWithStations("B;http://b/\rC;http://c/\rD;http://d/\r");
    popUp.chosenByUser(2);
    controller.editSheet.radioAddToList();
    EXPECT_EQ(controls.editSheet.buttonAction.title(), "<BUTTON_ADD>");
    EXPECT_TRUE(controls.editSheet.winEditData.state().isSheet);
    EXPECT_EQ(controls.editSheet.winEditData.state().focusReleases, 1U);
    type("Aa", "http://a/");
    controls.editSheet.buttonAction.setEnabled(true);
    controls.editSheet.buttonAction.pressedByUser();
    EXPECT_EQ(list(), "Aa;http://a/\rB;http://b/\rC;http://c/\rD;http://d/\r");
    EXPECT_EQ(controller.stationList.listRadio()->front()->idRadio(), 4U);
    EXPECT_EQ(table.selectedRowIndexes(), IndexSet{3});
    EXPECT_EQ(table.state().rowToShow, 3);
    EXPECT_EQ(popUp.numberOfItems(), 5);
    EXPECT_EQ(popUp.indexOfSelectedItem(), 0);
    EXPECT_EQ(title(), "<WIN_EDIT_RADIO_LIST> (4)");
    EXPECT_FALSE(controls.editSheet.winEditData.isVisible());
    EXPECT_EQ(controls.editSheet.textFieldRadioName.stringValue(), "");
    EXPECT_EQ(controls.editSheet.textFieldRadioLink.stringValue(), "");
}

TEST_F(EditSheetTest, ChangingTakesWhateverIsTypedAndTheStreamGoesOn)
{
    putPreferences({{"isAutoPlay", "YES"}});
    startWithStations("A;http://a/\rB;http://b/\r");
    popUp.chosenByUser(1);
    select({0});
    controller.editorTable.myDoubleClickAction();
    EXPECT_EQ(controls.editSheet.buttonAction.title(), "<BUTTON_EDIT>");
    EXPECT_EQ(controls.editSheet.textFieldRadioName.stringValue(), "A");
    EXPECT_EQ(controls.editSheet.textFieldRadioLink.stringValue(), "http://a/");
    type("", "");
    controller.editSheet.buttonAction();
    EXPECT_EQ(list(), ";\rB;http://b/\r");
    EXPECT_TRUE(controller.player.isPlay);
    EXPECT_EQ(controller.player.playRadioLink, "http://a/");
}

TEST_F(EditSheetTest, CancelStoresNothing)
{
    startWithStations("A;http://a/\r");
    select({0});
    controller.editSheet.radioEditToList();
    type("Z", "Z");
    platform.log.clear();
    controls.editSheet.winEditData.closeRequestedByUser();
    EXPECT_EQ(list(), "A;http://a/\r");
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(controls.editSheet.textFieldRadioName.stringValue(), "");
}

TEST_F(EditSheetTest, TheFieldsHoldWhatTheFilterLeavesWhicheverChanged)
{
    putPreferences({{"maxLenghtRadioName", "5"}});
    start();
    controls.editSheet.textFieldRadioName.setStringValue("set  by the program");
    controls.editSheet.textFieldRadioLink.typedByUser("http://a/  ;x");
    EXPECT_EQ(controls.editSheet.textFieldRadioLink.stringValue(), "http://a/ x");
    EXPECT_EQ(controls.editSheet.textFieldRadioName.stringValue(), "set b");
    controller.preferences.PREF_MAX_NAME_RADIO_LENGHT = 0x1'0000'0002;
    controls.editSheet.textFieldRadioName.typedByUser("abcdef");
    EXPECT_EQ(controls.editSheet.textFieldRadioName.stringValue(), "ab") << "the low 32 bits are the limit";
}

TEST_F(EditSheetTest, NoSeparatorReachesTheListByAPathAroundTheFilter)
{
    start();
    controller.editSheet.radioAddToList();
    controls.editSheet.textFieldRadioName.setStringValue("a;b\rc");
    controller.editSheet.buttonAction();
    EXPECT_EQ(database(), "abc;\r");
}

TEST_F(EditSheetTest, ASelectionThatIsGoneIsNotEdited)
{
    startWithStations("A;http://a/\rB;http://b/\r");
    select({1});
    controller.editSheet.radioEditToList();
    keepStations(1);
    type("Z", "Z");
    controller.editSheet.buttonAction();
    EXPECT_EQ(list(), "A;http://a/\r");
    keepStations(0);
    controller.editSheet.radioEditToList();
    EXPECT_FALSE(controls.editSheet.winEditData.isVisible());
}

} // namespace
} // namespace sonavel
