#include "desktop/viewport/ucs_icon.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quor::desktop {

namespace {

constexpr double kLength = 46;
constexpr double kCorner = 62; // of the origin from the left and the lower edge
constexpr double kLetter = 11; // of the letters' middle beyond the tips
constexpr double kHidden = 7;  // shorter axes, which point at the eye, are a dot
constexpr double kArrow = 7;
constexpr char16_t kLetters[] = u"XYZ";

bool isInside(QPointF at, gs::PictureSize size) {
    return at.x() >= kLength && at.y() >= kLength && at.x() <= size.width - kLength && at.y() <= size.height - kLength;
}

void paintArrow(QPainter& painter, const QLineF& axis, const QColor& color) {
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(axis.p1(), axis.pointAt(std::max(1 - kArrow / axis.length(), 0.0)));
    const QPointF along = (axis.p2() - axis.p1()) / axis.length();
    const QPointF aside(-along.y(), along.x());
    const QPointF back = axis.p2() - along * kArrow;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF{axis.p2(), back + aside * (kArrow / 2), back - aside * (kArrow / 2)});
}

void paintAxis(QPainter& painter, const QLineF& axis, QChar letter, const QColor& color) {
    if (axis.length() < kHidden) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(axis.p1(), 4, 4);
        return;
    }
    paintArrow(painter, axis, color);
    const QPointF middle = axis.pointAt(1 + kLetter / axis.length());
    QRectF place(0, 0, 20, 20);
    place.moveCenter(middle);
    painter.setPen(color);
    painter.drawText(place, Qt::AlignCenter, letter);
}

} // namespace

UcsIcon ucsIcon(const gs::Projector& projector, const ZrGeMatrix3d& ucsToWorld) {
    ZrGePoint3d origin;
    std::array<ZrGeVector3d, 3> axes;
    ucsToWorld.getCoordSystem(origin, axes[0], axes[1], axes[2]);
    UcsIcon icon;
    icon.origin = QPointF(kCorner, projector.size().height - kCorner);
    if (const std::optional<gs::ScreenPoint> seen = projector.toScreen(origin))
        if (isInside({seen->x, seen->y}, projector.size())) {
            icon.origin = {seen->x, seen->y};
            icon.atOrigin = true;
        }
    const gs::Camera& camera = projector.camera();
    for (std::size_t i = 0; i < axes.size(); ++i) {
        const ZrGeVector3d axis = axes[i].normal(ZrGeTol(0, 0));
        icon.tips[i] = icon.origin + QPointF(axis.dotProduct(camera.right()), -axis.dotProduct(camera.up)) * kLength;
        icon.depths[i] = -axis.dotProduct(camera.backward);
    }
    return icon;
}

void paintUcsIcon(QPainter& painter, const UcsIcon& icon, const ViewportColors& colors) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    const std::array<QColor, 3> inks{colors.xAxis, colors.yAxis, colors.zAxis};
    std::array<std::size_t, 3> order{0, 1, 2};
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return icon.depths[a] > icon.depths[b]; });
    for (const std::size_t i : order)
        paintAxis(painter, {icon.origin, icon.tips[i]}, kLetters[i], inks[i]);
    painter.restore();
}

} // namespace quor::desktop
