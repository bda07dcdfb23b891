// The edges of which the boundary of a hatch consists.
#pragma once

#include "sdk/ge/point3d.h"

#include <vector>

namespace quor::gs {

// The numbers of an edge as they stand in its tags.
struct HatchEdge {
    enum Type { None = 0, Line = 1, Arc = 2, Ellipse = 3, Spline = 4 };
    int type = None;
    std::vector<ZrGePoint3d> first;  // 10, 20: start, center or control points
    std::vector<ZrGePoint3d> second; // 11, 21: end, or the end of the major axis from the center
    std::vector<double> numbers;     // 40: radius, share of the axes or knots
    std::vector<double> weights;     // 42
    double start = 0;                // degrees
    double end = 0;
    int degree = 3;
    bool counterclockwise = true;
};

// Empty for an edge that makes no sense.
[[nodiscard]] std::vector<ZrGePoint3d> pointsOf(const HatchEdge& edge);

} // namespace quor::gs
