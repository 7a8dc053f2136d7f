// The program's own light and dark colours.
#pragma once

#include <QColor>
#include <QPalette>

namespace sonavel {

enum class Appearance { Light, Dark };

[[nodiscard]] QPalette paletteFor(Appearance appearance);

/// Which of the two the application's present palette is.
[[nodiscard]] Appearance presentAppearance();

/// A red for texts that can be read on the present palette's windows and buttons (contrast 4.5 to 1 or better).
[[nodiscard]] QColor readableRed();

} // namespace sonavel
