// Painting: the drawing as it was rendered, and over it what belongs to the moment.

#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "desktop/viewport/sketches.h"
#include "desktop/viewport/ucs_icon.h"
#include "desktop/viewport/viewport.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/texts/viewport.h"
#include "host/ui/theme.h"
#include "sdk/db/light.h"
#include "sdk/db/units.h"

#include <QPainter>

#include <cmath>

namespace quor::desktop {

namespace {

// Where nothing is drawn: the background alone.
void paintBackground(QPainter& painter, const QRect& area, const PictureColors& colors) {
    QLinearGradient background(area.topLeft(), area.bottomLeft());
    background.setColorAt(0, QColor::fromRgb(colors.backgroundTop));
    background.setColorAt(1, QColor::fromRgb(colors.backgroundBottom));
    painter.fillRect(area, background);
}

QString length(double value) {
    ZrString text;
    zrdbRToS(value, -1, -1, text);
    return toQt(text);
}

QString angle(double radians) {
    ZrString text;
    zrdbAngToS(radians, -1, -1, text);
    return toQt(text);
}

// The points on the picture; nothing when one of them cannot be seen at all.
QPolygonF onScreen(const gs::Projector& projector, std::initializer_list<ZrGePoint3d> points) {
    constexpr double kFarthestPixel = 1e6;
    QPolygonF line;
    for (const ZrGePoint3d& point : points) {
        const std::optional<gs::ScreenPoint> at = projector.toScreen(point);
        if (!at || std::abs(at->x) > kFarthestPixel || std::abs(at->y) > kFarthestPixel)
            return {};
        line << QPointF(at->x, at->y);
    }
    return line;
}

} // namespace

Picture::Subject Viewport::subject() const {
    Picture::Subject subject;
    subject.scene = view_;
    subject.version = view_->version();
    subject.camera = view_->look().camera;
    subject.style = view_->look().style;
    subject.lighting =
        session_.variables().number(L"DEFAULTLIGHTING", 1) == 0 ? Lighting::OfDrawing : Lighting::Default;
    subject.isDark = ui::Theme().isDark();
    subject.pixelRatio = devicePixelRatioF();
    subject.size = (QSizeF(QWidget::size()) * subject.pixelRatio).toSize();
    subject.isMoving = isMoving_;
    return subject;
}

// A drawing that takes long is shown fast at first, whatever has changed, and fine a little later.
const QImage& Viewport::picture() {
    Picture::Subject wanted = subject();
    if (picture_.takesLong() && !isFineDue_ && !isMoving_ && !picture_.has(wanted)) {
        wanted.isMoving = true;
        if (!settled_.isActive())
            settled_.start();
    }
    isFineDue_ = false;
    return picture_.of(wanted, view_->scene().data());
}

void Viewport::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const ViewportColors& colors = viewportColors(ui::Theme().isDark());
    if (view_ == nullptr) {
        paintBackground(painter, rect(), colors.picture);
        return;
    }
    view_->update();
    showHovered();
    painter.drawImage(QPointF(0, 0), picture());
    paintLightLines(painter, projector(), view_->selectedLightLines(), colors);
    paintHovered(painter, projector(), hover_, colors);
    paintUcsIcon(painter, ucsIcon(projector(), view_->document().database()->ucsToWorld()), colors);
    if (view_->scene().isIncomplete())
        paintNote(painter, rect(), toQt(texts::kViewportIncomplete), colors);
    paintPointing(painter, colors);
}

void Viewport::resizeEvent(QResizeEvent*) {
    if (view_ != nullptr)
        view_->resize(size());
    Q_EMIT viewChanged();
}

void Viewport::paintPointing(QPainter& painter, const ViewportColors& colors) {
    const gs::Projector projector = this->projector();
    paintWay(painter, projector, colors);
    if (rectangle_)
        paintPickRectangle(painter, *rectangle_, colors);
    if (!cursor_ || held_ != Held::Nothing)
        return;
    const bool isAiming = aim_ && asksForPoint();
    if (isAiming)
        paintLabel(painter, *cursor_, rect(), readOut(), colors);
    if (isAiming && aim_->snap)
        if (const std::optional<gs::ScreenPoint> at = projector.toScreen(aim_->point))
            paintSnap(painter, aim_->snap->kind, {at->x, at->y}, rect(), colors);
    paintCursor(painter, *cursor_, cursorShape(), colors);
}

// What is dragged, and the way from the base to the cursor.
void Viewport::paintWay(QPainter& painter, const gs::Projector& projector, const ViewportColors& colors) {
    const Question* const open = front_.question();
    if (open == nullptr || !asksForPoint())
        return;
    if (const auto* const light = zrrxCast<ZrDbLight>(open->dragged))
        paintDraggedLight(painter, projector, *light, colors);
    if (!open->base || !aim_)
        return;
    const ZrGePoint3d& base = *open->base;
    const WorkPlane axes = plane();
    const ZrGeVector3d across = axes.xAxis * (aim_->point - base).dotProduct(axes.xAxis);
    const QPolygonF line = open->baseIsCorner
                               ? onScreen(projector, {base, base + across, aim_->point, aim_->point - across, base})
                               : onScreen(projector, {base, aim_->point});
    paintRubberBand(painter, line, colors);
}

// In the user's coordinates, and how far it is from the base.
QStringList Viewport::readOut() const {
    const ZrGePoint3d p = zrdbWcs2Ucs(aim_->point);
    QStringList lines{length(p.x) + ", " + length(p.y) + ", " + length(p.z)};
    const Question* const open = front_.question();
    if (open != nullptr && open->base) {
        const ZrGeVector3d way = p - zrdbWcs2Ucs(*open->base);
        const bool inDegrees = session_.variables().number(L"AUNITS") == 0;
        lines << length(way.length()) + " < " + angle(std::atan2(way.y, way.x)) + QString(inDegrees ? "°" : "");
    }
    return lines;
}

CursorShape Viewport::cursorShape() const {
    if (isAtCommandPrompt())
        return CursorShape::CrossWithBox;
    return asksForObjects() ? CursorShape::Box : CursorShape::Cross;
}

} // namespace quor::desktop
