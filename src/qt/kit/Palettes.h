// The program's own colours.
#pragma once

#include <QColor>
#include <QPalette>
#include <QStringList>

#include <optional>

namespace sonavel {

enum class Appearance { Light, Dark, HighContrastLight, HighContrastDark };

/// "light", "dark", "high-contrast-light" or "high-contrast-dark".
[[nodiscard]] QString nameOf(Appearance appearance);
[[nodiscard]] std::optional<Appearance> appearanceNamed(const QString& name);
[[nodiscard]] QStringList appearanceNames();

[[nodiscard]] QPalette paletteFor(Appearance appearance);

/// Whether texts are as dark and their ground as light as can be, or the other way round.
[[nodiscard]] bool isHighContrast(const QPalette& palette);

/// The first colour with `share` (0 to 1) of the other one.
[[nodiscard]] QColor mixed(const QColor& one, const QColor& other, qreal share);

/// For the outlines of controls: stands out from windows and fields by 3 to 1 or better in the program's palettes, and
/// is the colour of texts where the contrast is high.
[[nodiscard]] QColor edgeColor(const QPalette& palette);

/// A red for texts that can be read on the present palette's windows and buttons (contrast 4.5 to 1 or better).
[[nodiscard]] QColor readableRed();

} // namespace sonavel
