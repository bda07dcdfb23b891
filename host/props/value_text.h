// Values of objects as people read them.
#pragma once

#include "sdk/cm/color.h"
#include "sdk/ge/point3d.h"
#include "sdk/sys/string.h"

namespace quor {

// The symbol of the drawing's unit of length; empty where it has none.
[[nodiscard]] ZrString drawingUnit();
// The same as it stands behind lengths: empty also where the format shows feet and inches.
[[nodiscard]] ZrString shownUnit();
// A length in the drawing's units and precision, a huge one with an exponent; a dash for what no number can hold.
[[nodiscard]] ZrString lengthText(double length);
// The same with the drawing's unit behind it, where it has one and the format does not show feet and inches.
[[nodiscard]] ZrString measureText(double length);
// Three lengths as they are.
[[nodiscard]] ZrString coordinatesText(double x, double y, double z);
// World coordinates, shown in the current UCS.
[[nodiscard]] ZrString pointText(const ZrGePoint3d& world);
[[nodiscard]] ZrString vectorText(const ZrGeVector3d& world);
// A direction has no unit: its components are plain numbers in every unit format.
[[nodiscard]] ZrString directionText(const ZrGeVector3d& world);
// A number that is no length, in the drawing's precision; a huge one with an exponent.
[[nodiscard]] ZrString decimalText(double value);
// As few digits as tell it, at most eight.
[[nodiscard]] ZrString numberText(double value);
// The same, a large whole number with all its digits where another one would have an exponent.
[[nodiscard]] ZrString plainNumberText(double value);
[[nodiscard]] double inDegrees(double radians);
[[nodiscard]] ZrString degreesText(double radians);
[[nodiscard]] ZrString colorText(const ZrCmColor& color);
// The same with the components of a colour that is shown by the name of a colour book.
[[nodiscard]] ZrString colorWithComponentsText(const ZrCmColor& color);
[[nodiscard]] ZrString linetypeText(const ZrString& name);
[[nodiscard]] ZrString lineweightText(int weight);
[[nodiscard]] ZrString yesNoText(bool yes);

} // namespace quor
