// The desktop's style with a few changes to its controls.
#pragma once

#include <QCache>
#include <QPalette>
#include <QProxyStyle>

namespace sonavel {

/// Combo boxes open as scrollable lists, which are fast with very many items; a click on a slider's groove moves the
/// handle there; the texts of tables and buttons have margins; the outlines of controls contrast with light and dark
/// palettes. `base` is the key of a style, or empty for the desktop's.
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
