// Questions on the command line. Each get call asks one question and answers a result code: RTNORM with a value, RTNONE
// for Enter, RTCAN for Esc, RTKWORD for a keyword where a value was asked, RTERROR when the input itself broke.
#pragma once

#include "sdk/ge/point3d.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/string.h"

// Flags of zredInitGet.
inline constexpr int RSG_NONULL = 1;  // Enter is no answer
inline constexpr int RSG_NOZERO = 2;  // zero is no answer
inline constexpr int RSG_NONEG = 4;   // a negative number is no answer
inline constexpr int RSG_NOLIM = 8;   // points outside the drawing limits are accepted
inline constexpr int RSG_2D = 64;     // distances are measured in the plane
inline constexpr int RSG_OTHER = 128; // arbitrary text is an answer too

// Arms the next get call, and only it. `keywords`: the local words, then the same words with a leading "_" as global
// words; capital letters mark the abbreviation. Null: none. Answers RTNORM.
int zredInitGet(int flags, const wchar_t* keywords);

// A text; `cronly` not 0: blanks belong to it, and only Enter ends it. Enter gives RTNORM and an empty text.
int zredGetString(int cronly, const wchar_t* prompt, ZrString& answer);
// A keyword; the global word without "_". With RSG_OTHER any other text is handed over as typed.
int zredGetKword(const wchar_t* prompt, ZrString& answer);
int zredGetInt(const wchar_t* prompt, int& value);
// A whole number between the two bounds, both included; others are asked again with the host's message.
int zredGetIntInRange(const wchar_t* prompt, int low, int high, int& value);
// A number in the drawing's units.
int zredGetReal(const wchar_t* prompt, double& value);
// A distance: a number, or a point (measured from `base`, which when null is asked for first). Drawing units.
int zredGetDist(const ZrGePoint3d* base, const wchar_t* prompt, double& value);
// An angle in radians, measured from the x axis of the UCS; typed in the drawing's angular units.
int zredGetAngle(const ZrGePoint3d* base, const wchar_t* prompt, double& radians);
// A point in the current UCS. `base` null: no rubber band.
int zredGetPoint(const ZrGePoint3d* base, const wchar_t* prompt, ZrGePoint3d& point);
int zredGetCorner(const ZrGePoint3d& base, const wchar_t* prompt, ZrGePoint3d& point);
// After RTKWORD: the keyword that was answered.
int zredGetInput(ZrString& keyword);
