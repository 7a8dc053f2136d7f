#include "support/ControllerTest.h"

namespace sonavel {
namespace {

class QuitTest : public ControllerTest {
protected:
    void SetUp() override
    {
        startWithStations("A;http://a/\r");
        controller.preferences.PREF_DEFAULT_STATION = "A";
        platform.preferenceDomains.stored.clear();
    }

    static constexpr const char* question = "<ALLERT_TEXT_MESSAGE_QUIT>";
};

TEST_F(QuitTest, ThePreferencesAreStoredBeforeTheQuestionWhateverTheAnswer)
{
    const auto expectStored = [&] { EXPECT_EQ(storedPreferences().at("defaultStation"), Text("A")); };
    controls.main.winSonavel.setIsVisible(false);
    platform.alerts.expect(question, secondButtonAnswer, expectStored);
    EXPECT_EQ(statusOfEnd([&] { controls.main.winSonavel.closeRequestedByUser(); }), std::nullopt);
    EXPECT_TRUE(controls.main.winSonavel.isVisible());
    EXPECT_EQ(platform.alerts.shown.front().buttonTitles, (std::vector<Text>{"<BUTTON_YES>", "<BUTTON_NO>"}));

    platform.preferenceDomains.stored.clear();
    platform.alerts.expect(question, firstButtonAnswer, expectStored);
    EXPECT_EQ(statusOfEnd([&] { controller.quitApp(); }), 0);
}

TEST_F(QuitTest, ASessionThatEndsKeepsAnOpenCellAndThePreferences)
{
    const unsigned before = controls.stationList.tableViewListRadio.state().endsOfEditing;
    controller.keepWhatIsOpen();
    EXPECT_EQ(controls.stationList.tableViewListRadio.state().endsOfEditing, before + 1);
    EXPECT_EQ(storedPreferences().at("defaultStation"), Text("A"));
}

} // namespace
} // namespace sonavel
