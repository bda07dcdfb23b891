#include "desktop/dialogs/polar_view.h"

#include "desktop/qt_text.h"
#include "host/texts/dialogs.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <numbers>

namespace quor::desktop {

namespace {

constexpr int kSpokeStep = 30;
constexpr qreal kTextScale = 0.85;

QColor faded(QColor color, qreal opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QPointF onCircle(const QPointF& centre, qreal radius, int degrees) {
    const qreal angle = degrees * std::numbers::pi / 180;
    return centre + QPointF(radius * std::sin(angle), radius * std::cos(angle));
}

QString planeName(const ies::PolarCurve& curve, bool isOnlyOne) {
    switch (curve.plane) {
    case ies::PolarPlane::C0_180:
        return isOnlyOne ? toQt(texts::kPolarAllPlanes) : QString("C0 – C180");
    case ies::PolarPlane::C90_270:
        return "C90 – C270";
    case ies::PolarPlane::Horizontal:
        return toQt(texts::kPolarHorizontal);
    case ies::PolarPlane::Vertical:
        return toQt(texts::kPolarVertical);
    }
    return {};
}

} // namespace

PolarView::PolarView(QWidget* parent) : QWidget(parent) {
    setObjectName("polar");
    setAccessibleName(toQt(texts::kPolarName));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * kTextScale);
    setFont(small);
}

void PolarView::show(ies::PolarDiagram diagram) {
    diagram_ = std::move(diagram);
    update();
}

// A luminaire that shines down only has the upper half of the diagram left out.
PolarView::Frame PolarView::frame() const {
    const QFontMetricsF metrics(font());
    const qreal side = metrics.horizontalAdvance("180°") + 6;
    const qreal line = metrics.height();
    const qreal legendHeight = line + 6;
    const qreal wide = width() / 2.0 - side;
    const qreal high = height() - legendHeight - 2 * line - 8;
    Frame frame;
    frame.radius = std::max(10.0, std::min(wide, diagram_.reachesUp ? high / 2 : high));
    const qreal used = (diagram_.reachesUp ? 2 : 1) * frame.radius;
    const qreal top = line + 4 + std::max(0.0, (high - used) / 2);
    frame.centre = QPointF(width() / 2.0, diagram_.reachesUp ? top + frame.radius : top);
    frame.legend = height() - legendHeight;
    return frame;
}

QPen PolarView::curvePen(std::size_t number) const {
    QColor color = palette().color(QPalette::Link);
    if (number > 0)
        color = palette().color(QPalette::Window).lightness() < 128 ? QColor(255, 170, 70) : QColor(200, 90, 0);
    return QPen(color, 2, number == 0 ? Qt::SolidLine : Qt::DashLine, Qt::RoundCap, Qt::RoundJoin);
}

void PolarView::paintRings(QPainter& painter, const Frame& frame) const {
    const QColor ink = palette().color(QPalette::WindowText);
    const QFontMetricsF metrics(font());
    // Halves of circles in units of a sixteenth of a degree: below the centre only, or all around.
    const int start = diagram_.reachesUp ? 0 : 180 * 16;
    const int span = diagram_.reachesUp ? 360 * 16 : 180 * 16;
    for (const double value : diagram_.rings) {
        const qreal radius = frame.radius * value / diagram_.rings.back();
        painter.setPen(QPen(faded(ink, 0.25), 1));
        painter.drawArc(QRectF(frame.centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), start, span);
    }
    for (const double value : diagram_.rings) {
        const QString text = QString::number(value, 'g', 6);
        const qreal radius = frame.radius * value / diagram_.rings.back();
        const QRectF box(frame.centre +
                             QPointF(-metrics.horizontalAdvance(text) / 2 - 2, radius - metrics.height() / 2),
                         QSizeF(metrics.horizontalAdvance(text) + 4, metrics.height()));
        painter.fillRect(box, faded(palette().color(QPalette::Base), 0.8));
        painter.setPen(faded(ink, 0.75));
        painter.drawText(box, Qt::AlignCenter, text);
    }
}

void PolarView::paintSpokes(QPainter& painter, const Frame& frame) const {
    const QColor ink = palette().color(QPalette::WindowText);
    const QFontMetricsF metrics(font());
    const int last = diagram_.reachesUp ? 180 : 90;
    for (int degrees = -last; degrees <= last; degrees += kSpokeStep) {
        painter.setPen(QPen(faded(ink, degrees == 0 || std::abs(degrees) == 90 ? 0.35 : 0.18), 1));
        painter.drawLine(frame.centre, onCircle(frame.centre, frame.radius, degrees));
        if (degrees == -180)
            continue; // 180 is there
        const QString text = QString::number(std::abs(degrees)) + "°";
        // The one below the centre stands under the value of the outermost ring.
        const qreal aside = std::abs(std::sin(degrees * std::numbers::pi / 180));
        const qreal away = frame.radius + (degrees == 0 ? 1.15 : 0.55) * metrics.height() +
                           0.35 * aside * metrics.horizontalAdvance(text);
        const QPointF at = onCircle(frame.centre, away, degrees);
        const QSizeF size(metrics.horizontalAdvance(text) + 2, metrics.height());
        painter.setPen(faded(ink, 0.75));
        painter.drawText(QRectF(at - QPointF(size.width() / 2, size.height() / 2), size), Qt::AlignCenter, text);
    }
}

void PolarView::paintCurve(QPainter& painter, const Frame& frame, std::size_t number) const {
    const std::vector<ies::PolarPoint>& points = diagram_.curves[number].points;
    QPainterPath path(frame.centre);
    for (const ies::PolarPoint& point : points)
        path.lineTo(frame.centre + QPointF(point.x, point.y) * frame.radius);
    path.closeSubpath();
    const QPen pen = curvePen(number);
    painter.setPen(pen);
    painter.setBrush(number == 0 ? faded(pen.color(), 0.15) : QBrush(Qt::NoBrush));
    painter.drawPath(path);
}

void PolarView::paintLegend(QPainter& painter, const Frame& frame) const {
    constexpr qreal kSample = 26;
    constexpr qreal kGap = 6;
    constexpr qreal kBetween = 18;
    const QFontMetricsF metrics(font());
    qreal total = metrics.horizontalAdvance("cd") + kBetween;
    for (const ies::PolarCurve& curve : diagram_.curves)
        total += kSample + kGap + metrics.horizontalAdvance(planeName(curve, diagram_.curves.size() == 1)) + kBetween;
    qreal x = std::max(2.0, (width() - total + kBetween) / 2);
    const qreal middle = frame.legend + metrics.height() / 2;
    const QColor ink = palette().color(QPalette::WindowText);
    for (std::size_t i = 0; i < diagram_.curves.size(); ++i) {
        painter.setPen(curvePen(i));
        painter.drawLine(QPointF(x, middle), QPointF(x + kSample, middle));
        const QString name = planeName(diagram_.curves[i], diagram_.curves.size() == 1);
        painter.setPen(ink);
        painter.drawText(QPointF(x + kSample + kGap, middle + metrics.ascent() / 2 - 1), name);
        x += kSample + kGap + metrics.horizontalAdvance(name) + kBetween;
    }
    painter.setPen(faded(ink, 0.75));
    painter.drawText(QPointF(x, middle + metrics.ascent() / 2 - 1), "cd");
}

void PolarView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (diagram_.rings.empty())
        return;
    const Frame place = frame();
    paintSpokes(painter, place);
    for (std::size_t i = 0; i < diagram_.curves.size(); ++i)
        paintCurve(painter, place, i);
    paintRings(painter, place);
    paintLegend(painter, place);
}

} // namespace quor::desktop
