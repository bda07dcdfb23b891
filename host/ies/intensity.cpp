// The intensity in any direction.
#include "host/ies/photometric_web.h"
#include "host/ies/symmetry.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quor::ies {

namespace {

// Between two neighbouring angles: `share` of the way from the lower to the upper one.
struct Between {
    std::size_t lower;
    std::size_t upper;
    double share;

    [[nodiscard]] double mix(double atLower, double atUpper) const { return atLower + (atUpper - atLower) * share; }
};

std::optional<Between> placeOf(double angle, const std::vector<double>& angles) {
    // Not a number is no direction.
    if (!(angle >= angles.front() && angle <= angles.back()))
        return std::nullopt;
    const auto above = std::upper_bound(angles.begin(), angles.end(), angle);
    const auto upper = static_cast<std::size_t>(above - angles.begin());
    if (above == angles.end())
        return Between{upper - 1, upper - 1, 0};
    return Between{upper - 1, upper, (angle - angles[upper - 1]) / (angles[upper] - angles[upper - 1])};
}

} // namespace

double intensityAt(const PhotometricWeb& web, double horizontal, double vertical) {
    if (web.candela.empty() || !std::isfinite(horizontal))
        return 0;
    const auto row = placeOf(vertical, web.vertical);
    const auto plane = placeOf(foldedHorizontal(web, horizontal), web.horizontal);
    if (!row || !plane)
        return 0;
    return plane->mix(row->mix(web.at(plane->lower, row->lower), web.at(plane->lower, row->upper)),
                      row->mix(web.at(plane->upper, row->lower), web.at(plane->upper, row->upper)));
}

double maxIntensity(const PhotometricWeb& web) {
    return web.candela.empty() ? 0 : *std::max_element(web.candela.begin(), web.candela.end());
}

} // namespace quor::ies
