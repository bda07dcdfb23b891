#include "desktop/palettes/picture_cache.h"

#include <QPainter>
#include <QSvgRenderer>

namespace quor::desktop {

namespace {
constexpr int kIconSizes[] = {16, 24, 32, 48};
} // namespace

QPixmap drawPicture(const ui::PictureResource& picture, QSize size, qreal pixelRatio) {
    QPixmap pixels((QSizeF(size) * pixelRatio).toSize());
    pixels.fill(Qt::transparent);
    QSvgRenderer renderer(QByteArray(picture.svg.data(), static_cast<qsizetype>(picture.svg.size())));
    QPainter painter(&pixels);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels.size())));
    painter.end();
    pixels.setDevicePixelRatio(pixelRatio);
    return pixels;
}

QIcon iconOf(const ui::PictureResource& picture) {
    QIcon icon;
    for (const int size : kIconSizes)
        icon.addPixmap(drawPicture(picture, {size, size}, 1.0));
    return icon;
}

const QPixmap& PictureCache::get(const ui::PictureResource& picture, QSize size, qreal pixelRatio) {
    QPixmap& drawn = drawn_[{&picture, (QSizeF(size) * pixelRatio).toSize()}];
    if (drawn.isNull())
        drawn = drawPicture(picture, size, pixelRatio);
    return drawn;
}

} // namespace quor::desktop
