// Lines of a scene as they stand in a picture: projected and cut to it.
#pragma once

#include "desktop/render/view_transform.h"

#include <optional>

namespace quor::desktop {

// Ends in pixels, depths at the ends.
struct LineEnds {
    float x0, y0, depth0;
    float x1, y1, depth1;
};

// Nothing when no part of the line is on the picture or within `margin` pixels of it.
[[nodiscard]] std::optional<LineEnds> projectLine(const ViewTransform& view, const gs::SceneLine& line, float margin);

} // namespace quor::desktop
