// Letters made of straight strokes, for the texts of drawings.
#pragma once

#include <string_view>

namespace quor::gs {

// Strokes of a letter, a blank between two. A point of a stroke is two digits, to the right and upwards on a grid; the
// base line is at height 2 and capitals reach up to 8, so that there is room for what hangs below.
using Strokes = std::string_view;
inline constexpr int kBaseLine = 2;
inline constexpr int kCapitalHeight = 6;

// The letters of ASCII and the signs of degrees, plus-minus and diameter; of any other character a box, a wider one for
// the scripts of East Asia.
[[nodiscard]] Strokes strokesOf(char32_t character);
// Whether they stand for a character that is not known.
[[nodiscard]] bool isBox(Strokes strokes);
// How far the next letter stands to the right.
[[nodiscard]] int advanceOf(Strokes strokes);

} // namespace quor::gs
