// Which point is meant by a place on the picture, where no snap says it. Pure.
#pragma once

#include "host/gs/camera.h"
#include "sdk/ge/matrix3d.h"

namespace quor::desktop {

// The plane in which points are shown: that of the user's coordinate system, at the elevation.
struct WorkPlane {
    ZrGePoint3d origin;
    ZrGeVector3d xAxis = ZrGeVector3d::kXAxis;
    ZrGeVector3d yAxis = ZrGeVector3d::kYAxis;
    ZrGeVector3d zAxis = ZrGeVector3d::kZAxis;
};
[[nodiscard]] WorkPlane workPlane(const ZrGeMatrix3d& ucsToWorld, double elevation);

// Where the line of sight meets the plane. A plane that is seen from its edge says nothing: then it is one through what
// the camera looks at, facing the eye.
[[nodiscard]] ZrGePoint3d meantPoint(const gs::Projector& projector, double x, double y, const WorkPlane& plane);

// The nearest point from which `base` lies along the x or the y axis of the plane, as high as the base (ortho).
[[nodiscard]] ZrGePoint3d alongAnAxis(const ZrGePoint3d& base, const ZrGePoint3d& point, const WorkPlane& plane);

} // namespace quor::desktop
