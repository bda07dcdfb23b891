// Kinds of keys.
#pragma once

#include <Qt>

namespace quor::desktop {

// Whether a key goes from one cell, row or page to another.
[[nodiscard]] inline bool isWalking(int key) { return key >= Qt::Key_Home && key <= Qt::Key_PageDown; }

// Whether a key empties or erases: in a panel that is about its values, never about the drawing's objects.
[[nodiscard]] inline bool isErasing(int key) { return key == Qt::Key_Delete || key == Qt::Key_Backspace; }

} // namespace quor::desktop
