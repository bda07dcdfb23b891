// Kinds of keys.
#pragma once

#include <Qt>

namespace quor::desktop {

// Whether a key goes from one cell, row or page to another.
[[nodiscard]] inline bool isWalking(int key) { return key >= Qt::Key_Home && key <= Qt::Key_PageDown; }

} // namespace quor::desktop
