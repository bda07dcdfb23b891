#include "desktop/viewport/aiming.h"

#include <cmath>

namespace quor::desktop {

WorkPlane workPlane(const ZrGeMatrix3d& ucsToWorld, double elevation) {
    WorkPlane plane;
    ucsToWorld.getCoordSystem(plane.origin, plane.xAxis, plane.yAxis, plane.zAxis);
    plane.origin += plane.zAxis * elevation;
    return plane;
}

ZrGePoint3d meantPoint(const gs::Projector& projector, double x, double y, const WorkPlane& plane) {
    // Flatter than half a degree, where a pixel more is a very long way.
    constexpr double kFlat = 0.0087;
    const gs::Ray ray = projector.rayAt(x, y);
    if (std::abs(ray.direction.dotProduct(plane.zAxis)) > kFlat)
        if (const std::optional<ZrGePoint3d> met = projector.onPlane(x, y, plane.origin, plane.zAxis))
            return *met;
    const gs::Camera& camera = projector.camera();
    return projector.onPlane(x, y, camera.target, camera.backward).value_or(camera.target);
}

ZrGePoint3d alongAnAxis(const ZrGePoint3d& base, const ZrGePoint3d& point, const WorkPlane& plane) {
    const ZrGeVector3d way = point - base;
    const double alongX = way.dotProduct(plane.xAxis);
    const double alongY = way.dotProduct(plane.yAxis);
    return base + (std::abs(alongX) >= std::abs(alongY) ? plane.xAxis * alongX : plane.yAxis * alongY);
}

} // namespace quor::desktop
