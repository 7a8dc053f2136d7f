// The main window keeps its shape and describes what it shows.
#include "qt/windows/main/MainWindow.h"

#include "UserInput.h"
#include "qt/binders/OutletConnector.h"
#include "qt/kit/ElidedLabel.h"
#include "qt/kit/Palettes.h"
#include "qt/kit/PrimaryButton.h"
#include "qt/windows/WindowStateStore.h"
#include "qt/windows/splash/SplashScreen.h"

#include <QAccessible>
#include <QFile>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace sonavel {
namespace {

class MainWindowTest : public testing::Test {
protected:
    MainWindowTest() { connectWindow(controls.main, window); }

    Controls controls;
    MainWindow window{nullptr};
    ElidedLabel& title = *window.findChild<ElidedLabel*>("labelNowPlaying");
    const QFrame& panel = *window.findChild<QFrame*>("displayPanel");
};

TEST_F(MainWindowTest, NothingMovesWhenTextsChange)
{
    window.show();
    const auto shape = [&] {
        QApplication::processEvents();
        std::vector<QRect> rectangles{window.geometry()};
        for (const QWidget* widget : window.findChildren<QWidget*>())
            rectangles.push_back(widget->geometry());
        return rectangles;
    };
    const std::vector<QRect> before = shape();
    const QString veryLong(3'000, u'W');
    window.showNowPlaying(veryLong, MainWindow::Emphasis::Failure);
    window.showNotice(veryLong);
    controls.main.buttonPlayPause.setImage("pause.png");
    controls.main.popupbuttonRadioList.setItems(
        std::make_shared<const std::vector<Text>>(1, Text(veryLong.toStdString())));
    EXPECT_EQ(shape(), before);
}

TEST_F(MainWindowTest, AFailureBearsAMarkBesideItsText)
{
    window.show();
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        window.setLayoutDirection(direction);
        const auto picture = [&](const QString& text, MainWindow::Emphasis emphasis) {
            window.showNowPlaying(text, emphasis);
            return title.grab().toImage();
        };
        const QImage empty = picture({}, MainWindow::Emphasis::Faded);
        const QImage mark = picture({}, MainWindow::Emphasis::Failure);
        EXPECT_NE(mark, empty);
        const QRect text = title.textArea();
        EXPECT_EQ(mark.copy(text), empty.copy(text)) << "the mark lies on the text";
        EXPECT_NE(picture("No answer", MainWindow::Emphasis::Failure).copy(text), empty.copy(text));
        EXPECT_EQ(picture({}, MainWindow::Emphasis::Usual), empty);
    }
}

TEST_F(MainWindowTest, ItsMarginsAreEven)
{
    window.show();
    QApplication::processEvents();
    const QRect content = window.centralWidget()->rect();
    const QPoint corner = panel.geometry().topLeft();
    const QRect button = window.findChild<QPushButton*>("buttonEditRadioList")->geometry();
    EXPECT_EQ(corner.x(), corner.y());
    EXPECT_EQ(content.bottomRight() - button.bottomRight(), corner);
}

TEST_F(MainWindowTest, ALargeOneHasItsContentInTheMiddleAndGivesItsHeightToTheTitle)
{
    window.show();
    const QSize usual = window.size();
    const QFont usualFont = title.font();
    for (const QSize size : {QSize(940, 1040), QSize(1920, 1080), QSize(3840, 2160)}) {
        window.resize(size);
        QApplication::processEvents();
        EXPECT_EQ(window.size(), size);
        EXPECT_GT(panel.height(), size.height() * 2 / 3);
        EXPECT_GT(title.font().pointSizeF(), 2 * usualFont.pointSizeF());
        EXPECT_NEAR(panel.geometry().left(), window.centralWidget()->rect().right() - panel.geometry().right(), 1);
        EXPECT_LT(panel.width(), 1'500);
    }
    window.resize(usual);
    EXPECT_EQ(title.font(), usualFont);
}

TEST(PrimaryButton, FromRightToLeftItsWordIsAsFarFromItsEdge)
{
    PrimaryButton button;
    button.setText("Play");
    QPixmap picture(button.iconSize());
    picture.fill(Qt::black);
    button.setIcon(picture);
    button.resize(2 * button.sizeHint());
    const auto besideWord = [&](Qt::LayoutDirection direction) {
        QApplication::setLayoutDirection(direction);
        const QImage looks = button.grab().toImage().mirrored(direction == Qt::RightToLeft, false);
        for (int x = looks.width() - 3; x > 0; --x)
            for (int y = looks.height() / 4; y < looks.height() * 3 / 4; ++y)
                if (looks.pixelColor(x, y).lightness() > 200)
                    return looks.width() - x;
        return 0;
    };
    const int usual = besideWord(Qt::LeftToRight);
    EXPECT_GT(usual, 10);
    EXPECT_NEAR(besideWord(Qt::RightToLeft), usual, 4);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(MainWindowTest, MutedIsShownByAPressedButtonAndTheIconOfTheSlider)
{
    auto& button = *window.findChild<QPushButton*>("buttonMute");
    const auto icon = [&] { return window.findChild<QLabel*>("imageVolume")->pixmap().toImage(); };
    const QImage heard = icon();
    EXPECT_FALSE(heard.isNull());
    controls.main.buttonMute.setEnabled(true);
    controls.main.buttonMute.setState(true);
    controls.main.imageVolume.setImage("muted.png");
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&button)->state().checked);
    EXPECT_NE(icon(), heard);
    const QImage light = icon();
    window.setPalette(paletteFor(Appearance::Dark));
    EXPECT_NE(icon(), light);

    int presses = 0;
    controls.main.buttonMute.action.set([&] { ++presses; });
    button.toggle();
    EXPECT_EQ(presses, 1);
    EXPECT_FALSE(controls.main.buttonMute.state().isOn);
}

TEST(WindowStateStore, AWindowComesBackWhereItWasAndRubbishIsForgotten)
{
    const QTemporaryDir state;
    const WindowStateStore store(state.path() + "/missing/folder");
    QWidget window;
    window.setObjectName("winAny");
    store.restore(window);
    store.save(window);
    QWidget again;
    again.setObjectName("winAny");
    const QRect asNew = again.geometry();
    store.restore(again);
    EXPECT_EQ(again.geometry(), asNew) << "a window that was never shown has no place";

    window.show();
    window.setGeometry(40, 50, 330, 170);
    store.save(window);
    store.restore(again);
    EXPECT_EQ(again.geometry(), window.geometry());

    QFile file(state.path() + "/missing/folder/sonavel/windows.ini");
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("[winAny]\ngeometry=@ByteArray(rubbish)\n");
    file.close();
    store.restore(again);
    EXPECT_EQ(again.geometry(), window.geometry());
}

TEST_F(MainWindowTest, TheKeyboardGoesThroughTheControlsInReadingOrder)
{
    for (Button* button : {&controls.main.buttonPlayPause, &controls.main.buttonStop, &controls.main.buttonMute})
        button->setEnabled(true);
    controls.main.popupbuttonRadioList.setEnabled(true);
    controls.main.sliderVolume.setEnabled(true);
    ASSERT_TRUE(activate(window));
    QStringList order;
    for (int step = 0; step < 6; ++step) {
        order << window.focusWidget()->objectName();
        pressKey(*window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(' ').toStdString(),
        "popupbuttonRadioList sliderVolume buttonPlayPause buttonStop buttonMute "
        "buttonEditRadioList");
}

TEST(SplashScreen, StandsInTheMiddleOfTheScreenAndSaysWhatItWaitsFor)
{
    SplashScreen splash;
    const QString longName("Waiting for a.long.name.example …");
    splash.setWaitingFor(longName);
    splash.show();
    const QPoint apart = splash.geometry().center() - splash.screen()->availableGeometry().center();
    EXPECT_LE(apart.manhattanLength(), 2);
    const auto* line = splash.findChild<ElidedLabel*>();
    EXPECT_EQ(line->text(), longName);
    EXPECT_GE(line->width(), line->fontMetrics().horizontalAdvance(longName));
}

} // namespace
} // namespace sonavel
