// Fonts in other sizes.
#pragma once

#include <QFont>

namespace sonavel {

/// The font at `factor` times its size.
[[nodiscard]] inline QFont scaledFont(QFont font, double factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

} // namespace sonavel
