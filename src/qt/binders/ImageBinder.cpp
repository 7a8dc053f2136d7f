#include "qt/binders/ImageBinder.h"

#include "qt/kit/Images.h"
#include "qt/kit/TextConversion.h"

#include <QEvent>
#include <QVariant>

namespace sonavel {

ImageBinder::ImageBinder(ImageView& image, QLabel& widget)
    : QObject(&widget)
    , image_(image)
    , widget_(widget)
{
    const QVariant name = widget.property("imageName");
    image_.connect(
        {name.isValid() ? toText(name.toString()) : Text()}, [this](const ImageViewState& state) { render(state); });
    render(image_.state());
    widget.installEventFilter(this);
}

ImageBinder::~ImageBinder()
{
    image_.disconnect();
}

bool ImageBinder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        render(image_.state());
    return QObject::eventFilter(watched, event);
}

void ImageBinder::render(const ImageViewState& state)
{
    if (state.image.isAbsent())
        return;
    const QColor color = widget_.palette().color(QPalette::Active, QPalette::WindowText);
    const int size = widget_.fontMetrics().height() * 5 / 4;
    widget_.setPixmap(imageNamed(state.image, color, color).pixmap(QSize(size, size), widget_.devicePixelRatioF()));
}

} // namespace sonavel
