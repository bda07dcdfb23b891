// What is under the cursor, to be painted over the drawing: the drawing itself need not be rendered anew for it.
#pragma once

#include "host/gs/scene.h"

#include <optional>
#include <vector>

namespace quor::desktop {

struct HoverSketch {
    std::vector<ZrGePoint3d> lines; // two points each, in the world
    std::optional<gs::LightMark> light;
};

// Nothing for the null id. Of an entity with very many lines, the first ones.
[[nodiscard]] HoverSketch hoverSketch(const gs::SceneData& scene, ZrDbObjectId entity);

} // namespace quor::desktop
