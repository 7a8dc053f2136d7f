// What the core says reaches the widgets and nothing comes back; what the user does reaches the core once.
#include "qt/binders/Binders.h"

#include "UserInput.h"
#include "qt/binders/ControlNames.h"
#include "qt/binders/OutletConnector.h"
#include "qt/kit/ApplicationStyle.h"
#include "qt/kit/Palettes.h"
#include "qt/kit/PrimaryButton.h"
#include "qt/kit/StationComboBox.h"
#include "qt/windows/ProgramDialog.h"
#include "qt/windows/ProgramMenus.h"
#include "qt/windows/main/MainWindow.h"
#include "qt/windows/stationlist/StationListWindow.h"
#include "ui/Controls.h"
#include "ui_AboutWindow.h"
#include "ui_PreferencesSheet.h"
#include "ui_UpdateNotice.h"
#include "ui_UpdateWindow.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>

#include <gtest/gtest.h>

#include <tuple>

namespace sonavel {
namespace {

ItemTitles titles(std::vector<Text> names)
{
    return std::make_shared<const std::vector<Text>>(std::move(names));
}

class PopUpBinding : public testing::Test {
protected:
    PopUpBinding()
    {
        widget.setStyle(&style);
        bind(popUp, widget);
        popUp.setItems(titles({"Choose a station", "First", "Second", "Third"}));
        popUp.setEnabled(true);
        popUp.action.set([this] { chosen.push_back(popUp.indexOfSelectedItem()); });
        widget.show();
    }

    ApplicationStyle style;
    PopUpButton popUp;
    std::vector<int> chosen;
    StationComboBox widget;
};

TEST_F(PopUpBinding, SelectingAndRefillingFromTheProgramChoosesNoStation)
{
    popUp.selectItemAtIndex(2);
    EXPECT_EQ(widget.currentText(), "Second");
    EXPECT_EQ(widget.view()->currentIndex().row(), 2) << "what a screen reader says";
    popUp.setItems(titles({"No stations"}));
    EXPECT_EQ(widget.currentText(), "No stations");
    EXPECT_EQ(widget.view()->currentIndex().row(), 0);
    popUp.setEnabled(false);
    EXPECT_FALSE(widget.isEnabled());
    EXPECT_TRUE(chosen.empty());
}

TEST_F(PopUpBinding, ARefillLeavesNoRowOfTheFormerListAndShowsNamesAsTheyAreOnOneLine)
{
    popUp.selectItemAtIndex(3);
    popUp.setItems(titles({"Choose a station", "Rock & <b>Roll</b>\nRadio"}));
    ASSERT_EQ(widget.count(), 2);
    EXPECT_EQ(widget.currentIndex(), 0);
    EXPECT_EQ(widget.itemText(1), "Rock & <b>Roll</b> Radio");
    popUp.selectItemAtIndex(-1);
    EXPECT_EQ(widget.currentIndex(), -1);
}

TEST_F(PopUpBinding, WheelAndKeysOnTheClosedBoxChooseNothing)
{
    turnWheel(widget);
    EXPECT_EQ(widget.currentIndex(), 0);
    for (const auto& [key, text] : {std::pair{Qt::Key_Down, QString()}, {Qt::Key_End, QString()}, {Qt::Key_S, "s"}}) {
        pressKey(widget, key, text);
        EXPECT_TRUE(widget.view()->isVisible());
        EXPECT_EQ(widget.currentIndex(), 0);
        widget.hidePopup();
    }
    EXPECT_TRUE(chosen.empty());
}

TEST_F(PopUpBinding, KeysOfMenusAndWindowsAreNoTyping)
{
    popUp.selectItemAtIndex(2);
    const std::tuple<Qt::KeyboardModifier, Qt::Key, QString> commands[] = {{Qt::AltModifier, Qt::Key_T, "t"},
        {Qt::ControlModifier, Qt::Key_T, "t"}, {Qt::MetaModifier, Qt::Key_T, "t"}, {Qt::AltModifier, Qt::Key_End, {}},
        {Qt::MetaModifier, Qt::Key_Down, {}}, {Qt::NoModifier, Qt::Key_F6, {}}};
    for (const auto& [modifier, key, text] : commands) {
        EXPECT_FALSE(pressKey(widget, key, text, modifier)) << modifier << " " << key;
        EXPECT_FALSE(widget.view()->isVisible());
        EXPECT_EQ(widget.currentIndex(), 2);
    }
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up}) {
        EXPECT_TRUE(pressKey(widget, key, {}, Qt::AltModifier));
        EXPECT_TRUE(widget.view()->isVisible());
        EXPECT_EQ(widget.currentIndex(), 2);
        widget.hidePopup();
    }
    EXPECT_TRUE(chosen.empty());
}

