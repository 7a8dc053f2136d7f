#include "qt/OutletConnector.h"

#include "qt/ButtonBinder.h"
#include "qt/LabelBinder.h"
#include "qt/PopUpBinder.h"
#include "qt/SliderBinder.h"
#include "qt/WindowBinder.h"

namespace sonavel {

namespace {

/// The window itself or a widget in it.
template <class Widget> Widget& widgetNamed(QWidget& window, const char* name)
{
    const QString wanted = QString::fromLatin1(name);
    auto* widget = dynamic_cast<Widget*>(window.objectName() == wanted ? &window : window.findChild<QWidget*>(wanted));
    if (widget == nullptr)
        throw MissingOutlet(
            std::string("the window has no ") + Widget::staticMetaObject.className() + " named " + name);
    return *widget;
}

// Qt owns the binders: each is a child of its widget.
void connect(Window& outlet, QWidget& window, const char* name)
{
    new WindowBinder(outlet, widgetNamed<QWidget>(window, name));
}
void connect(Button& outlet, QWidget& window, const char* name)
{
    new ButtonBinder(outlet, widgetNamed<QAbstractButton>(window, name));
}
void connect(PopUpButton& outlet, QWidget& window, const char* name)
{
    new PopUpBinder(outlet, widgetNamed<StationComboBox>(window, name));
}
void connect(Slider& outlet, QWidget& window, const char* name)
{
    new SliderBinder(outlet, widgetNamed<QSlider>(window, name));
}
void connect(TextField& outlet, QWidget& window, const char* name)
{
    new LabelBinder(outlet, widgetNamed<QLabel>(window, name));
}

} // namespace

void connectMainWindow(Outlets& outlets, QWidget& window)
{
    connect(outlets.winSonavel, window, "winSonavel");
    connect(outlets.popupbuttonRadioList, window, "popupbuttonRadioList");
    connect(outlets.buttonPlayPause, window, "buttonPlayPause");
    connect(outlets.buttonStop, window, "buttonStop");
    connect(outlets.buttonMute, window, "buttonMute");
    connect(outlets.buttonEditRadioList, window, "buttonEditRadioList");
    connect(outlets.sliderVolume, window, "sliderVolume");
    connect(outlets.labelVolume, window, "labelVolume");
}

} // namespace sonavel
