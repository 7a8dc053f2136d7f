#include "qt/Images.h"

#include "qt/TextConversion.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>

namespace sonavel {

namespace {

/// Paints a shape in one colour, at any size and scale.
class TintedIconEngine : public QIconEngine {
public:
    TintedIconEngine(QIcon shape, const QColor& color, const QColor& disabledColor)
        : shape_(std::move(shape))
        , color_(color)
        , disabledColor_(disabledColor)
    {
    }

    QIconEngine* clone() const override { return new TintedIconEngine(*this); }

    void paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device()->devicePixelRatio();
        painter->drawPixmap(rectangle, scaledPixmap(rectangle.size() * scale, mode, state, scale));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }

    /// `size` is in the screen's own dots.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        {
            QPainter painter(&pixmap);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawPixmap(QRect(QPoint(), size), shape_.pixmap(size / scale, scale, QIcon::Normal, state));
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(pixmap.rect(), mode == QIcon::Disabled ? disabledColor_ : color_);
        }
        pixmap.setDevicePixelRatio(scale);
        return pixmap;
    }

private:
    QIcon shape_;
    QColor color_;
    QColor disabledColor_;
};

} // namespace

QIcon imageNamed(const Text& name, const QColor& color, const QColor& disabledColor)
{
    const QString path = QStringLiteral(":/images/") + toQString(name);
    if (name.isEmpty() || !QFile::exists(path))
        return {};
    return QIcon(new TintedIconEngine(QIcon(path), color, disabledColor));
}

QString wordForImage(const Text& name)
{
    if (name == Text("play.png"))
        return qtTrId("BUTTON_PLAY");
    if (name == Text("pause.png"))
        return qtTrId("BUTTON_PAUSE");
    return {};
}

QString hintForImage(const Text& name)
{
    if (name == Text("play.png"))
        return qtTrId("HINT_PLAY");
    if (name == Text("pause.png"))
        return qtTrId("HINT_PAUSE");
    return {};
}

} // namespace sonavel
