#include "qt/kit/Palettes.h"

#include "UserInput.h"
#include "qt/desktop/DesktopAppearance.h"
#include "qt/kit/PrimaryButton.h"
#include "qt/kit/StationComboBox.h"
#include "qt/windows/WindowStateStore.h"
#include "support/TemporaryFolder.h"

#include <QCheckBox>
#include <QDBusVariant>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace sonavel {
namespace {

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// The controls of the windows, drawn as the program draws them in one of its appearances.
class DrawnControlsTest : public testing::TestWithParam<QString> {
protected:
    DrawnControlsTest()
    {
        QApplication::setPalette(paletteFor(appearanceNamed(GetParam()).value()));
        panel.setFrameShape(QFrame::StyledPanel);
        panel.setBackgroundRole(QPalette::Base);
        panel.setAutoFillBackground(true);
        panel.setFixedHeight(40);
        button.setCheckable(true);
        check.setText(QStringLiteral("Check"));
        auto* rows = new QVBoxLayout(&window);
        for (QWidget* control :
            std::initializer_list<QWidget*>{&panel, &field, &box, &slider, &button, &primary, &check, &notes})
            rows->addWidget(control);
        window.show();
        window.activateWindow();
        button.setFocus();
        EXPECT_TRUE(handleEventsUntil([&] { return button.hasFocus(); }));
    }
    ~DrawnControlsTest() override { QApplication::setPalette(usualPalette); }

    [[nodiscard]] bool isHighContrastWanted() const { return GetParam().startsWith(QStringLiteral("high-contrast")); }

    /// How far the most conspicuous of some pixels stands out from the first one.
    double standsOut(QPoint from, QPoint step, int pixels)
    {
        const QImage looks = window.grab().toImage();
        double greatest = 1;
        for (int pixel = 1; pixel < pixels; ++pixel)
            greatest = std::max(greatest, contrast(looks.pixelColor(from), looks.pixelColor(from + pixel * step)));
        return greatest;
    }
    double edgeOf(const QWidget& control, int fromLeft = 8)
    {
        return standsOut(control.geometry().topLeft() + QPoint(fromLeft, -2), {0, 1}, control.height() / 2);
    }
    /// How far the focus changes what is seen across the middle of a control.
    double changeByFocus(QWidget& control)
    {
        check.setFocus();
        const QImage before = window.grab().toImage();
        control.setFocus(Qt::TabFocusReason);
        window.setAttribute(Qt::WA_KeyboardFocusChange);
        const QImage after = window.grab().toImage();
        double greatest = 1;
        QPoint point = control.geometry().center();
        for (point.ry() = control.geometry().top() - 2; point.y() < control.geometry().bottom() + 2; ++point.ry())
            greatest = std::max(greatest, contrast(before.pixelColor(point), after.pixelColor(point)));
        return greatest;
    }
    /// The least of a text's contrast to what a button is filled with.
    static double onFillOf(QWidget& control, const QColor& text)
    {
        const QImage looks = control.grab().toImage();
        double least = 21;
        for (int y = 4; y < looks.height() - 4; ++y)
            least = std::min(least, contrast(text, looks.pixelColor(8, y)));
        return least;
    }

