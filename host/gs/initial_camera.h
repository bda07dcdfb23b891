// From where a drawing is looked at when it is opened.
#pragma once

#include "host/gs/camera.h"

namespace quor::db {
class Database;
}

namespace quor::gs {

// As the active viewport of model space has it; from above where there is none.
[[nodiscard]] Camera cameraOf(db::Database& drawing);
// The same, but all of the drawing where that camera would show less than half of it, or a speck; all of a
// sheet, from above. `extents` are those of the current space.
[[nodiscard]] Camera initialCamera(db::Database& drawing, PictureSize size, const Box& extents);

} // namespace quor::gs
