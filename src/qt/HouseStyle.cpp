#include "qt/HouseStyle.h"

#include <QStyleFactory>

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

} // namespace sonavel
