// Triangles of a scene as they stand in a picture: projected and cut to its surroundings.
#pragma once

#include "desktop/render/view_transform.h"

namespace quor::desktop {

// How the depth of a plane changes over the picture: at (x0, y0), and for each pixel right and down.
struct DepthPlane {
    float x0 = 0, y0 = 0;
    float depth = 0;
    float right = 0, down = 0;
    float low = 0, high = 0; // depths of the triangle's own points
};

struct ScreenPolygon {
    static constexpr std::size_t kMost = 8; // a triangle after five cuts
    std::array<float, kMost> x, y;
    std::size_t count = 0;
    DepthPlane plane;
};

// False when no part of the triangle is on the picture, or when it is seen from its edge.
[[nodiscard]] bool projectTriangle(const ViewTransform& view, const gs::SceneTriangle& triangle,
                                   ScreenPolygon& polygon);

} // namespace quor::desktop
