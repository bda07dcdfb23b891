// Spline curves by their control points.
#pragma once

#include "sdk/ge/point3d.h"

#include <vector>

namespace quor::gs {

struct Nurbs {
    int degree = 3;
    std::vector<double> knots;   // as many as control points plus degree plus 1, none below the one before
    std::vector<double> weights; // as many as control points; empty: all 1
    std::vector<ZrGePoint3d> controls;

    // Whether the knots and weights are as said above, so that it is a curve.
    [[nodiscard]] bool isCurve() const;
    // For a value between the first and the last of domain().
    [[nodiscard]] ZrGePoint3d at(double t) const;
    [[nodiscard]] double domainBegin() const { return knots[static_cast<std::size_t>(degree)]; }
    [[nodiscard]] double domainEnd() const { return knots[controls.size()]; }
};

// Points on the curve, close enough together to look smooth; the control points themselves for what is no curve.
[[nodiscard]] std::vector<ZrGePoint3d> pointsOf(const Nurbs& nurbs);

} // namespace quor::gs
