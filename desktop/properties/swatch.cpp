#include "desktop/properties/swatch.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace quor::desktop {

QIcon swatch(const QColor& color, const QWidget& widget) {
    const int side = widget.fontMetrics().ascent();
    const qreal ratio = widget.devicePixelRatioF();
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(color);
    QPainter painter(&picture);
    painter.setPen(widget.palette().color(QPalette::Mid));
    painter.drawRect(QRectF(0, 0, side, side).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.end();
    // Where the row is selected it looks the same.
    QIcon icon;
    icon.addPixmap(picture, QIcon::Normal);
    icon.addPixmap(picture, QIcon::Selected);
    icon.addPixmap(picture, QIcon::Disabled);
    return icon;
}

} // namespace quor::desktop