    QPalette usualPalette = QApplication::palette();
    QWidget window;
    QFrame panel;
    QLineEdit field;
    StationComboBox box;
    QSlider slider{Qt::Horizontal};
    QPushButton button;
    PrimaryButton primary;
    QCheckBox check;
    QPlainTextEdit notes;
};

TEST_P(DrawnControlsTest, EdgesAndTheFocusStandOutFromWhatIsAround)
{
    const double least = isHighContrastWanted() ? 7.0 : 3.0;
    const std::pair<const char*, QWidget*> controls[]{{"panel", &panel}, {"field", &field}, {"pop-up", &box},
        {"button", &button}, {"primary button", &primary}, {"check box", &check}, {"notes", &notes}};
    for (const auto& [name, control] : controls)
        EXPECT_GE(edgeOf(*control), least) << name;
    EXPECT_GE(standsOut(slider.geometry().topRight() + QPoint(-8, 0), {0, 1}, slider.height()), least) << "groove";
    EXPECT_GE(changeByFocus(primary), 3.0);
    for (QWidget* control : std::initializer_list<QWidget*>{&field, &box, &button, &primary}) {
        control->setFocus(Qt::TabFocusReason);
        EXPECT_GE(edgeOf(*control, control->width() / 2), least) << "focus";
    }
}

TEST_P(DrawnControlsTest, TextsCanBeReadOnTheFillOfTheirButton)
{
    const QPalette palette = QApplication::palette();
    EXPECT_GE(onFillOf(button, palette.color(QPalette::ButtonText)), isHighContrastWanted() ? 7.0 : 4.5);
    EXPECT_GE(onFillOf(primary, palette.color(QPalette::HighlightedText)), isHighContrastWanted() ? 7.0 : 4.5);
    EXPECT_GE(onFillOf(button, readableRed()), 4.5);
    button.setChecked(true);
    EXPECT_GE(onFillOf(button, readableRed()), 4.5) << "pressed";
    button.setEnabled(false);
    EXPECT_GE(onFillOf(button, palette.color(QPalette::Disabled, QPalette::ButtonText)), 3.0);
}

INSTANTIATE_TEST_SUITE_P(Appearances, DrawnControlsTest, testing::ValuesIn(appearanceNames()),
    [](const auto& name) { return QString(name.param).remove(u'-').toStdString(); });

TEST(Palettes, TextsCanBeReadOnTheirGround)
{
    using Role = QPalette::ColorRole;
    const std::array pairs{std::pair{Role::WindowText, Role::Window}, std::pair{Role::Text, Role::Base},
        std::pair{Role::ButtonText, Role::Button}, std::pair{Role::HighlightedText, Role::Highlight},
        std::pair{Role::PlaceholderText, Role::Base}, std::pair{Role::PlaceholderText, Role::Window},
        std::pair{Role::Link, Role::Base}, std::pair{Role::ToolTipText, Role::ToolTipBase}};
    for (const QString& name : appearanceNames()) {
        const QPalette palette = paletteFor(appearanceNamed(name).value());
        const double least = name.startsWith(QStringLiteral("high-contrast")) ? 7.0 : 4.5;
        for (const auto& [text, ground] : pairs)
            EXPECT_GE(contrast(palette.color(text), palette.color(ground)), least) << name.toStdString() << " " << text;
        EXPECT_GE(
            contrast(palette.color(QPalette::Disabled, Role::ButtonText), palette.color(Role::Button)), least / 2);
        EXPECT_EQ(isHighContrast(palette), least == 7.0) << name.toStdString();
    }
}

TEST(Palettes, TheRememberedAppearanceIsShownAtTheStartAndFollowsTheDesktopFromThere)
{
    const QPalette usual = QApplication::palette();
    const test::TemporaryFolder folder;
    const WindowStateStore store(QString::fromStdString(folder.path()));
    std::filesystem::create_directory(folder.path("sonavel"));
    const auto expectShown = [](Appearance appearance) {
        EXPECT_EQ(QGuiApplication::palette().color(QPalette::Base), paletteFor(appearance).color(QPalette::Base));
        EXPECT_EQ(isHighContrast(QGuiApplication::palette()), isHighContrast(paletteFor(appearance)));
    };
    for (const QString& name : appearanceNames()) {
        folder.put("sonavel/windows.ini", "[desktop]\nappearance=" + name.toStdString() + '\n');
        DesktopAppearance desktop(store);
        desktop.applySaved();
        expectShown(appearanceNamed(name).value());
        const auto set = [&](const char* group, const char* key, uint value) {
            QMetaObject::invokeMethod(&desktop, "settingChanged", Q_ARG(QString, QString::fromLatin1(group)),
                Q_ARG(QString, QString::fromLatin1(key)), Q_ARG(QDBusVariant, QDBusVariant(value)));
        };
        const bool isDark = name.endsWith(QStringLiteral("dark"));
        set("org.freedesktop.appearance", "contrast", 1);
        expectShown(isDark ? Appearance::HighContrastDark : Appearance::HighContrastLight);
        set("org.freedesktop.appearance", "contrast", 0);
        set("elsewhere", "color-scheme", isDark ? 2 : 1);
        expectShown(isDark ? Appearance::Dark : Appearance::Light);
        set("org.freedesktop.appearance", "color-scheme", isDark ? 2 : 1);
        expectShown(isDark ? Appearance::Light : Appearance::Dark);
        DesktopAppearance(store).applySaved();
        expectShown(isDark ? Appearance::Light : Appearance::Dark);
    }
    QApplication::setPalette(usual);
}

} // namespace
} // namespace sonavel
