// How a program, or a test, hands over what a person does with mouse and keyboard.
#pragma once

#include "sdk/ui/input_message.h"

namespace quor::ui {

// The message is looked at by its window and those above it; then the window gets it, unless one of them has dealt with
// it. Nothing reaches a disabled window, or one below such. Mouse messages move the cursor.
void sendInput(const InputMessage& message);

// Points are in the window's client coordinates; flags are MK_….
void moveMouse(CWnd& window, CPoint point, unsigned flags = 0);
void click(CWnd& window, CPoint point, unsigned flags = 0);
// As mice do it: pressed, let go, pressed for the second time, let go.
void doubleClick(CWnd& window, CPoint point, unsigned flags = 0);
void rightClick(CWnd& window, CPoint point, unsigned flags = 0);
void turnWheel(CWnd& window, CPoint point, int lines, unsigned flags = 0);
// The window with the keyboard gets the key; nothing while no window has it.
void pressKey(unsigned key, unsigned flags = 0);
void pressKey(CWnd& window, unsigned key, unsigned flags = 0);

// The window that is meant at a point of another one's client area: it or one below it; null beside it, and when it
// cannot be seen.
[[nodiscard]] CWnd* windowAt(CWnd& root, CPoint point);

} // namespace quor::ui
