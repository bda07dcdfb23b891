#include "host/gs/shapes/curves.h"

#include <algorithm>
#include <cmath>

namespace quor::gs {

namespace {

// A smaller one is straight: its center would be too far away to reckon with.
constexpr double kLeastBulge = 1e-9;

int segmentsOf(double sweep) {
    return std::clamp(static_cast<int>(std::ceil(std::abs(sweep) / kTurn * kSegmentsOfCircle - 1e-9)), 1,
                      kSegmentsOfCircle);
}

} // namespace

ZrGePoint3d EllipseArc::at(double angle) const { return center + major * std::cos(angle) + minor * std::sin(angle); }

EllipseArc EllipseArc::placedBy(const ZrGeMatrix3d& matrix) const {
    return {matrix * center, matrix * major, matrix * minor, start, sweep};
}

double sweepBetween(double start, double end) {
    const double sweep = std::fmod(end - start, kTurn);
    if (!std::isfinite(sweep))
        return 0;
    return sweep > 0 ? sweep : sweep + kTurn;
}

void appendArc(std::vector<ZrGePoint3d>& points, const EllipseArc& arc) {
    const double sweep = std::clamp(arc.sweep, -kTurn, kTurn);
    const int count = segmentsOf(sweep);
    for (int i = 1; i <= count; ++i)
        points.push_back(arc.at(arc.start + sweep * i / count));
}

std::vector<ZrGePoint3d> pointsOf(const EllipseArc& arc) {
    std::vector<ZrGePoint3d> points{arc.first()};
    appendArc(points, arc);
    return points;
}

void show(const EllipseArc& arc, Pen& pen) {
    if (!(std::abs(arc.sweep) > 0))
        return;
    if (pen.wanted() == Wanted::Lines)
        return pen.lines(pointsOf(arc));
    pen.snap(SnapPoint::Kind::Center, arc.center);
    if (std::abs(arc.sweep) >= kTurn)
        return;
    pen.snap(SnapPoint::Kind::End, arc.first());
    pen.snap(SnapPoint::Kind::End, arc.last());
    pen.snap(SnapPoint::Kind::Middle, arc.middle());
}

bool isArc(const PlaneVertex& from, const PlaneVertex& to) {
    return std::abs(from.bulge) > kLeastBulge && from.at != to.at;
}

EllipseArc arcBetween(const PlaneVertex& from, const PlaneVertex& to) {
    const ZrGeVector3d chord = to.at - from.at;
    const ZrGeVector3d left(-chord.y, chord.x, 0);
    EllipseArc arc;
    arc.center = from.at + chord / 2 + left * ((1 / from.bulge - from.bulge) / 4);
    arc.major = from.at - arc.center;
    arc.minor = {-arc.major.y, arc.major.x, 0};
    arc.sweep = 4 * std::atan(from.bulge);
    return arc;
}

void appendSegment(std::vector<ZrGePoint3d>& points, const PlaneVertex& from, const PlaneVertex& to) {
    if (isArc(from, to))
        appendArc(points, arcBetween(from, to));
    else
        points.push_back(to.at);
}

void show(std::span<const PlaneVertex> vertices, bool closed, const ZrGeMatrix3d& plane, Pen& pen) {
    const std::size_t count = vertices.size();
    const std::size_t segments = closed && count > 1 ? count : count == 0 ? 0 : count - 1;
    for (std::size_t i = 0; i < segments && !pen.isFull(); ++i) {
        const PlaneVertex& from = vertices[i];
        const PlaneVertex& to = vertices[(i + 1) % count];
        if (isArc(from, to))
            show(arcBetween(from, to).placedBy(plane), pen);
        else
            pen.edge(plane * from.at, plane * to.at);
    }
}

} // namespace quor::gs
