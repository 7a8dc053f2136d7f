#include "qt/kit/Palettes.h"

#include "UserInput.h"
#include "qt/kit/PrimaryButton.h"

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

TEST(Palettes, TheKeyboardsPlaceIsSeenOnTheButtonThatMattersMost)
{
    const QPalette usual = QApplication::palette();
    for (const QString& name : appearanceNames()) {
        QApplication::setPalette(paletteFor(appearanceNamed(name).value()));
        QWidget window;
        QPushButton before(&window);
        PrimaryButton button(&window);
        button.resize(100, 32);
        before.setFocus();
        window.show();
        window.activateWindow();
        ASSERT_TRUE(handleEventsUntil([&] { return before.hasFocus(); }));
        const QImage usualLooks = button.grab().toImage();
        pressKey(before, Qt::Key_Tab);
        ASSERT_TRUE(button.hasFocus());
        const QImage looks = button.grab().toImage();
        double greatest = 1;
        for (int x = 0; x < looks.width() / 2; ++x) {
            const QPoint point(x, looks.height() / 2);
            greatest = std::max(greatest, contrast(looks.pixelColor(point), usualLooks.pixelColor(point)));
        }
        EXPECT_GE(greatest, 3.0) << name.toStdString();
    }
    QApplication::setPalette(usual);
}

} // namespace
} // namespace sonavel
