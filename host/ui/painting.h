// Painting a window with all that is in it.
#pragma once

class CWnd;

namespace quor::ui {

class DrawingDevice;

// Draws a window, shown or not, in its own client coordinates, then its visible children from the first made on, each
// in a place of its own on the device. Those that were drawn need no paint any more.
void paint(CWnd& window, DrawingDevice& device);

} // namespace quor::ui
