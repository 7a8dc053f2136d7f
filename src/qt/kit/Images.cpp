#include "qt/kit/Images.h"

#include "qt/kit/TextConversion.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QtMath>

#include <png.h>

#include <algorithm>
#include <utility>

namespace sonavel {

namespace {

constexpr int sharpestVersion = 3;

/// Null when it is no PNG. The toolkit's own way loads a plug-in for every format that there is, which a start would
/// wait for.
QImage decodedPng(const QByteArray& bytes)
{
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&png, bytes.constData(), static_cast<std::size_t>(bytes.size())) == 0)
        return {};
    png.format = PNG_FORMAT_RGBA;
    QImage image(static_cast<int>(png.width), static_cast<int>(png.height), QImage::Format_RGBA8888);
    if (png_image_finish_read(&png, nullptr, image.bits(), static_cast<png_int_32>(image.bytesPerLine()), nullptr) == 0)
        return {};
    return image;
}

/// An image as it was made for that scale of the screen; null when there is none.
QPixmap readVersion(const QString& path, int scale)
{
    const QString ending = scale == 1 ? QStringLiteral(".png") : QStringLiteral("@%1x.png").arg(scale);
    QFile file(path + ending);
    if (!file.open(QFile::ReadOnly))
        return {};
    QPixmap pixmap = QPixmap::fromImage(decodedPng(file.readAll()));
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

QIcon imageNamed(const Text& name, const QPalette& palette)
{
    return imageNamed(name, palette.color(QPalette::Active, QPalette::ButtonText),
        palette.color(QPalette::Disabled, QPalette::ButtonText));
}

QIcon programIcon()
{
    QIcon icon;
    for (const int scale : {1, 2})
        icon.addPixmap(readVersion(QStringLiteral(":/images/sonavel"), scale));
    return icon;
}

} // namespace sonavel
