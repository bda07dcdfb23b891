#include "host/gs/view_record.h"

#include <cmath>

namespace quor::gs {

namespace {

constexpr int kPerspective = 1;

struct Axes {
    ZrGeVector3d right;
    ZrGeVector3d up;
};

// Those of a picture that is not turned: the way of drawing files from a normal to a plane.
Axes uprightAxes(const ZrGeVector3d& backward) {
    const ZrGeVector3d right = backward.perpVector();
    return {right, backward.crossProduct(right)};
}

bool isFinite(const db::ViewData& view) {
    return std::isfinite(view.target.asVector().lengthSqrd()) && std::isfinite(view.direction.lengthSqrd()) &&
           std::isfinite(view.center.asVector().lengthSqrd()) && std::isfinite(view.twistDegrees) &&
           std::isfinite(view.height);
}

} // namespace

std::optional<Camera> cameraOf(const db::ViewData& view) {
    if (!isFinite(view) || !(view.height > 0) || !(view.direction.lengthSqrd() > 0))
        return std::nullopt;
    Camera camera;
    camera.backward = view.direction.normal(ZrGeTol(0, 0));
    Axes axes = uprightAxes(camera.backward);
    const double twist = view.twistDegrees * db::kDegree;
    axes.right.rotateBy(-twist, camera.backward);
    axes.up.rotateBy(-twist, camera.backward);
    camera.up = axes.up;
    camera.target = view.target + axes.right * view.center.x + axes.up * view.center.y;
    camera.height = view.height;
    camera.projection = (view.mode & kPerspective) != 0 ? Projection::Perspective : Projection::Parallel;
    return camera;
}

db::ViewData viewOf(const Camera& camera, double aspect) {
    db::ViewData view;
    view.target = camera.target;
    view.direction = camera.backward * camera.eyeDistance();
    view.height = camera.height;
    view.width = camera.height * aspect;
    view.mode = camera.projection == Projection::Perspective ? kPerspective : 0;
    // By how much the axes would have to be turned to stand upright.
    view.twistDegrees = camera.up.angleTo(uprightAxes(camera.backward).up, camera.backward) / db::kDegree;
    return view;
}

} // namespace quor::gs
