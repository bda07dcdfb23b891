#include "host/gs/camera.h"

#include "sdk/ge/matrix3d.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace quor::gs {

namespace {

// How much larger than a box the picture is that shows all of it.
constexpr double kMargin = 1.06;
// Beyond these a picture shows nothing but the limits of numbers.
constexpr double kLeastHeight = 1e-9;
constexpr double kMostHeight = 1e15;
// A picture far from the origin cannot show less than this share of its distance.
constexpr double kLeastShare = 1e-12;

bool isFinite(const ZrGeVector3d& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }

bool isSound(const Camera& camera) {
    const double farthest = std::max(
        {std::abs(camera.target.x), std::abs(camera.target.y), std::abs(camera.target.z), kLeastHeight / kLeastShare});
    return isFinite(camera.target.asVector()) && isFinite(camera.backward) && isFinite(camera.up) &&
           camera.height >= farthest * kLeastShare && camera.height <= kMostHeight;
}

Camera soundOr(const Camera& camera, const Camera& otherwise) { return isSound(camera) ? camera : otherwise; }

double aspectOf(PictureSize size) {
    return static_cast<double>(std::max(size.width, 1)) / static_cast<double>(std::max(size.height, 1));
}

double halfTangent() { return std::tan(Camera::kFieldOfView / 2); }

// Axes that rounding has bent a little, straight again.
void straighten(Camera& camera) {
    camera.backward.normalize(ZrGeTol(0, 0));
    camera.up -= camera.backward * camera.up.dotProduct(camera.backward);
    camera.up.normalize(ZrGeTol(0, 0));
}

std::array<ZrGePoint3d, 8> cornersOf(const Box& box) {
    std::array<ZrGePoint3d, 8> corners;
    for (std::size_t i = 0; i < corners.size(); ++i)
        corners[i] = {(i & 1) != 0 ? box.high.x : box.low.x, (i & 2) != 0 ? box.high.y : box.low.y,
                      (i & 4) != 0 ? box.high.z : box.low.z};
    return corners;
}

// Coordinates of a box's corners along the axes of a camera, from the middle of the box.
std::array<ZrGeVector3d, 8> cornersSeen(const Camera& camera, const Box& box) {
    const ZrGePoint3d center = box.center();
    const ZrGeVector3d right = camera.right();
    std::array<ZrGeVector3d, 8> seen;
    const std::array<ZrGePoint3d, 8> corners = cornersOf(box);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const ZrGeVector3d v = corners[i] - center;
        seen[i] = {v.dotProduct(right), v.dotProduct(camera.up), v.dotProduct(camera.backward)};
    }
    return seen;
}

Camera fittedParallel(Camera camera, PictureSize size, const Box& box) {
    double halfWidth = 0; // the corners lie symmetrically around the middle of the box
    double halfHeight = 0;
    for (const ZrGeVector3d& corner : cornersSeen(camera, box)) {
        halfWidth = std::max(halfWidth, std::abs(corner.x));
        halfHeight = std::max(halfHeight, std::abs(corner.y));
    }
    camera.target = box.center();
    camera.height = 2 * kMargin * std::max(halfHeight, halfWidth / aspectOf(size));
    return camera;
}

// The nearest eye from which no corner lies outside of the four sides of what is seen.
Camera fittedPerspective(Camera camera, PictureSize size, const Box& box) {
    const double overY = halfTangent() / kMargin;
    const double overX = overY * aspectOf(size);
    double right = 0;
    double top = 0;
    double nearest = 0;
    for (const ZrGeVector3d& corner : cornersSeen(camera, box)) {
        right = std::max(right, corner.x + corner.z * overX);
        top = std::max(top, corner.y + corner.z * overY);
        nearest = std::max(nearest, corner.z);
    }
    // The corners lie symmetrically, so that the eye stands straight before the middle.
    const double distance = std::max({right / overX, top / overY, nearest + 0.05 * box.diagonal()});
    camera.target = box.center();
    camera.height = 2 * distance * halfTangent();
    return camera;
}

// How far the eye may rise before it comes over the top, or sink; an eye that leans already turns freely.
double limitedRise(const Camera& camera, double rise) {
    constexpr double kLeaning = 1e-6;
    constexpr double kSteepest = std::numbers::pi / 2;
    if (std::abs(camera.right().z) > kLeaning || camera.up.z < -kLeaning)
        return rise;
    const double elevation = std::asin(std::clamp(camera.backward.z, -1.0, 1.0));
    return std::clamp(rise, -kSteepest - elevation, kSteepest - elevation);
}

} // namespace

void Box::add(const ZrGePoint3d& point) {
    if (isEmpty()) {
        low = high = point;
        return;
    }
    low.set(std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z));
    high.set(std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z));
}

void Box::add(const Box& box) {
    if (box.isEmpty())
        return;
    add(box.low);
    add(box.high);
}

ZrGePoint3d Box::center() const { return low + (high - low) / 2; }

double Box::diagonal() const { return isEmpty() ? 0 : low.distanceTo(high); }

double Camera::eyeDistance() const { return height / 2 / halfTangent(); }

