// Whether coordinates are finite numbers: nothing else may get into a drawing.
#pragma once

#include "sdk/ge/point3d.h"
#include "sdk/ge/vector3d.h"

#include <cmath>

namespace quor::db {

[[nodiscard]] inline bool isFinite(const ZrGePoint3d& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

[[nodiscard]] inline bool isFinite(const ZrGeVector3d& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

} // namespace quor::db
