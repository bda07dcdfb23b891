// Coordinate systems from points and rotations: pure geometry, world coordinates.
#pragma once

#include "host/db/database.h"

#include <optional>

namespace quor::commands {

[[nodiscard]] ZrGeVector3d zAxisOf(const db::Ucs& ucs);
[[nodiscard]] bool sameUcs(const db::Ucs& a, const db::Ucs& b);
[[nodiscard]] ZrGeMatrix3d worldFromUcs(const db::Ucs& ucs);

// The same axes through another origin.
[[nodiscard]] db::Ucs movedUcs(const db::Ucs& ucs, const ZrGePoint3d& origin);
// x towards a point, the z axis as near to the present one as that allows. Nothing when the point is the origin.
[[nodiscard]] std::optional<db::Ucs> ucsTowards(const db::Ucs& ucs, const ZrGePoint3d& origin, const ZrGePoint3d& onX);
// x towards one point, y on the side of the other. Nothing when the three lie on one line.
[[nodiscard]] std::optional<db::Ucs> ucsThrough(const ZrGePoint3d& origin, const ZrGePoint3d& onX,
                                                const ZrGePoint3d& onXy);
// z towards a point, x by the arbitrary axis rule. Nothing when the point is the origin.
[[nodiscard]] std::optional<db::Ucs> ucsAlongZ(const ZrGePoint3d& origin, const ZrGePoint3d& onZ);
// Turned about its own axis 'X', 'Y' or 'Z'; radians, counterclockwise as seen from the axis' tip.
[[nodiscard]] db::Ucs rotatedUcs(const db::Ucs& ucs, wchar_t axis, double angle);

} // namespace quor::commands
