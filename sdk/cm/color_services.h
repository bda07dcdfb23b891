// Colours from what people type, the colour books, and conversion between RGB and HSL.
#pragma once

#include <vector>

#include "sdk/cm/color.h"
#include "sdk/ge/vector3d.h"
#include "sdk/rx/error_status.h"
#include "sdk/sys/string.h"

// All of them return eOk or eInvalidInput, and leave the result untouched unless they return eOk.

// A true colour from "r,g,b": three whole numbers 0 to 255, digits and two commas, nothing else.
[[nodiscard]] Quor::ErrorStatus zrcmGetColorFromRGBName(ZrCmColor& color, const wchar_t* name);

// A numbered colour from its number 1 to 255, or from the English or local name of 1 to 7, without regard to case.
[[nodiscard]] Quor::ErrorStatus zrcmGetColorFromACIName(ZrCmColor& color, const wchar_t* name);

// A colour of a colour book; both names without regard to case, the colour carries them as the book spells them.
[[nodiscard]] Quor::ErrorStatus zrcmGetColorFromColorBookName(ZrCmColor& color, const wchar_t* book,
                                                              const wchar_t* name);

// Replaces both lists by the colour books in alphabetical order: their names, and the names to show to people.
void EnumBookNames(std::vector<ZrString>& names, std::vector<ZrString>& displayNames);

// RGB (components 0 to 1) to HSL (hue in degrees 0 <= H < 360, saturation and lightness 0 to 1). Grey has hue 0 and
// saturation 0. Both arguments may be the same vector. A component outside 0 to 1 is eInvalidInput.
Quor::ErrorStatus zrdbConvertRgbToHsl(const ZrGeVector3d& rgb, ZrGeVector3d& hsl);

// The reverse; the hue may be any finite angle in degrees and is taken modulo 360.
Quor::ErrorStatus zrdbConvertHslToRgb(const ZrGeVector3d& hsl, ZrGeVector3d& rgb);
