// Draws letters.
#pragma once

#include "host/gs/shapes/pen.h"
#include "sdk/sys/string.h"

namespace quor::gs {

// Where a line of letters begins, and where one unit of its grid leads.
struct Lettering {
    ZrGePoint3d origin;
    ZrGeVector3d right;
    ZrGeVector3d up;
};

// How far letters stand apart, of what they do on their grid.
inline constexpr double kLetterWidth = 0.75;

// Units of the grid from the first letter to the end of the last one.
[[nodiscard]] double widthOf(const ZrString& text);
void showLetters(const ZrString& text, const Lettering& lettering, Pen& pen);

} // namespace quor::gs
