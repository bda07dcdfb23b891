// Faces as pixels.
#pragma once

#include "desktop/render/face_projector.h"
#include "desktop/render/frame.h"

namespace quor::desktop {

// A triangle on the picture. Its own plane goes with it, so that parts of one face meet without a step.
struct ScreenFace {
    std::array<float, 3> x, y;
    DepthPlane plane;
    std::uint32_t color = 0;
    std::uint32_t number = 0; // of the triangle, plus one
};

// The part in the band; pixels whose middle is inside. `keepsNumbers`: who is seen is kept for each pixel.
void drawFace(Frame& frame, Band band, const ScreenFace& face, bool keepsNumbers);

} // namespace quor::desktop
