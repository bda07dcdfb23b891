// What the mouse and the keyboard do to a camera. Pure.
#pragma once

#include "host/gs/camera.h"

#include <QPointF>
#include <Qt>

#include <optional>

namespace quor::desktop {

// The drawing turns with the cursor, as if it were held.
[[nodiscard]] gs::Camera turned(const gs::Camera& camera, const ZrGePoint3d& center, QPointF pixels);
// How much nearer a wheel brings; `eighths` of a degree, as Qt counts: 120 for a notch.
[[nodiscard]] double wheelFactor(double eighths);
// The camera after a key: arrows move what is seen, with Ctrl they turn it; Ctrl with plus and minus zoom. Nothing for
// other keys.
[[nodiscard]] std::optional<gs::Camera> movedByKey(const gs::Camera& camera, gs::PictureSize size,
                                                   const ZrGePoint3d& center, int key, Qt::KeyboardModifiers modifiers);

} // namespace quor::desktop
