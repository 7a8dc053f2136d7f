// The desktop's style with the few habits that the program wants of its controls.
#pragma once

#include <QCache>
#include <QPalette>
#include <QProxyStyle>

namespace sonavel {

/// Pop-ups open as scrollable lists, which stays quick with very many items; a click into a slider's groove takes the
/// knob there; the texts of tables and buttons have space beside them; the outlines of controls stand out from what is
/// around them on light and dark palettes. `base` is the key of a style, or empty for the desktop's.
class ApplicationStyle : public QProxyStyle {
public:
    explicit ApplicationStyle(const QString& base = {});

    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override;
    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

private:
    [[nodiscard]] QPalette outlined(const QPalette& palette) const;

    mutable QCache<qint64, QPalette> outlined_;
};

} // namespace sonavel
