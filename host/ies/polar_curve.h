// The polar diagram of a photometric web: intensities as distances from a centre, in the planes that people look at.
#pragma once

#include "host/ies/photometric_web.h"

#include <cstdint>
#include <vector>

namespace quor::ies {

// A plane through the luminaire. Those of type C hold the vertical axis; of types A and B it is the two through the
// middle of the beam.
enum class PolarPlane : std::uint8_t { C0_180, C90_270, Horizontal, Vertical };

// One length unit is the outermost ring. x goes to the right, y down, which is where the middle of the beam is: 0
// degrees of types C, A and B.
struct PolarPoint {
    double x = 0;
    double y = 0;
};

struct PolarCurve {
    PolarPlane plane = PolarPlane::C0_180;
    std::vector<PolarPoint> points; // from the left end over the bottom to the right end
};

struct PolarDiagram {
    std::vector<PolarCurve> curves; // the second one only where it may differ from the first
    std::vector<double> rings;      // candela, from the innermost to the outermost; none for a web that is dark
    bool reachesUp = false;         // whether a curve goes above the centre
};

[[nodiscard]] PolarDiagram polarDiagram(const PhotometricWeb& web);

// Round values in equal steps for rings, three to five of them, the last not below `largest`; none for 0.
[[nodiscard]] std::vector<double> ringValues(double largest);

} // namespace quor::ies