TEST_F(PopUpBinding, ReturnInTheOpenedListChoosesWhatIsHighlighted)
{
    pressKey(widget, Qt::Key_T, "t");
    EXPECT_EQ(widget.view()->currentIndex().row(), 3);
    pressKey(*widget.view(), Qt::Key_Return);
    EXPECT_EQ(chosen, std::vector<int>{3});
}

TEST_F(PopUpBinding, WhatWasHighlightedWhenTheListWasLeftIsNotWhatIsShown)
{
    popUp.selectItemAtIndex(1);
    pressKey(widget, Qt::Key_T, "t");
    pressKey(*widget.view(), Qt::Key_Escape);
    ASSERT_EQ(widget.view()->currentIndex().row(), 3);
    popUp.setEnabled(false);
    EXPECT_EQ(widget.view()->currentIndex().row(), 1);
    EXPECT_TRUE(chosen.empty());
}

TEST_F(PopUpBinding, TheOpenedListIsNoWiderThanItIsSeenSoThatLongNamesAreElided)
{
    popUp.setItems(titles({Text(std::string(200, 'x')), "Short"}));
    widget.resize(90, widget.height());
    widget.showPopup();
    QApplication::processEvents();
    const auto* list = static_cast<QListView*>(widget.view());
    EXPECT_EQ(list->textElideMode(), Qt::ElideRight);
    EXPECT_LE(list->visualRect(list->model()->index(0, 0)).width(), list->viewport()->width());
}

