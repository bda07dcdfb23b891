// From where a drawing is looked at when it is opened.
#pragma once

#include "host/gs/camera.h"

namespace quor::db {
class Database;
}

namespace quor::gs {

// As the active viewport of the drawing has it; from above where it has none.
[[nodiscard]] Camera cameraOf(db::Database& drawing);
// The same, but all of the drawing where that camera would show nothing of it.
[[nodiscard]] Camera initialCamera(db::Database& drawing, PictureSize size, const Box& extents);

} // namespace quor::gs
