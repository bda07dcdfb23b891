#include "host/gs/shapes/nurbs.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quor::gs {

namespace {

constexpr int kHighestDegree = 11;
constexpr std::size_t kMostPerSpan = 16;
constexpr std::size_t kLeastPerSpan = 2;
constexpr std::size_t kUsualTotal = 4096;

// A control point times its weight, and the weight.
struct Weighted {
    ZrGeVector3d sum;
    double weight = 1;
};

Weighted between(const Weighted& a, const Weighted& b, double share) {
    return {a.sum * (1 - share) + b.sum * share, a.weight * (1 - share) + b.weight * share};
}

} // namespace

bool Nurbs::isCurve() const {
    if (degree < 1 || degree > kHighestDegree || controls.size() <= static_cast<std::size_t>(degree) ||
        knots.size() != controls.size() + static_cast<std::size_t>(degree) + 1)
        return false;
    if (!weights.empty() &&
        (weights.size() != controls.size() || !std::ranges::all_of(weights, [](double weight) { return weight > 0; })))
        return false;
    return std::ranges::is_sorted(knots) && domainBegin() < domainEnd();
}

// The algorithm of de Boor: in each round, points of neighbours, until one is left.
ZrGePoint3d Nurbs::at(double t) const {
    const auto p = static_cast<std::size_t>(degree);
    const auto first = knots.begin() + degree;
    const auto last = knots.begin() + static_cast<std::ptrdiff_t>(controls.size());
    const std::size_t span =
        std::min(static_cast<std::size_t>(std::upper_bound(first, last, t) - knots.begin()), controls.size()) - 1;
    std::array<Weighted, kHighestDegree + 1> points;
    for (std::size_t i = 0; i <= p; ++i) {
        const std::size_t control = span - p + i;
        const double weight = weights.empty() ? 1 : weights[control];
        points[i] = {controls[control].asVector() * weight, weight};
    }
    for (std::size_t round = 1; round <= p; ++round)
        for (std::size_t i = p; i >= round; --i) {
            const double low = knots[span - p + i];
            const double high = knots[span + 1 + i - round];
            points[i] = between(points[i - 1], points[i], high > low ? (t - low) / (high - low) : 0);
        }
    return ZrGePoint3d() + points[p].sum / points[p].weight;
}

std::vector<ZrGePoint3d> pointsOf(const Nurbs& nurbs) {
    if (!nurbs.isCurve())
        return nurbs.controls;
    const std::size_t spans = nurbs.controls.size() - static_cast<std::size_t>(nurbs.degree);
    const std::size_t perSpan = nurbs.degree == 1 ? 1 : std::clamp(kUsualTotal / spans, kLeastPerSpan, kMostPerSpan);
    std::vector<ZrGePoint3d> points{nurbs.at(nurbs.domainBegin())};
    for (std::size_t i = static_cast<std::size_t>(nurbs.degree); i < nurbs.controls.size(); ++i) {
        const double low = nurbs.knots[i];
        const double high = nurbs.knots[i + 1];
        if (!(low < high))
            continue;
        for (std::size_t step = 1; step <= perSpan; ++step)
            points.push_back(nurbs.at(step == perSpan ? high
                                                      : low + (high - low) * static_cast<double>(step) /
                                                                  static_cast<double>(perSpan)));
    }
    return points;
}

} // namespace quor::gs
