// RAY, XLINE: what of them lies where the drawing is.
#include "host/db/finite.h"
#include "host/gs/camera.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

#include <cmath>
#include <limits>
#include <optional>

namespace quor::gs {

namespace {

// How far one reaches from its point in a drawing that does not tell its extents.
constexpr double kReach = 1000;
// How far the box goes beyond the extents, of their diagonal.
constexpr double kMargin = 0.1;
// An empty drawing has extents turned inside out, of this size.
constexpr double kNoExtent = 1e19;

std::optional<ZrGePoint3d> pointIn(const db::Database& drawing, std::wstring_view name) {
    const auto value = drawing.header(name);
    const auto* const point = value ? std::get_if<ZrGePoint3d>(&*value) : nullptr;
    return point == nullptr ? std::nullopt : std::optional(*point);
}

// Where the drawing is, as it was saved.
Box boxOf(const db::Database& drawing, const ZrGePoint3d& base) {
    Box box{base, base};
    const auto low = pointIn(drawing, L"$EXTMIN");
    const auto high = pointIn(drawing, L"$EXTMAX");
    const bool isKnown = low && high && low->x < high->x && low->y < high->y && low->z <= high->z &&
                         low->x > -kNoExtent && low->y > -kNoExtent && low->z > -kNoExtent && high->x < kNoExtent &&
                         high->y < kNoExtent && high->z < kNoExtent;
    if (isKnown)
        box = {*low, *high};
    const double margin = isKnown ? low->distanceTo(*high) * kMargin : kReach;
    const ZrGeVector3d around(margin, margin, margin);
    return {box.low - around, box.high + around};
}

struct Span {
    double begin;
    double end;
};

// Narrows the span to where base + t * direction is between low and high.
void clip(Span& span, double base, double direction, double low, double high) {
    if (direction == 0) {
        if (base < low || base > high)
            span.end = span.begin - 1;
        return;
    }
    const double first = (low - base) / direction;
    const double second = (high - base) / direction;
    span.begin = std::max(span.begin, std::min(first, second));
    span.end = std::min(span.end, std::max(first, second));
}

void showEndless(const Source& source, double begin, Pen& pen) {
    const Values<10, 20, 30, 11, 21, 31> values(source);
    const ZrGePoint3d base = values.point<10>();
    const ZrGeVector3d direction = values.point<11>().asVector().normal();
    if (values.isBroken() || !isDrawable(base) || direction.isZeroLength())
        return;
    const Box box = boxOf(source.drawing, base);
    Span span{begin, std::numeric_limits<double>::infinity()};
    clip(span, base.x, direction.x, box.low.x, box.high.x);
    clip(span, base.y, direction.y, box.low.y, box.high.y);
    clip(span, base.z, direction.z, box.low.z, box.high.z);
    if (span.begin < span.end)
        pen.line(base + direction * span.begin, base + direction * span.end);
    pen.snap(SnapPoint::Kind::End, base);
}

} // namespace

void showRay(const Source& source, Pen& pen) { showEndless(source, 0, pen); }

void showConstructionLine(const Source& source, Pen& pen) {
    showEndless(source, -std::numeric_limits<double>::infinity(), pen);
}

} // namespace quor::gs
