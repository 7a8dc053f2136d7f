#include "qt/Palettes.h"

#include <QGuiApplication>

namespace sonavel {

namespace {

/// The few colours from which a palette is made.
struct Colors {
    QRgb window;
    QRgb text;
    QRgb base;
    QRgb button;
    QRgb accent;
    QRgb accentText;
    QRgb faded; ///< of what is disabled
    QRgb quiet; ///< of texts that stand back, yet are to be read
    QRgb link;
};

constexpr Colors lightColors{
    0xfff3f4f6, 0xff1d2126, 0xffffffff, 0xfffbfbfc, 0xff1f6feb, 0xffffffff, 0xff8b929b, 0xff626b76, 0xff0b57d0};
constexpr Colors darkColors{
    0xff23262b, 0xffe8eaed, 0xff1a1c20, 0xff343941, 0xff2b6be4, 0xffffffff, 0xff7d858f, 0xffa0a8b2, 0xff8ab4f8};

QPalette paletteOf(const Colors& colors)
{
    QPalette palette(QColor(colors.button), QColor(colors.window));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, QColor(colors.text));
        palette.setColor(QPalette::Disabled, role, QColor(colors.faded));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(colors.quiet));
    palette.setColor(QPalette::Base, QColor(colors.base));
    palette.setColor(QPalette::AlternateBase, QColor(colors.window));
    palette.setColor(QPalette::ToolTipBase, QColor(colors.base));
    palette.setColor(QPalette::Highlight, QColor(colors.accent));
    palette.setColor(QPalette::HighlightedText, QColor(colors.accentText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colors.faded));
    palette.setColor(QPalette::Link, QColor(colors.link));
    return palette;
}

} // namespace

QPalette paletteFor(Appearance appearance)
{
    return paletteOf(appearance == Appearance::Dark ? darkColors : lightColors);
}

Appearance presentAppearance()
{
    const QPalette palette = QGuiApplication::palette();
    const bool isDark = palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
    return isDark ? Appearance::Dark : Appearance::Light;
}

QColor readableRed()
{
    return presentAppearance() == Appearance::Dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xc0, 0x12, 0x1f);
}

} // namespace sonavel
