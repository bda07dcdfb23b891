// How a camera stands in a drawing: the values that a named view (VIEW) and a viewport (VPORT) have in common.
#pragma once

#include "host/db/view_records.h"
#include "host/gs/camera.h"

#include <optional>

namespace quor::gs {

// Nothing for a view whose numbers make no picture.
[[nodiscard]] std::optional<Camera> cameraOf(const db::ViewData& view);
// The other way: without a name, the middle of the picture is the target. `aspect`: width by height.
[[nodiscard]] db::ViewData viewOf(const Camera& camera, double aspect);

} // namespace quor::gs
