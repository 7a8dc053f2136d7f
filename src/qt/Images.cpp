#include "qt/Images.h"

#include "qt/TextConversion.h"

#include <QIconEngine>
#include <QPainter>

#include <array>
#include <utility>

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

    [[nodiscard]] QIconEngine* clone() const override { return new TintedIconEngine(*this); }

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

/// All versions of an image, by the screen's scale. Says that they are PNG, because a guess loads a plug-in for every
/// other format first.
QIcon readImage(const QString& path)
{
    QIcon icon;
    constexpr std::array versions{std::pair{".png", 1.0}, std::pair{"@2x.png", 2.0}, std::pair{"@3x.png", 3.0}};
    for (const auto& [ending, scale] : versions) {
        QPixmap pixmap(path + QLatin1String(ending), "PNG");
        if (pixmap.isNull())
            continue;
        pixmap.setDevicePixelRatio(scale);
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

QIcon imageNamed(const Text& name, const QColor& color, const QColor& disabledColor)
{
    const QString file = toQString(name);
    if (!file.endsWith(QStringLiteral(".png")))
        return {};
    const QIcon shape = readImage(QStringLiteral(":/images/") + file.chopped(4));
    return shape.isNull() ? QIcon() : QIcon(new TintedIconEngine(shape, color, disabledColor));
}

QIcon programIcon()
{
    return readImage(QStringLiteral(":/images/sonavel"));
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
