// How the angles of a photometric web stand to directions, and its luminaire to the world.
#pragma once

#include "host/ies/photometric_web.h"
#include "sdk/ge/matrix3d.h"

namespace quor::gs {

// The direction that angles (degrees) mean, for a luminaire that shines straight down.
[[nodiscard]] ZrGeVector3d webDirection(ies::Photometry photometry, double horizontal, double vertical);

struct WebAngles {
    double horizontal = 0; // degrees
    double vertical = 0;
};
// The other way round, of a direction of length 1.
[[nodiscard]] WebAngles webAngles(ies::Photometry photometry, const ZrGeVector3d& direction);

// From a luminaire that shines straight down to a light that stands at a place and shines along a direction of length
// 1: turned by the rotation of its web (degrees about X, then Y, then Z), then towards there.
[[nodiscard]] ZrGeMatrix3d webPlacement(const ZrGePoint3d& position, const ZrGeVector3d& along,
                                        const ZrGeVector3d& rotation);

} // namespace quor::gs
