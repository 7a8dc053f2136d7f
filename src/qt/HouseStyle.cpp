#include "qt/HouseStyle.h"

#include "qt/Images.h"

#include <QHeaderView>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTableView>

namespace sonavel {

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

/// The outline is made of the window's colour, a little darker, which is not seen where that is dark already.
void HouseStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != PE_IndicatorCheckBox || button == nullptr)
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    QStyleOptionButton outlined = *button;
    outlined.palette.setColor(QPalette::Window, button->palette.color(QPalette::PlaceholderText));
    QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
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

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const bool isBesideText = metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin;
    const bool isTable = qobject_cast<const QTableView*>(widget) || qobject_cast<const QHeaderView*>(widget);
    if (isBesideText && isTable)
        return widget->fontMetrics().height() / 2;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace sonavel
