#include "host/gs/shapes/pen.h"

#include <cmath>

namespace quor::gs {

namespace {

constexpr double kFarthest = 1e30;

// Also false of what is no number.
bool isDrawable(double coordinate) { return std::abs(coordinate) <= kFarthest; }

} // namespace

bool isDrawable(const ZrGePoint3d& point) { return isDrawable(point.x) && isDrawable(point.y) && isDrawable(point.z); }

void Drawn::clear() {
    lines.clear();
    triangles.clear();
    parts.clear();
    snaps.clear();
}

void Pen::take(const Look& look) { look_ = look; }

bool Pen::isFull() const {
    return wanted_ == Wanted::Lines ? drawn_.primitives() >= kMostPrimitives : drawn_.snaps.size() >= kMostSnapPoints;
}

DrawnPart& Pen::part() {
    if (drawn_.parts.empty() || drawn_.parts.back().look != look_)
        drawn_.parts.push_back({look_, static_cast<std::uint32_t>(drawn_.lines.size() / 2), 0,
                                static_cast<std::uint32_t>(drawn_.triangles.size() / 3), 0});
    return drawn_.parts.back();
}

void Pen::line(const ZrGePoint3d& a, const ZrGePoint3d& b) {
    if (wanted_ != Wanted::Lines || isFull() || !isDrawable(a) || !isDrawable(b))
        return;
    ++part().lineCount;
    drawn_.lines.push_back(a);
    drawn_.lines.push_back(b);
}

void Pen::lines(std::span<const ZrGePoint3d> points, bool closed) {
    for (std::size_t i = 1; i < points.size(); ++i)
        line(points[i - 1], points[i]);
    if (closed && points.size() > 2)
        line(points.back(), points.front());
}

void Pen::triangle(const ZrGePoint3d& a, const ZrGePoint3d& b, const ZrGePoint3d& c) {
    if (wanted_ != Wanted::Lines || isFull() || !isDrawable(a) || !isDrawable(b) || !isDrawable(c))
        return;
    ++part().triangleCount;
    drawn_.triangles.insert(drawn_.triangles.end(), {a, b, c});
}

void Pen::snap(SnapPoint::Kind kind, const ZrGePoint3d& at) {
    if (wanted_ == Wanted::Snaps && !isFull() && isDrawable(at))
        drawn_.snaps.push_back({kind, at});
}

void Pen::snapsOf(const ZrGePoint3d& a, const ZrGePoint3d& b) {
    if (wanted_ != Wanted::Snaps)
        return;
    snap(SnapPoint::Kind::End, a);
    snap(SnapPoint::Kind::End, b);
    snap(SnapPoint::Kind::Middle, a + (b - a) / 2);
}

void Pen::edge(const ZrGePoint3d& a, const ZrGePoint3d& b) {
    line(a, b);
    snapsOf(a, b);
}

} // namespace quor::gs
