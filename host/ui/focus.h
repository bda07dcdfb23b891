// Which window has the keyboard.
#pragma once

class CWnd;

namespace quor::ui {

// Null while the drawing or another program has it.
[[nodiscard]] CWnd* focusedWindow();
// Gives the keyboard to a window, or to none, and tells both that lose and get it. The window that had it before, or
// null.
CWnd* moveFocus(CWnd* to);
// The drawing gets the keyboard: no window has it.
void focusDrawing();
// Whether a window or one below it has the keyboard.
[[nodiscard]] bool hasFocusInside(const CWnd& window);

} // namespace quor::ui
