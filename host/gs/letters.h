// Outlines of letters that the built-in stroke font lacks, from a program that has fonts.
#pragma once

#include "sdk/ge/point2d.h"

#include <functional>
#include <vector>

namespace quor::gs {

// Where one capital of the font is high: x to the right, y upwards from the base line.
struct LetterOutline {
    std::vector<std::vector<ZrGePoint2d>> strokes; // each a line from point to point
    double advance = 0;                            // to the next letter
};

// The outline of a character, kept by whoever gives it; null for one that has none.
using LetterSource = std::function<const LetterOutline*(char32_t character)>;

// Asked for characters that the stroke font has only a box for. Empty: nobody is asked.
void setLetterSource(LetterSource source);
[[nodiscard]] const LetterOutline* letterOutline(char32_t character);

} // namespace quor::gs
