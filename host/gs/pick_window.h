// What a rectangle of a picture shows of the world: the space between four planes. Lines and triangles are held against
// it as they stand in a scene, without being projected.
#pragma once

#include "host/gs/picking.h"

namespace quor::gs {

class PickWindow {
public:
    // The corners of the rectangle may be given in any order; one without size counts as a pixel.
    PickWindow(const Projector& projector, const ZrGePoint3d& origin, const PixelRect& rect);

    // Whether any of the chunk may be inside.
    [[nodiscard]] bool mayHold(const SceneChunk& chunk) const;
    [[nodiscard]] bool holds(const Coordinates& point) const;
    // Whether the rectangle touches it anywhere.
    [[nodiscard]] bool touches(const SceneLine& line) const;
    [[nodiscard]] bool touches(const SceneTriangle& triangle) const;

private:
    // Not negative on the inner side.
    struct Plane {
        double x = 0;
        double y = 0;
        double z = 0;
        double constant = 0;
        [[nodiscard]] double at(const Coordinates& p) const { return x * p[0] + y * p[1] + z * p[2] + constant; }
    };
    std::array<Plane, 4> planes_;
};

} // namespace quor::gs
