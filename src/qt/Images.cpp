#include "qt/Images.h"

#include "qt/TextConversion.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <utility>

namespace sonavel {

namespace {

constexpr int sharpestVersion = 3;

/// An image as it was made for that scale of the screen; null when there is none. Says that it is a PNG, because a
/// guess loads a plug-in for every other format first.
QPixmap readVersion(const QString& path, int scale)
{
    const QString ending = scale == 1 ? QStringLiteral(".png") : QStringLiteral("@%1x.png").arg(scale);
    QPixmap pixmap(path + ending, "PNG");
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

/// Paints a shape in one colour, at any size and scale. Reads it when it is painted, in the version that is wanted
/// then.
class TintedIconEngine : public QIconEngine {
public:
    TintedIconEngine(QString path, const QColor& color, const QColor& disabledColor)
        : path_(std::move(path))
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
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        readShapeFor(scale);
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        {
            QPainter painter(&pixmap);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawPixmap(QRect(QPoint(), size), shape_, shape_.rect());
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(pixmap.rect(), mode == QIcon::Disabled ? disabledColor_ : color_);
        }
        pixmap.setDevicePixelRatio(scale);
        return pixmap;
    }

private:
    void readShapeFor(qreal scale)
    {
        const int wanted = std::clamp(qCeil(scale), 1, sharpestVersion);
        if (std::exchange(shapeScale_, wanted) != wanted)
            shape_ = readVersion(path_, wanted);
    }

    QString path_;
    QColor color_;
    QColor disabledColor_;
    QPixmap shape_;
    int shapeScale_ = 0;
};

} // namespace

QIcon imageNamed(const Text& name, const QColor& color, const QColor& disabledColor)
{
    const QString file = toQString(name);
    const QString path = QStringLiteral(":/images/") + file;
    if (!file.endsWith(QStringLiteral(".png")) || !QFile::exists(path))
        return {};
    return QIcon(new TintedIconEngine(path.chopped(4), color, disabledColor));
}

QIcon programIcon()
{
    QIcon icon;
    for (const int scale : {1, 2})
        icon.addPixmap(readVersion(QStringLiteral(":/images/sonavel"), scale));
    return icon;
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
