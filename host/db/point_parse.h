// Reads points as people type them. Pure: the current coordinate system and the last point come with the call.
#pragma once

#include <optional>
#include <string_view>

#include "host/db/units_settings.h"
#include "sdk/ge/point3d.h"

namespace quor::units {

struct PointContext {
    UnitSettings settings;
    bool allowZ = true;                        // false: a plane question, a third coordinate is refused
    std::optional<ZrGePoint3d> lastPoint;      // what "@" starts from, in the current coordinate system (UCS)
    std::optional<ZrGePoint3d> lastPointWorld; // the same point for "@*", in world coordinates; missing: UCS is world
};

struct ParsedPoint {
    ZrGePoint3d point;
    bool world = false; // true: world coordinates, false: the current coordinate system's
};

// [@][*] then one of
//   x,y   x,y,z       z is 0 when it is missing (relative: no change)
//   d<a   d<a,z       distance and angle in the XY plane, angle by the settings' format, base and direction
//   d<a<b             and the angle b up from the XY plane
// "@" alone is the last point. Nothing for any other text, for blanks, and for "@" without a last point.
[[nodiscard]] std::optional<ParsedPoint> parsePoint(std::wstring_view text, const PointContext& context);

} // namespace quor::units
