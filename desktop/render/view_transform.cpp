#include "desktop/render/view_transform.h"

#include <algorithm>

namespace quor::desktop {
namespace {

using Row4 = std::array<float, 4>;

// axis . (p - from) * factor
Row4 rowOf(const ZrGeVector3d& axis, const ZrGeVector3d& from, double factor) {
    return {static_cast<float>(axis.x * factor), static_cast<float>(axis.y * factor),
            static_cast<float>(axis.z * factor), static_cast<float>(-axis.dotProduct(from) * factor)};
}

Row4 plus(const Row4& a, const Row4& b, float factor) {
    Row4 sum{};
    for (std::size_t i = 0; i < sum.size(); ++i)
        sum[i] = a[i] + b[i] * factor;
    return sum;
}

bool isAllFinite(const Row4& row) {
    return std::all_of(row.begin(), row.end(), [](float value) { return std::isfinite(value); });
}

// The largest value of the row in the box.
float largest(const Row4& row, const gs::Coordinates& low, const gs::Coordinates& high) {
    float value = row[3];
    for (std::size_t i = 0; i < 3; ++i)
        value += row[i] * (row[i] > 0 ? high[i] : low[i]);
    return value;
}

double eyeDistanceOf(const gs::Camera& camera) { return camera.height / 2 / std::tan(gs::Camera::kFieldOfView / 2); }

} // namespace

ViewTransform::ViewTransform(const gs::Camera& camera, const ZrGePoint3d& origin, int width, int height)
    : centerX_(static_cast<float>(width) / 2 - 0.5F), centerY_(static_cast<float>(height) / 2 - 0.5F), origin_(origin),
      width_(width), height_(height), isPerspective_(camera.projection == gs::Projection::Perspective) {
    const ZrGeVector3d right = camera.up.crossProduct(camera.backward);
    const double distance = eyeDistanceOf(camera);
    const ZrGeVector3d target = camera.target - origin;
    const ZrGeVector3d eye = isPerspective_ ? target + camera.backward * distance : target;
    const double scale = height / camera.height;

    w_ = isPerspective_ ? rowOf(-camera.backward, eye, 1 / distance) : Row{0, 0, 0, 1};
    depth_ = isPerspective_ ? Row{0, 0, 0, 1} : rowOf(camera.backward, target, 1 / camera.height);
    x_ = plus(rowOf(right, eye, scale), w_, centerX_);
    y_ = plus(rowOf(camera.up, eye, -scale), w_, centerY_);
    right_ = Vector3(right);
    up_ = Vector3(camera.up);
    backward_ = Vector3(camera.backward);
    eye_ = Vector3(eye);
    scale_ = static_cast<float>(scale);
    eyeDistance_ = static_cast<float>(distance);
    const bool allFinite = isAllFinite(x_) && isAllFinite(y_) && isAllFinite(depth_) && isAllFinite(w_);
    isValid_ = camera.height > 0 && scale_ > 0 && eyeDistance_ > 0 && allFinite && isFinite(eye_) && length(right_) > 0;
}

bool ViewTransform::isOutside(const gs::Coordinates& low, const gs::Coordinates& high, float margin) const {
    const Row zero{};
    const float right = static_cast<float>(width_) + margin;
    const float bottom = static_cast<float>(height_) + margin;
    return largest(plus(x_, w_, margin), low, high) < 0 ||
           largest(plus(plus(zero, w_, right), x_, -1), low, high) < 0 ||
           largest(plus(y_, w_, margin), low, high) < 0 ||
           largest(plus(plus(zero, w_, bottom), y_, -1), low, high) < 0 || largest(w_, low, high) < kNearest;
}

SightLine ViewTransform::sightLine(float x, float y) const {
    const float across = (x - centerX_) / scale_;
    const float over = (centerY_ - y) / scale_;
    const Vector3 aside = right_ * across + up_ * over;
    if (isPerspective_)
        return {eye_, aside * (1 / eyeDistance_) - backward_};
    return {eye_ + aside, backward_ * -1};
}

gs::Coordinates ViewTransform::relative(const ZrGePoint3d& world) const {
    const ZrGeVector3d from = world - origin_;
    return {static_cast<float>(from.x), static_cast<float>(from.y), static_cast<float>(from.z)};
}

} // namespace quor::desktop
