#include "qt/kit/ApplicationStyle.h"

#include "qt/kit/Images.h"
#include "qt/kit/Palettes.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTableView>

namespace sonavel {

namespace {

constexpr int darkenedForOutlines = 140; // percent; how the toolkit makes an outline of the window's colour
constexpr int palettesInUse = 16;

} // namespace

ApplicationStyle::ApplicationStyle(const QString& base)
    : QProxyStyle(base.isEmpty() ? nullptr : QStyleFactory::create(base))
    , outlined_(palettesInUse)
{
}

int ApplicationStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_Slider_AbsoluteSetButtons:
        return Qt::LeftButton;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

void ApplicationStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const auto drawOutlined = [&](auto copy) {
        copy.palette = outlined(copy.palette);
        QProxyStyle::drawPrimitive(element, &copy, painter, widget);
    };
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
        drawOutlined(*button);
    else if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option))
        drawOutlined(*frame);
    else if (const auto* menu = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
        drawOutlined(*menu);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

/// Qt mirrors the text beside an icon twice, which moves it to the edge of its button.
void ApplicationStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const Qt::LayoutDirection direction = painter->layoutDirection();
    if (element == CE_PushButtonLabel)
        painter->setLayoutDirection(Qt::LeftToRight);
    QProxyStyle::drawControl(element, option, painter, widget);
    painter->setLayoutDirection(direction);
}

void ApplicationStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_Slider || slider == nullptr)
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    QStyleOptionSlider copy = *slider;
    copy.palette = outlined(copy.palette);
    QProxyStyle::drawComplexControl(control, &copy, painter, widget);
}

/// Qt caches what it has drawn by the palette, hence one result for each palette.
QPalette ApplicationStyle::outlined(const QPalette& palette) const
{
    const qint64 key = palette.cacheKey();
    if (!outlined_.contains(key)) {
        auto changed = std::make_unique<QPalette>(palette);
        changed->setColor(QPalette::Window, edgeColor(palette).lighter(darkenedForOutlines));
        outlined_.insert(key, changed.release());
    }
    return *outlined_.object(key);
}

/// Every menu bar requests the icon of the button for entries that do not fit, which is hardly ever visible. Qt would
/// read its own from a file and load every image plug-in for it.
QIcon ApplicationStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const
{
    if (picture != SP_ToolBarHorizontalExtensionButton || widget == nullptr)
        return QProxyStyle::standardIcon(picture, option, widget);
    return imageNamed("more.png", widget->palette());
}

QSize ApplicationStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type != CT_PushButton || option == nullptr)
        return size;
    const int besideText = option->fontMetrics.height() * 3 / 4;
    return size.expandedTo({contents.width() + 2 * besideText, 0});
}

int ApplicationStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const bool isBesideText = metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin;
    const bool isTable = qobject_cast<const QTableView*>(widget) || qobject_cast<const QHeaderView*>(widget);
    if (isBesideText && isTable)
        return widget->fontMetrics().height() / 2;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace sonavel
