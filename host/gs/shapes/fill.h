// Filling of areas by triangles.
#pragma once

#include "sdk/ge/point3d.h"

#include <optional>
#include <span>
#include <vector>

namespace quor::gs {

using Piece = std::vector<ZrGePoint3d>;

// What lies inside of an odd number of the outlines that the pieces make up, in any order and direction, in a plane of
// equal z: three points each. Nothing when that would be too much, or a coordinate is none to draw with.
[[nodiscard]] std::optional<std::vector<ZrGePoint3d>> filled(std::span<const Piece> pieces);

} // namespace quor::gs
