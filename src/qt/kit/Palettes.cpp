#include "qt/kit/Palettes.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>

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
    0xfff3f4f6, 0xff1d2126, 0xffffffff, 0xfffbfbfc, 0xff1a5fc8, 0xffffffff, 0xff7b828b, 0xff626b76, 0xff0b57d0};
constexpr Colors darkColors{
    0xff23262b, 0xffe8eaed, 0xff1a1c20, 0xff2c3036, 0xff2966dd, 0xffffffff, 0xff8d959f, 0xffa0a8b2, 0xff8ab4f8};
constexpr Colors highContrastLightColors{
    0xffffffff, 0xff000000, 0xffffffff, 0xffffffff, 0xff003a9e, 0xffffffff, 0xff5c5c5c, 0xff404040, 0xff003a9e};
constexpr Colors highContrastDarkColors{
    0xff000000, 0xffffffff, 0xff000000, 0xff1c1c1c, 0xff9fd0ff, 0xff000000, 0xff9a9a9a, 0xffc8c8c8, 0xff9fd0ff};

constexpr qreal textInLightEdges = 0.55; // the share of the text's colour; the rest is the window's
constexpr qreal textInDarkEdges = 0.42;

struct NamedAppearance {
    Appearance appearance;
    const char* name;
    const Colors& colors;
};

constexpr std::array appearances{
    NamedAppearance{Appearance::Light, "light", lightColors},
    NamedAppearance{Appearance::Dark, "dark", darkColors},
    NamedAppearance{Appearance::HighContrastLight, "high-contrast-light", highContrastLightColors},
    NamedAppearance{Appearance::HighContrastDark, "high-contrast-dark", highContrastDarkColors},
};

const NamedAppearance& entryOf(Appearance appearance)
{
    return *std::find_if(appearances.begin(), appearances.end(),
        [appearance](const NamedAppearance& entry) { return entry.appearance == appearance; });
}

int lightness(const QPalette& palette, QPalette::ColorRole role)
{
    return palette.color(QPalette::Active, role).lightness();
}

bool isDark(const QPalette& palette)
{
    return lightness(palette, QPalette::WindowText) > lightness(palette, QPalette::Window);
}

} // namespace

QString nameOf(Appearance appearance)
{
    return QLatin1String(entryOf(appearance).name);
}

std::optional<Appearance> appearanceNamed(const QString& name)
{
    for (const NamedAppearance& entry : appearances)
        if (name == QLatin1String(entry.name))
            return entry.appearance;
    return std::nullopt;
}

QStringList appearanceNames()
{
    QStringList names;
    for (const NamedAppearance& entry : appearances)
        names << QLatin1String(entry.name);
    return names;
}

QPalette paletteFor(Appearance appearance)
{
    const Colors& colors = entryOf(appearance).colors;
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

bool isHighContrast(const QPalette& palette)
{
    return qAbs(lightness(palette, QPalette::WindowText) - lightness(palette, QPalette::Window)) == 255;
}

QColor mixed(const QColor& one, const QColor& other, qreal share)
{
    const auto part = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {part(one.red(), other.red()), part(one.green(), other.green()), part(one.blue(), other.blue())};
}

QColor edgeColor(const QPalette& palette)
{
    const qreal usualShare = isDark(palette) ? textInDarkEdges : textInLightEdges;
    return mixed(palette.color(QPalette::Active, QPalette::Window),
        palette.color(QPalette::Active, QPalette::WindowText), isHighContrast(palette) ? 1.0 : usualShare);
}

QColor readableRed()
{
    return isDark(QGuiApplication::palette()) ? QColor(0xff, 0x9e, 0x95) : QColor(0xc0, 0x12, 0x1f);
}

} // namespace sonavel
