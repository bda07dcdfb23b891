// Lines as pixels.
#pragma once

#include "desktop/render/frame.h"
#include "desktop/render/line_projector.h"

namespace quor::desktop {

struct ScreenLine {
    LineEnds ends;
    std::uint32_t color = 0;
    std::uint32_t owner = 0; // lines of one owner join without beads; 24 bits, not 0
    float width = 1;         // pixels
};

// The part of the line in the band. Plain: each pixel is the line's or not. Whole widths.
void drawPlainLine(Frame& frame, Band band, const ScreenLine& line);
// Pixels take as much of the colour as the line covers of them.
void drawSmoothLine(Frame& frame, Band band, const ScreenLine& line);

} // namespace quor::desktop
