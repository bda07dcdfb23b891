#include "host/gs/shapes/hatch_edge.h"

#include "host/db/data.h"
#include "host/gs/shapes/curves.h"
#include "host/gs/shapes/nurbs.h"

#include <cmath>

namespace quor::gs {

namespace {

// Angles of one that goes clockwise are counted clockwise as well.
std::vector<ZrGePoint3d> arcPoints(const HatchEdge& edge, const ZrGeVector3d& major, const ZrGeVector3d& minor) {
    EllipseArc arc{edge.first[0], major, minor};
    const double sign = edge.counterclockwise ? 1 : -1;
    arc.start = sign * edge.start * db::kDegree;
    arc.sweep = sign * sweepBetween(edge.start * db::kDegree, edge.end * db::kDegree);
    return pointsOf(arc);
}

} // namespace

std::vector<ZrGePoint3d> pointsOf(const HatchEdge& edge) {
    if (edge.first.empty())
        return {};
    if (edge.type == HatchEdge::Spline)
        return pointsOf(Nurbs{edge.degree, edge.numbers, edge.weights, edge.first});
    if (edge.type == HatchEdge::Line && !edge.second.empty())
        return {edge.first[0], edge.second[0]};
    if (edge.type == HatchEdge::Arc && !edge.numbers.empty())
        return arcPoints(edge, {edge.numbers[0], 0, 0}, {0, edge.numbers[0], 0});
    if (edge.type == HatchEdge::Ellipse && !edge.second.empty() && !edge.numbers.empty()) {
        const ZrGeVector3d major = edge.second[0].asVector();
        return arcPoints(edge, major, ZrGeVector3d(-major.y, major.x, 0) * edge.numbers[0]);
    }
    return {};
}

} // namespace quor::gs
