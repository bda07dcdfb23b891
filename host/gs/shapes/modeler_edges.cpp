#include "host/gs/shapes/modeler_edges.h"

#include "host/dxf/tag.h"
#include "host/gs/shapes/curves.h"
#include "host/gs/shapes/nurbs.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quor::gs {

namespace {

using Points = std::vector<ZrGePoint3d>;

constexpr std::size_t kMostControls = 100'000;

// Where a body stands: turned, scaled and shifted. Its points are rows.
ZrGeMatrix3d placementOf(const ModelerText& model) {
    constexpr std::size_t kNumbers = 13; // three rows, a shift, a scale
    ZrGeMatrix3d placement;
    const auto transform = std::ranges::find_if(model.records(), [](const auto& each) { return each.is("transform"); });
    if (transform == model.records().end())
        return placement;
    const std::vector<double> n = transform->numbersFrom(transform->endOfReferences());
    if (n.size() < kNumbers)
        return placement;
    const double scale = n[12];
    return placement.setCoordSystem({n[9], n[10], n[11]}, ZrGeVector3d(n[0], n[1], n[2]) * scale,
                                    ZrGeVector3d(n[3], n[4], n[5]) * scale, ZrGeVector3d(n[6], n[7], n[8]) * scale);
}

// Where an edge begins, or ends.
std::optional<ZrGePoint3d> placeOf(const ModelerText& model, const ModelerRecord& vertex) {
    for (const std::string_view word : vertex.words) {
        const ModelerRecord* const point = model.referredBy(word);
        if (point == nullptr || !point->is("point") || point->words.size() < 3)
            continue;
        const std::vector<double> at = point->numbersFrom(point->words.size() - 3);
        if (at.size() == 3)
            return ZrGePoint3d(at[0], at[1], at[2]);
    }
    return std::nullopt;
}

struct EdgeEnds {
    ZrGePoint3d start;
    ZrGePoint3d end;
};

// Angle of a point on an ellipse of which the axes are known.
double angleOf(const EllipseArc& ellipse, const ZrGePoint3d& point) {
    const ZrGeVector3d from = point - ellipse.center;
    return std::atan2(from.dotProduct(ellipse.minor) / ellipse.minor.lengthSqrd(),
                      from.dotProduct(ellipse.major) / ellipse.major.lengthSqrd());
}

Points alongEllipse(const ModelerRecord& curve, const EdgeEnds& ends, bool isReversed) {
    constexpr std::size_t kNumbers = 10; // center, normal, major axis, share of the axes
    const std::vector<double> n = curve.numbersFrom(curve.endOfReferences());
    if (n.size() < kNumbers)
        return {ends.start, ends.end};
    EllipseArc ellipse;
    ellipse.center = {n[0], n[1], n[2]};
    ellipse.major = {n[6], n[7], n[8]};
    ellipse.minor = ZrGeVector3d(n[3], n[4], n[5]).normal().crossProduct(ellipse.major) * n[9];
    if (!(ellipse.major.lengthSqrd() > 0) || !(ellipse.minor.lengthSqrd() > 0))
        return {ends.start, ends.end};
    ellipse.start = angleOf(ellipse, ends.start);
    const double end = angleOf(ellipse, ends.end);
    const bool isWhole = ends.start.isEqualTo(ends.end);
    if (isReversed)
        ellipse.sweep = isWhole ? -kTurn : -sweepBetween(end, ellipse.start);
    else
        ellipse.sweep = isWhole ? kTurn : sweepBetween(ellipse.start, end);
    return pointsOf(ellipse);
}

// The words of a spline: degree, whether it is open, number of knots, each knot with how often it counts, control
// points. Knots at the ends count once less than in drawing files.
std::optional<Nurbs> splineOf(const ModelerRecord& curve) {
    const auto& words = curve.words;
    const auto begin = std::ranges::find_if(words, [](auto word) { return word == "nubs" || word == "nurbs"; });
    if (words.end() - begin < 4)
        return std::nullopt;
    const bool isRational = *begin == "nurbs";
    const auto degree = dxf::parseInt(begin[1]);
    const auto knots = dxf::parseInt(begin[3]);
    if (!degree || !knots || *knots < 2 || *knots > words.end() - begin)
        return std::nullopt;
    const std::vector<double> numbers = curve.numbersFrom(static_cast<std::size_t>(begin - words.begin()) + 4);
    Nurbs spline;
    spline.degree = static_cast<int>(std::clamp<std::int64_t>(*degree, 0, 1000));
    std::size_t at = 0;
    for (std::int64_t i = 0; i < *knots && at + 1 < numbers.size(); ++i, at += 2) {
        const bool isAtEnd = i == 0 || i + 1 == *knots;
        const double times = numbers[at + 1] + (isAtEnd ? 1 : 0);
        if (!(times >= 1) || times + static_cast<double>(spline.knots.size()) > kMostControls)
            return std::nullopt;
        spline.knots.insert(spline.knots.end(), static_cast<std::size_t>(times), numbers[at]);
    }
    const std::size_t each = isRational ? 4 : 3;
    const std::size_t order = static_cast<std::size_t>(spline.degree) + 1;
    while (spline.controls.size() + order < spline.knots.size() && at + each <= numbers.size()) {
        spline.controls.push_back({numbers[at], numbers[at + 1], numbers[at + 2]});
        if (isRational)
            spline.weights.push_back(numbers[at + 3]);
        at += each;
    }
    return spline.isCurve() ? std::optional(std::move(spline)) : std::nullopt;
}

// Only where the edge is all of the curve, in either direction.
Points alongSpline(const ModelerRecord& curve, const EdgeEnds& ends) {
    const std::optional<Nurbs> spline = splineOf(curve);
    if (!spline)
        return {ends.start, ends.end};
    Points points = pointsOf(*spline);
    const double near = 1e-6 * (1 + ends.start.distanceTo(ends.end));
    const auto joins = [&](const ZrGePoint3d& first, const ZrGePoint3d& last) {
        return first.distanceTo(ends.start) <= near && last.distanceTo(ends.end) <= near;
    };
    const bool isWhole = joins(points.front(), points.back()) || joins(points.back(), points.front());
    return isWhole ? points : Points{ends.start, ends.end};
}

// What an edge refers to.
struct EdgeRecord {
    std::optional<ZrGePoint3d> start;
    std::optional<ZrGePoint3d> end;
    const ModelerRecord* curve = nullptr;
    bool isReversed = false;
};

EdgeRecord read(const ModelerText& model, const ModelerRecord& edge) {
    EdgeRecord result;
    bool hasStart = false;
    for (std::size_t i = 0; i < edge.words.size(); ++i) {
        const ModelerRecord* const record = model.referredBy(edge.words[i]);
        if (record == nullptr)
            continue;
        if (record->is("vertex")) {
            (hasStart ? result.end : result.start) = placeOf(model, *record);
            hasStart = true;
        } else if (record->is("curve")) {
            result.curve = record;
            const std::string_view sense = i + 1 < edge.words.size() ? edge.words[i + 1] : std::string_view();
            result.isReversed = sense == "reversed" || sense == "1";
        }
    }
    return result;
}

Points pointsOf(const EdgeRecord& edge) {
    if (!edge.start || !edge.end || edge.curve == nullptr)
        return {};
    const EdgeEnds ends{*edge.start, *edge.end};
    if (edge.curve->is("ellipse-curve"))
        return alongEllipse(*edge.curve, ends, edge.isReversed);
    if (edge.curve->is("intcurve-curve"))
        return alongSpline(*edge.curve, ends);
    return {ends.start, ends.end};
}

} // namespace

std::vector<Points> edgesOf(const ModelerText& model) {
    const ZrGeMatrix3d placement = placementOf(model);
    std::vector<Points> edges;
    for (const ModelerRecord& record : model.records()) {
        if (!record.is("edge"))
            continue;
        Points points = pointsOf(read(model, record));
        for (ZrGePoint3d& point : points)
            point = placement * point;
        if (points.size() > 1)
            edges.push_back(std::move(points));
    }
    return edges;
}

} // namespace quor::gs
