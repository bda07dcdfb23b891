// Numbers and angles as the drawing's people write them, and factors between units of length.
#pragma once

#include "sdk/rx/error_status.h"
#include "sdk/sys/string.h"

// The four conversions below answer RTNORM (5100), or RTERROR (-5001) and leave the result as it was.
// "unit" is a LUNITS or AUNITS value, "precision" a LUPREC or AUPREC value; -1 takes the current drawing's.
// The decimal mark is always ".", whatever the locale.

// Writes a length. unit: 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5 fractional. precision: 0 to 8, in 4
// and 5 the power of two under the fraction. A value that is no finite number is refused.
int zrdbRToS(double value, int unit, int precision, ZrString& out);

// Writes an angle given in radians. unit: 0 degrees, 1 degrees/minutes/seconds, 2 grads, 3 radians, 4 surveyor's.
// The drawing's base angle and direction are taken into account.
int zrdbAngToS(double radians, int unit, int precision, ZrString& out);

// Reads a length. Decimals and exponents are read in every unit, feet in 3 and 4, fractions in 4 and 5. nan, inf, hex,
// an empty text and anything left over behind the number are refused, and so is a null pointer.
int zrdbDisToF(const wchar_t* text, int unit, double& value);

// Reads an angle and gives radians, counterclockwise from the X axis. A plain number is in the given unit; the suffixes
// d, g, r, the form 45d30'15" and bearings such as N45dE are read in every unit.
int zrdbAngToF(const wchar_t* text, int unit, double& radians);

// How many units "to" one unit "from" is long; both are INSUNITS values 0 to 24. 0, unitless, gives 1 with every unit.
// eInvalidInput for any other value; factor is then left as it was.
Quor::ErrorStatus zredGetUnitsConversion(int fromInsunits, int toInsunits, double& factor);
