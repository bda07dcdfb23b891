// Curves as points that follow each other.
#pragma once

#include "host/gs/shapes/pen.h"
#include "sdk/ge/matrix3d.h"

#include <numbers>
#include <vector>

namespace quor::gs {

inline constexpr double kTurn = 2 * std::numbers::pi;
inline constexpr int kSegmentsOfCircle = 64;

// A part of an ellipse: center + cos(t) * major + sin(t) * minor, t from `start` over `sweep` (radians, either sign).
struct EllipseArc {
    ZrGePoint3d center;
    ZrGeVector3d major;
    ZrGeVector3d minor;
    double start = 0;
    double sweep = kTurn;

    [[nodiscard]] ZrGePoint3d at(double angle) const;
    [[nodiscard]] ZrGePoint3d first() const { return at(start); }
    [[nodiscard]] ZrGePoint3d middle() const { return at(start + sweep / 2); }
    [[nodiscard]] ZrGePoint3d last() const { return at(start + sweep); }
    [[nodiscard]] EllipseArc placedBy(const ZrGeMatrix3d& matrix) const;
};

// The angle from one to the other, counterclockwise: above 0, up to a whole turn. 0 for angles that are no numbers.
[[nodiscard]] double sweepBetween(double start, double end);

// Appends its points without the first one.
void appendArc(std::vector<ZrGePoint3d>& points, const EllipseArc& arc);
[[nodiscard]] std::vector<ZrGePoint3d> pointsOf(const EllipseArc& arc);
// Draws it, with the middle and the ends of an open one and the center to snap to.
void show(const EllipseArc& arc, Pen& pen);

// A vertex of a polyline in a plane; the segment behind it is an arc of 4 * atan(bulge).
struct PlaneVertex {
    ZrGePoint3d at;
    double bulge = 0;
};

// The arc from one vertex to the next; only where isArc.
[[nodiscard]] bool isArc(const PlaneVertex& from, const PlaneVertex& to);
[[nodiscard]] EllipseArc arcBetween(const PlaneVertex& from, const PlaneVertex& to);
// Appends the points of the segment behind the first one.
void appendSegment(std::vector<ZrGePoint3d>& points, const PlaneVertex& from, const PlaneVertex& to);
// Draws segment by segment.
void show(std::span<const PlaneVertex> vertices, bool closed, const ZrGeMatrix3d& plane, Pen& pen);

} // namespace quor::gs
