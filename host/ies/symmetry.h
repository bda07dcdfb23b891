// Which directions the angles of a web stand for.
#pragma once

#include "host/ies/photometric_web.h"

namespace quor::ies {

// The angles that a type of photometry has, in degrees.
struct AngleRange {
    double first;
    double last;
    [[nodiscard]] bool holds(double angle) const { return angle >= first && angle <= last; }
};

[[nodiscard]] AngleRange verticalRange(Photometry photometry);
[[nodiscard]] AngleRange horizontalRange(Photometry photometry);

// The symmetry that the first and the last horizontal angle tell.
[[nodiscard]] Symmetry symmetryOf(const PhotometricWeb& web);

// Whether the planes go around once except for the last one, which is the first one again and which many programs leave
// out: what is missing is not wider than the widest step between the others, and as wide as each of them where the
// first plane is not the one at 0 degrees.
[[nodiscard]] bool lacksLastPlane(const PhotometricWeb& web);

// Whether the planes and their symmetry leave out a part of the directions.
[[nodiscard]] bool lacksPlanes(const PhotometricWeb& web);

// Whether the vertical angles are neither those of all directions nor of the lower or upper half of them.
[[nodiscard]] bool lacksRows(const PhotometricWeb& web);

// The horizontal angle in the range of the given planes that stands for any other; outside of that range where none
// does.
[[nodiscard]] double foldedHorizontal(const PhotometricWeb& web, double horizontal);

} // namespace quor::ies
