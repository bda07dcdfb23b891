// What people type for a colour: three numbers with commas, an index or one of seven names, a colour of a colour book.
#pragma once

#include "sdk/sys/string.h"

class ZrCmColor;

namespace quor::light {

// The colour book and the colour that were accepted last, as the book spells them; empty before the first. Shared by
// all light commands of the process.
extern ZrString s_lastColorBook;
extern ZrString s_lastBookColor;

// Whether a text is written like r,g,b: digits and two commas. The first two numbers are at most 255; the last one is
// not looked at, whoever reads it judges it.
[[nodiscard]] bool isRgbTriple(const wchar_t* text);

// Reads the three numbers of a,b,c. False at the first one that is no number; an empty text leaves `out` as it is.
[[nodiscard]] bool parseTriple(const wchar_t* text, double out[3]);

// Rounds each number to a whole one, halves up.
void roundTriple(double v[3]);

// Whether a text is one of the seven colour names, English or local and without regard to case, or an index 1 to 255.
// What is no name is cut in place before its first character that is no digit: 12ab becomes 12, ab becomes empty.
[[nodiscard]] bool isColorIndexName(wchar_t* text);

// Asks for a colour book and for one of its colours until there is one; false when the questions were left.
[[nodiscard]] bool promptColorBook(ZrCmColor& color);

} // namespace quor::light
