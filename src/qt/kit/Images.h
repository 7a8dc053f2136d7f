// The images that are delivered with the program.
#pragma once

#include "base/Text.h"

#include <QColor>
#include <QIcon>
#include <QPalette>

namespace sonavel {

/// The image of that name, such as "play.png", in the given colours; an empty icon when there is none. The image gives
/// the shape alone, so that it suits light and dark palettes; it is drawn from the sharpest version that fits the
/// screen.
[[nodiscard]] QIcon imageNamed(const Text& name, const QColor& color, const QColor& disabledColor);
/// In the colours that the palette has for the text of buttons.
[[nodiscard]] QIcon imageNamed(const Text& name, const QPalette& palette);

/// The program's own picture.
[[nodiscard]] QIcon programIcon();

} // namespace sonavel
