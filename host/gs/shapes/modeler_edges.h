// The edges of solids and surfaces.
#pragma once

#include "host/gs/shapes/modeler_text.h"
#include "sdk/ge/point3d.h"

#include <vector>

namespace quor::gs {

// Points along each edge. An edge on a curve that is not understood goes straight from its start to its end.
[[nodiscard]] std::vector<std::vector<ZrGePoint3d>> edgesOf(const ModelerText& model);

} // namespace quor::gs