Camera orbited(const Camera& camera, const ZrGePoint3d& center, double across, double over) {
    ZrGeMatrix3d rise;
    rise.setToRotation(-limitedRise(camera, over), camera.right(), center);
    ZrGeMatrix3d turn;
    turn.setToRotation(across, ZrGeVector3d::kZAxis, center);
    turn *= rise;
    Camera moved = camera;
    moved.target.transformBy(turn);
    moved.backward.transformBy(turn);
    moved.up.transformBy(turn);
    straighten(moved);
    return soundOr(moved, camera);
}

Camera panned(const Camera& camera, PictureSize size, double dx, double dy) {
    const double unitsPerPixel = camera.height / std::max(size.height, 1);
    Camera moved = camera;
    moved.target += camera.up * (dy * unitsPerPixel) - camera.right() * (dx * unitsPerPixel);
    return soundOr(moved, camera);
}

Camera zoomedAt(const Camera& camera, PictureSize size, double x, double y, double factor) {
    if (!(factor > 0) || !std::isfinite(factor))
        return camera;
    const double unitsPerPixel = camera.height / std::max(size.height, 1);
    const ZrGeVector3d toPlace = camera.right() * ((x - size.width / 2.0) * unitsPerPixel) -
                                 camera.up * ((y - size.height / 2.0) * unitsPerPixel);
    Camera moved = camera;
    moved.target += toPlace * (1 - 1 / factor);
    moved.height /= factor;
    return soundOr(moved, camera);
}

Camera fitted(const Camera& camera, PictureSize size, const Box& box) {
    if (box.isEmpty())
        return camera;
    Camera moved = camera.projection == Projection::Parallel ? fittedParallel(camera, size, box)
                                                             : fittedPerspective(camera, size, box);
    // A single point, or a line that is looked along, has no size to go by.
    if (moved.height < kLeastHeight)
        moved.height = camera.height;
    return soundOr(moved, camera);
}

Camera lookingAlong(const Camera& camera, const ZrGeVector3d& backward) {
    constexpr double kStraight = 1e-9;
    const ZrGeVector3d direction = backward.normal(ZrGeTol(0, 0));
    if (!isFinite(direction) || !(direction.lengthSqrd() > 0.5))
        return camera;
    const bool fromAbove = std::hypot(direction.x, direction.y) < kStraight;
    Camera moved = camera;
    moved.backward = fromAbove ? ZrGeVector3d(0, 0, direction.z > 0 ? 1 : -1) : direction;
    moved.up = fromAbove ? ZrGeVector3d::kYAxis : ZrGeVector3d::kZAxis;
    straighten(moved);
    return soundOr(moved, camera);
}

Projector::Projector(const Camera& camera, PictureSize size)
    : camera_(camera), size_(size), right_(camera.right()), eye_(camera.eye()),
      pixelsPerUnit_(std::max(size.height, 1) / (camera.height > 0 ? camera.height : 1)) {}

std::optional<ScreenPoint> Projector::toScreen(const ZrGePoint3d& world) const {
    // From the target, not from the origin of the world: far away from that, differences are all that is exact.
    const ZrGeVector3d v = world - camera_.target;
    const double distance = camera_.eyeDistance();
    const double depth = distance - v.dotProduct(camera_.backward);
    double scale = pixelsPerUnit_;
    if (camera_.projection == Projection::Perspective) {
        if (!(depth > distance * 1e-9))
            return std::nullopt;
        scale *= distance / depth;
    }
    return ScreenPoint{size_.width / 2.0 + v.dotProduct(right_) * scale,
                       size_.height / 2.0 - v.dotProduct(camera_.up) * scale, depth};
}

Ray Projector::rayAt(double x, double y) const {
    const ZrGeVector3d across =
        right_ * ((x - size_.width / 2.0) / pixelsPerUnit_) - camera_.up * ((y - size_.height / 2.0) / pixelsPerUnit_);
    if (camera_.projection == Projection::Parallel)
        return {eye_ + across, -camera_.backward};
    return {eye_, (across - camera_.backward * camera_.eyeDistance()).normal(ZrGeTol(0, 0))};
}

std::optional<ZrGePoint3d> Projector::onPlane(double x, double y, const ZrGePoint3d& origin,
                                              const ZrGeVector3d& normal) const {
    constexpr double kParallel = 1e-9;
    const Ray ray = rayAt(x, y);
    const ZrGeVector3d n = normal.normal(ZrGeTol(0, 0));
    const double slope = ray.direction.dotProduct(n);
    if (!(std::abs(slope) > kParallel))
        return std::nullopt;
    const double distance = (origin - ray.origin).dotProduct(n) / slope;
    if (!std::isfinite(distance) || (camera_.projection == Projection::Perspective && distance <= 0))
        return std::nullopt;
    return ray.origin + ray.direction * distance;
}

double Projector::unitsPerPixel(const ZrGePoint3d& at) const {
    if (camera_.projection == Projection::Parallel)
        return 1 / pixelsPerUnit_;
    const double depth = camera_.eyeDistance() - (at - camera_.target).dotProduct(camera_.backward);
    return std::max(depth / camera_.eyeDistance(), 0.0) / pixelsPerUnit_;
}

} // namespace quor::gs