TEST_F(PopUpBinding, AHundredThousandStationsAreSharedAndNotMeasuredOneByOne)
{
    std::vector<Text> names(100'000, Text("Station"));
    names.front() = Text(std::string(4'000, 'x'));
    const QSize before = widget.sizeHint();
    const ItemTitles many = titles(std::move(names));
    popUp.setItems(many);
    EXPECT_EQ(widget.sizeHint(), before);
    EXPECT_EQ(popUp.state().titles.get(), many.get());
    widget.showPopup();
    EXPECT_TRUE(static_cast<QListView*>(widget.view())->uniformItemSizes());
    EXPECT_LT(widget.view()->window()->height(), 2'000);
}

TEST(SliderBinding, RenderingKeepsTheProgramsOwnValueAndAMoveIsStoredBeforeTheActionHearsOfIt)
{
    Slider slider;
    QSlider widget;
    widget.setMaximum(100);
    bind(slider, widget);
    EXPECT_EQ(slider.state().maxValue, 1.0);
    std::vector<float> heard;
    slider.action.set([&] { heard.push_back(slider.floatValue()); });
    slider.setDoubleValue(0.333);
    EXPECT_EQ(widget.value(), 33);
    EXPECT_EQ(slider.state().value, 0.333);
    pressKey(widget, Qt::Key_End);
    EXPECT_EQ(heard, std::vector<float>{1.0F});
}

TEST(SliderBinding, TheValueFollowsARangeThatLeavesItOutside)
{
    Slider slider;
    slider.connect({0.0, 100.0, 50.0, true});
    slider.setMaxValue(1.0);
    EXPECT_EQ(slider.floatValue(), 1.0F);
    slider.setMaxValue(3.0);
    slider.setMinValue(2.0);
    EXPECT_EQ(slider.floatValue(), 2.0F);
}

TEST(ButtonBinding, LooksFollowTheProgramWithoutAClick)
{
    Button button;
    QPushButton widget("Play");
    widget.setProperty("imageName", "play.png");
    bind(button, widget);
    EXPECT_EQ(button.state().image, Text("play.png"));
    const auto picture = [&] { return widget.icon().pixmap(16).toImage(); };
    const QImage light = picture();
    EXPECT_FALSE(light.isNull());
    widget.setPalette(paletteFor(Appearance::Dark));
    EXPECT_NE(picture(), light);
    const QString hint = widget.toolTip();
    EXPECT_FALSE(hint.isEmpty());
    int presses = 0;
    button.action.set([&] { ++presses; });

    button.setImage("pause.png");
    EXPECT_EQ(widget.text(), "Pause");
    EXPECT_NE(widget.toolTip(), hint);
    button.setEnabled(false);
    widget.click();
    EXPECT_EQ(presses, 0);
    button.setEnabled(true);
    widget.click();
    EXPECT_EQ(presses, 1);
}

TEST(LabelBinding, WhatAServerSaysIsNoMarkup)
{
    TextField field;
    QLabel widget;
    bind(field, widget);
    field.setStringValue("<b>1</b>");
    EXPECT_EQ(widget.text(), "<b>1</b>");
    EXPECT_EQ(widget.textFormat(), Qt::PlainText);
    TextField notes;
    QPlainTextEdit lines;
    bind(notes, lines);
    notes.setStringValue("<b>1</b>\n2");
    EXPECT_EQ(lines.toPlainText(), "<b>1</b>\n2");
}

TEST(ButtonBinding, RedIsShownAndTakenBackAndAmpersandsAreNoShortcuts)
{
    Button button;
    QPushButton widget("Mute");
    bind(button, widget);
    const QColor usual = widget.palette().color(QPalette::ButtonText);
    button.setTitleColor(TitleColor::Red);
    EXPECT_GT(widget.palette().color(QPalette::ButtonText).red(), 150);
    button.setTitleColor(TitleColor::Black);
    EXPECT_EQ(widget.palette().color(QPalette::ButtonText), usual);
    button.setTitle("R&B");
    EXPECT_EQ(widget.text(), "R&&B");
}

TEST(ButtonBinding, RoomForOtherWordsLeavesTheWordsAndThePictureThatAreShown)
{
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    PrimaryButton widget;
    widget.setText("Play");
    widget.setIcon(picture);
    widget.reserveRoomFor({"Play", "Pause for a while"}, PrimaryButton::Picture::BesideWords);
    EXPECT_GE(widget.minimumWidth(), widget.fontMetrics().horizontalAdvance("Pause for a while") + 16);
    EXPECT_EQ(widget.text(), "Play");
    EXPECT_EQ(widget.icon().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

TEST(ButtonBinding, AButtonThatIsDisabledForAMomentKeepsTheKeyboard)
{
    Button button;
    QWidget window;
    QHBoxLayout layout(&window);
    QPushButton play("Play");
    QPushButton stop("Stop");
    layout.addWidget(&play);
    layout.addWidget(&stop);
    bind(button, play);
    ASSERT_TRUE(activate(window));
    play.setFocus();

    button.setEnabled(false);
    button.setEnabled(true);
    EXPECT_TRUE(play.hasFocus());

    button.setEnabled(false);
    QCoreApplication::processEvents();
    button.setEnabled(true);
    EXPECT_TRUE(stop.hasFocus());
}

TEST(ButtonBinding, ACheckBoxReportsTheUsersTicksAlone)
{
    Button button;
    QCheckBox widget;
    bind(button, widget);
    std::vector<bool> heard;
    button.action.set([&] { heard.push_back(button.state().isOn); });
    button.setState(true);
    EXPECT_TRUE(widget.isChecked());
    widget.toggle();
    EXPECT_EQ(heard, std::vector<bool>{false});
}

TEST(WindowBinding, ClosingAsksTheProgramAndHidesNothing)
{
    Window window;
    QWidget widget;
    bind(window, widget);
    int requests = 0;
    window.action.set([&] { ++requests; });
    window.makeKeyAndOrderFront();
    widget.close();
    EXPECT_TRUE(widget.isVisible());
    EXPECT_EQ(requests, 1);
    EXPECT_TRUE(handleEventsUntil([&] { return window.isKeyWindow(); }));
    window.setIsVisible(false);
    EXPECT_FALSE(widget.isVisible());
    EXPECT_FALSE(window.isKeyWindow());
}

TEST(Connecting, AMissingOrMistakenWidgetIsNamed)
{
    Controls controls;
    QWidget window;
    window.setObjectName("winSonavel");
    auto* impostor = new QComboBox(&window);
    impostor->setObjectName("popupbuttonRadioList");
    try {
        connectWindow(controls.main, window);
        FAIL() << "connected a plain combo box";
    } catch (const MissingOutlet& fault) {
        EXPECT_NE(std::string(fault.what()).find("popupbuttonRadioList"), std::string::npos);
    }
}

/// Each control of the window is connected, and none lacks a name by which it could be.
template <class WindowControls> void expectConnected(WindowControls& controls)
{
    std::size_t size = 0;
    forEachControl(controls, [&](const auto& control, const char* name) {
        EXPECT_TRUE(control.isConnected()) << name;
        size += sizeof(control);
    });
    EXPECT_EQ(size, sizeof(controls)) << "a control without a name";
}

template <class WindowControls> void expectConnectedAs(WindowControls& announced, WindowControls& controls)
{
    expectConnected(controls);
    forEachControl(announced, [&](const auto& before, std::string_view name) {
        forEachControl(controls, [&](const auto& connected, std::string_view otherName) {
            if constexpr (std::is_same_v<decltype(before), decltype(connected)>) {
                EXPECT_TRUE(name != otherName || before.state() == connected.state()) << name;
            }
        });
    });
}

TEST(Connecting, EveryControlHasItsWidgetAndBeforeThatItsState)
{
    Controls controls;
    ProgramMenus menus([] {});
    MainWindow main(&menus);
    StationListWindow list(controls.stationList.tableViewListRadio);
    const auto sheet = editSheetOf(list);
    const auto preferences = ProgramDialog::from<Ui::PreferencesSheet>();
    const auto about = ProgramDialog::from<Ui::AboutWindow>();
    const auto notice = ProgramDialog::from<Ui::UpdateNotice>();
    Window window;
    TextField name;
    TextField version;
    TextField notes;
    Button update;
    Button remind;
    const UpdaterControls updates{window, name, version, notes, update, remind};
    const auto updater = ProgramDialog::from<Ui::UpdateWindow>();
    connectWindow(controls.main, main);
    connectWindow(controls.stationList, list);
    connectWindow(controls.editSheet, *sheet);
    connectWindow(controls.preferences, *preferences);
    connectWindow(controls.about, *about);
    connectWindow(controls.updateNotice, *notice);
    connectWindow(updates, *updater);

    expectConnected(controls.main);
    expectConnected(controls.about);
    forEachControl(
        updates, [](const auto& control, const char* which) { EXPECT_TRUE(control.isConnected()) << which; });
    Controls announced;
    connectInitialState(announced);
    expectConnectedAs(announced.stationList, controls.stationList);
    expectConnectedAs(announced.editSheet, controls.editSheet);
    expectConnectedAs(announced.preferences, controls.preferences);
    expectConnectedAs(announced.updateNotice, controls.updateNotice);
    EXPECT_EQ(announced.about.winAbout.state(), controls.about.winAbout.state());
}

TEST(Connecting, WhenTheWindowGoesAwayItsOutletsLetGo)
{
    Button button;
    {
        QPushButton widget;
        bind(button, widget);
        EXPECT_TRUE(button.isConnected());
    }
    EXPECT_FALSE(button.isConnected());
    button.setTitle("nobody draws this");
}

} // namespace
} // namespace sonavel
