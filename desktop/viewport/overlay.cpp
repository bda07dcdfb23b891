#include "desktop/viewport/overlay.h"

#include "desktop/qt_text.h"
#include "host/texts/viewport.h"

#include <QPainter>

namespace quor::desktop {

namespace {

constexpr double kArm = 42; // of the cross, from its middle
constexpr double kMark = 6; // half of a snap mark
constexpr double kPenWidth = 2;
constexpr QPointF kLabelShift(18, 20); // from the cursor
constexpr double kSnapNameShift = 12;
constexpr QMarginsF kLabelPadding(7, 4, 7, 4);

struct SnapLook {
    gs::Snap::Kind kind;
    Text name;
    QPolygonF (*shape)(); // around the origin
    bool isCircle;
};

QPolygonF square() { return QPolygonF(QRectF(-kMark, -kMark, 2 * kMark, 2 * kMark)); }
QPolygonF triangle() { return {{-kMark, kMark}, {kMark, kMark}, {0, -kMark}, {-kMark, kMark}}; }
QPolygonF hourglass() { return {{-kMark, -kMark}, {kMark, -kMark}, {-kMark, kMark}, {kMark, kMark}, {-kMark, -kMark}}; }

constexpr SnapLook kSnapLooks[] = {
    {gs::Snap::Kind::End, texts::kViewportSnapEnd, square, false},
    {gs::Snap::Kind::Middle, texts::kViewportSnapMiddle, triangle, false},
    {gs::Snap::Kind::Center, texts::kViewportSnapCenter, square, true},
    {gs::Snap::Kind::Face, texts::kViewportSnapFace, hourglass, false},
};

const SnapLook& lookOf(gs::Snap::Kind kind) {
    return *std::find_if(std::begin(kSnapLooks), std::end(kSnapLooks),
                         [&](const SnapLook& look) { return look.kind == kind; });
}

// On whole pixels, so that thin lines are not blurred.
QPointF onPixel(QPointF at) { return {std::floor(at.x()) + 0.5, std::floor(at.y()) + 0.5}; }

// The box with the text, moved back into the area where it would leave it.
void paintBox(QPainter& painter, QPointF topLeft, const QRectF& area, const QStringList& lines,
              const ViewportColors& colors) {
    const QString text = lines.join('\n');
    QRectF box = painter.fontMetrics()
                     .boundingRect(QRect(0, 0, 2000, 2000), Qt::AlignLeft, text)
                     .toRectF()
                     .marginsAdded(kLabelPadding);
    box.moveTopLeft(onPixel(topLeft));
    if (box.right() > area.right())
        box.moveRight(topLeft.x() - 2 * kLabelShift.x());
    if (box.bottom() > area.bottom())
        box.moveBottom(topLeft.y() - 2 * kLabelShift.y());
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(colors.labelEdge, 1));
    painter.setBrush(colors.labelBackground);
    painter.drawRoundedRect(box, 4, 4);
    painter.setPen(colors.labelText);
    painter.drawText(box.marginsRemoved(kLabelPadding), Qt::AlignLeft, text);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

void paintCursor(QPainter& painter, QPointF at, CursorShape shape, const ViewportColors& colors) {
    const QPointF c = onPixel(at);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(colors.crosshair, 1));
    painter.setBrush(Qt::NoBrush);
    const double gap = shape == CursorShape::Cross ? 0 : kPickRadius;
    if (shape != CursorShape::Cross)
        painter.drawRect(QRectF(c.x() - kPickRadius, c.y() - kPickRadius, 2 * kPickRadius, 2 * kPickRadius));
    if (shape == CursorShape::Box)
        return;
    painter.drawLine(QPointF(c.x() - kArm, c.y()), QPointF(c.x() - gap, c.y()));
    painter.drawLine(QPointF(c.x() + gap, c.y()), QPointF(c.x() + kArm, c.y()));
    painter.drawLine(QPointF(c.x(), c.y() - kArm), QPointF(c.x(), c.y() - gap));
    painter.drawLine(QPointF(c.x(), c.y() + gap), QPointF(c.x(), c.y() + kArm));
}

void paintPickRectangle(QPainter& painter, const PickRectangle& rectangle, const ViewportColors& colors) {
    const bool isWindow = rectangle.how() == gs::RectPick::Window;
    const RectangleColors& look = isWindow ? colors.window : colors.crossing;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(look.edge, 1, isWindow ? Qt::SolidLine : Qt::DashLine));
    painter.setBrush(look.inside);
    painter.drawRect(QRectF(onPixel(rectangle.from), onPixel(rectangle.to)).normalized());
}

void paintSnap(QPainter& painter, gs::Snap::Kind kind, QPointF at, const QRectF& area, const ViewportColors& colors) {
    const SnapLook& look = lookOf(kind);
    painter.setRenderHint(QPainter::Antialiasing, look.isCircle || kind != gs::Snap::Kind::End);
    painter.setPen(QPen(colors.snap, kPenWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    if (look.isCircle)
        painter.drawEllipse(at, kMark + 0.5, kMark + 0.5);
    else
        painter.drawPolyline(look.shape().translated(onPixel(at)));
    paintBox(painter, at + QPointF(kSnapNameShift, -kSnapNameShift - 22), area, {toQt(look.name)}, colors);
}

void paintLabel(QPainter& painter, QPointF cursor, const QRectF& area, const QStringList& lines,
                const ViewportColors& colors) {
    paintBox(painter, cursor + kLabelShift, area, lines, colors);
}

void paintNote(QPainter& painter, const QRectF& area, const QString& text, const ViewportColors& colors) {
    paintBox(painter, area.topLeft() + QPointF(12, 12), area, {text}, colors);
}

void paintRubberBand(QPainter& painter, const QPolygonF& line, const ViewportColors& colors) {
    painter.setRenderHint(QPainter::Antialiasing, true);
    QPen pen(colors.rubberBand, 1.2);
    pen.setDashPattern({6, 4});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
}

} // namespace quor::desktop
