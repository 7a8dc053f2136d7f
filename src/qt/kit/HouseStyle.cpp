#include "qt/kit/HouseStyle.h"

#include "qt/kit/Images.h"
#include "qt/kit/Palettes.h"

#include <QHeaderView>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTableView>

namespace sonavel {

namespace {

/// The toolkit makes outlines of the window's colour, a little darker, which is hardly seen on a light window and not
/// at all on a dark one.
template <class Option> Option outlined(Option option)
{
    option.palette.setColor(QPalette::Window, option.palette.color(QPalette::PlaceholderText));
    return option;
}

} // namespace

HouseStyle::HouseStyle(const QString& base)
    : QProxyStyle(base.isEmpty() ? nullptr : QStyleFactory::create(base))
{
}

int HouseStyle::styleHint(
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

void HouseStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const bool isMoreSeen = option != nullptr && isHighContrast(option->palette);
    const auto draw = [&](const QStyleOption& copy) { QProxyStyle::drawPrimitive(element, &copy, painter, widget); };
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        button != nullptr && (element == PE_IndicatorCheckBox || isMoreSeen))
        draw(outlined(*button));
    else if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame != nullptr && isMoreSeen)
        draw(outlined(*frame));
    else if (const auto* menu = qstyleoption_cast<const QStyleOptionMenuItem*>(option); menu != nullptr && isMoreSeen)
        draw(outlined(*menu));
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void HouseStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_Slider || slider == nullptr || !isHighContrast(option->palette))
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    const QStyleOptionSlider copy = outlined(*slider);
    QProxyStyle::drawComplexControl(control, &copy, painter, widget);
}

/// Every menu bar asks for the picture of the button that shows what has no room, as good as never to be seen. The
/// toolkit reads its own from a file, with a plug-in for every format that there is.
QIcon HouseStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const
{
    if (picture != SP_ToolBarHorizontalExtensionButton || widget == nullptr)
        return QProxyStyle::standardIcon(picture, option, widget);
    const QPalette palette = widget->palette();
    return imageNamed("more.png", palette.color(QPalette::Active, QPalette::ButtonText),
        palette.color(QPalette::Disabled, QPalette::ButtonText));
}

QSize HouseStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type != CT_PushButton || option == nullptr)
        return size;
    const int besideText = option->fontMetrics.height() * 3 / 4;
    return size.expandedTo({contents.width() + 2 * besideText, 0});
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const bool isBesideText = metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin;
    const bool isTable = qobject_cast<const QTableView*>(widget) || qobject_cast<const QHeaderView*>(widget);
    if (isBesideText && isTable)
        return widget->fontMetrics().height() / 2;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace sonavel
