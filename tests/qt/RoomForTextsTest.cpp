// Whether every text fits into its control, in every language.
#include "platform/StreamPlayer.h"
#include "qt/binders/OutletConnector.h"
#include "qt/kit/ElidedLabel.h"
#include "qt/kit/StationComboBox.h"
#include "qt/kit/StatusLine.h"
#include "qt/ports/TranslatedStrings.h"
#include "qt/windows/Messages.h"
#include "qt/windows/ProgramDialog.h"
#include "qt/windows/ProgramMenus.h"
#include "qt/windows/main/MainWindow.h"
#include "qt/windows/splash/SplashScreen.h"
#include "qt/windows/stationlist/StationListWindow.h"
#include "ui/Controls.h"
#include "ui_AboutWindow.h"
#include "ui_PreferencesSheet.h"
#include "ui_UpdateNotice.h"
#include "ui_UpdateWindow.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <gtest/gtest.h>

namespace sonavel {
namespace {

class RoomForTextsTest : public testing::TestWithParam<const char*> {
protected:
    /// Lines that may be longer than their space elide what does not fit, and give it otherwise.
    static bool mayElide(const QWidget& widget)
    {
        return dynamic_cast<const ElidedLabel*>(&widget) || dynamic_cast<const StatusLine*>(&widget)
            || dynamic_cast<const StationComboBox*>(&widget) || widget.objectName().startsWith("qt_");
    }

    static void expectNothingOverlaps(const QWidget& parent)
    {
        const auto children = parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget* child : children) {
            for (const QWidget* other : children)
                EXPECT_TRUE(other == child || other->isHidden() || child->isHidden() || other->isWindow()
                    || child->isWindow() || !child->geometry().intersects(other->geometry()))
                    << child->objectName().toStdString() << " and " << other->objectName().toStdString();
            if (child->layout() != nullptr)
                expectNothingOverlaps(*child);
        }
    }

    static void expectRoomIn(QWidget& window)
    {
        window.show();
        QApplication::processEvents();
        window.resize(window.minimumSize());
        QApplication::processEvents();
        expectNothingOverlaps(window);
        for (auto* widget : window.findChildren<QWidget*>()) {
            SCOPED_TRACE(widget->objectName().toStdString());
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            const bool hasText = qobject_cast<QLabel*>(widget) || (button != nullptr && !button->text().isEmpty());
            if (!hasText || mayElide(*widget) || !widget->isVisible())
                continue;
            if (widget->hasHeightForWidth()) {
                EXPECT_GE(widget->height(), widget->heightForWidth(widget->width()));
                continue;
            }
            EXPECT_GE(widget->width(), widget->sizeHint().width());
            EXPECT_GE(widget->height(), widget->minimumSizeHint().height());
        }
        for (auto* field : window.findChildren<QLineEdit*>())
            EXPECT_GE(field->width(), field->fontMetrics().horizontalAdvance(field->placeholderText()));
        const QFontMetrics metrics = window.fontMetrics();
        EXPECT_GE(window.width(), metrics.horizontalAdvance(window.windowTitle()) + 8 * metrics.height())
            << "the title and the buttons beside it";
        for (auto* header : window.findChildren<QHeaderView*>()) {
            for (int column = 0; header->orientation() == Qt::Horizontal && column < header->count(); ++column)
                EXPECT_GE(header->sectionSize(column), header->sectionSizeHint(column));
        }
        window.hide();
    }

    /// A tool bar or menu bar that is too small hides its last entries behind a button.
    static void expectAllShown(QMainWindow& window)
    {
        window.show();
        for (const char* button : {"qt_toolbar_ext_button", "qt_menubar_ext_button"})
            for (auto* extension : window.findChildren<QToolButton*>(button))
                EXPECT_FALSE(extension->isVisible()) << button;
    }

    const TranslatedStrings strings{QLocale(GetParam())};
    Controls controls;
    ProgramMenus menus{[] {}};
    MainWindow main{&menus};
};

TEST_P(RoomForTextsTest, IsThereAtTheSmallestSizeOfEveryWindow)
{
    connectWindow(controls.main, main);
    controls.main.buttonPlayPause.setImage("play.png");
    expectRoomIn(main);
    expectAllShown(main);

    TableView table;
    StationListWindow list(table);
    menus.addTo(list);
    expectRoomIn(list);
    expectAllShown(list);

    const auto sheet = editSheetOf(list);
    for (const char* word : {"BUTTON_ADD", "BUTTON_EDIT"}) {
        sheet->findChild<QPushButton*>("buttonAction")->setText(qtTrId(word));
        expectRoomIn(*sheet);
    }
    SplashScreen splash;
    splash.setWaitingFor("data.example");
    expectRoomIn(splash);
    const auto preferences = ProgramDialog::from<Ui::PreferencesSheet>();
    menus.addTo(*preferences);
    expectRoomIn(*preferences);
}

TEST_P(RoomForTextsTest, IsThereForWhatIsFilledInLater)
{
    const auto say = [](ProgramDialog& dialog, const char* label, const QString& text) {
        dialog.findChild<QLabel*>(QString::fromLatin1(label))->setText(text);
    };
    const auto about = ProgramDialog::from<Ui::AboutWindow>();
    say(*about, "labelAppVersion", qtTrId("ABOUT_VERSION") + "1.0.0");
    expectRoomIn(*about);

    const auto update = ProgramDialog::from<Ui::UpdateWindow>();
    say(*update, "textFieldLabelUpdateNameApp", "Sonavel " + qtTrId("UPD_NEW_UPDATE_AVIABLE"));
    say(*update, "textFieldLabelUpdateVersionNote",
        "Sonavel 10.11.12 (1314) " + qtTrId("UPD_INFO") + " 10.11.11 (1313)");
    expectRoomIn(*update);

    const auto notice = ProgramDialog::from<Ui::UpdateNotice>();
    for (const char* text : {"UPDATE_NONE", "UPDATE_NO_ANSWER"}) {
        say(*notice, "labelUpdateNotification", qtTrId(text).replace("%@", "10.11.12 (1314)"));
        expectRoomIn(*notice);
        notice->show(); // the next one comes while it is open
    }
}

TEST(MirroredDialogs, BeginTheirTextsAtTheRight)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const auto update = ProgramDialog::from<Ui::UpdateWindow>();
    for (const auto* label : update->findChildren<QLabel*>())
        EXPECT_TRUE(label->alignment().testFlags(Qt::AlignRight | Qt::AlignAbsolute));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_P(RoomForTextsTest, IsThereForWhyAStreamCannotBePlayed)
{
    main.show();
    const auto* line = main.findChild<ElidedLabel*>("labelNowPlaying");
    main.showNowPlaying({}, MainWindow::Emphasis::Failure);
    for (int failure = 0; failure <= static_cast<int>(PlaybackFailure::EngineFailed); ++failure) {
        const QString text = nowPlayingText({StreamReport::State::Reconnecting, Text(),
            static_cast<PlaybackFailure>(failure), std::chrono::seconds(30)});
        EXPECT_FALSE(text.contains("FAILURE_")) << text.toStdString();
        EXPECT_LE(line->fontMetrics().horizontalAdvance(text), line->textArea().width()) << text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, RoomForTextsTest, testing::Values("en", "de", "fr", "it", "es"),
    [](const auto& language) { return std::string(language.param); });

} // namespace
} // namespace sonavel
