#include "host/gs/pick_window.h"

#include "host/gs/polygon_cut.h"

#include <algorithm>
#include <cmath>

namespace quor::gs {

namespace {

using Point = std::array<double, 3>;

Point toDouble(const Coordinates& p) { return {p[0], p[1], p[2]}; }

Point between(const Point& a, const Point& b, double share) {
    return {a[0] + (b[0] - a[0]) * share, a[1] + (b[1] - a[1]) * share, a[2] + (b[2] - a[2]) * share};
}

} // namespace

PickWindow::PickWindow(const Projector& projector, const ZrGePoint3d& origin, const PixelRect& rect) {
    constexpr double kHalfPixel = 0.5;
    double left = std::min(rect.left, rect.right);
    double right = std::max(rect.left, rect.right);
    double top = std::min(rect.top, rect.bottom);
    double bottom = std::max(rect.top, rect.bottom);
    if (right - left < kHalfPixel) {
        left -= kHalfPixel;
        right += kHalfPixel;
    }
    if (bottom - top < kHalfPixel) {
        top -= kHalfPixel;
        bottom += kHalfPixel;
    }

    const Camera& camera = projector.camera();
    const double perUnit = 1 / projector.unitsPerPixel(camera.target);
    const double nearing = camera.projection == Projection::Perspective ? 1 / camera.eyeDistance() : 0;
    const ZrGeVector3d toOrigin = origin - camera.target;
    // Inside are points whose way along `axis`, in pixels, is at least `edge` times their distance from the eye.
    const auto plane = [&](const ZrGeVector3d& axis, double edge) {
        const ZrGeVector3d normal = axis * perUnit + camera.backward * (edge * nearing);
        return Plane{normal.x, normal.y, normal.z, normal.dotProduct(toOrigin) - edge};
    };
    const double middleX = projector.size().width / 2.0;
    const double middleY = projector.size().height / 2.0;
    planes_ = {plane(camera.right(), left - middleX), plane(-camera.right(), middleX - right),
               plane(-camera.up, top - middleY), plane(camera.up, middleY - bottom)};
}

bool PickWindow::mayHold(const SceneChunk& chunk) const {
    if (chunk.low[0] > chunk.high[0])
        return false;
    return std::all_of(planes_.begin(), planes_.end(), [&](const Plane& plane) {
        const Coordinates farthest{plane.x > 0 ? chunk.high[0] : chunk.low[0],
                                   plane.y > 0 ? chunk.high[1] : chunk.low[1],
                                   plane.z > 0 ? chunk.high[2] : chunk.low[2]};
        return plane.at(farthest) >= 0;
    });
}

bool PickWindow::holds(const Coordinates& point) const {
    return std::all_of(planes_.begin(), planes_.end(), [&](const Plane& plane) { return plane.at(point) >= 0; });
}

bool PickWindow::touches(const SceneLine& line) const {
    double from = 0;
    double to = 1;
    for (const Plane& plane : planes_) {
        const double a = plane.at(line.a);
        const double b = plane.at(line.b);
        if (a < 0 && b < 0)
            return false;
        if (a < 0)
            from = std::max(from, a / (a - b));
        else if (b < 0)
            to = std::min(to, a / (a - b));
    }
    return from <= to;
}

bool PickWindow::touches(const SceneTriangle& triangle) const {
    for (const Plane& plane : planes_)
        if (plane.at(triangle.a) < 0 && plane.at(triangle.b) < 0 && plane.at(triangle.c) < 0)
            return false;
    constexpr std::size_t kMostCorners = 3 + std::tuple_size_v<decltype(planes_)>;
    CutPolygon<Point, kMostCorners> rest;
    rest.add(toDouble(triangle.a));
    rest.add(toDouble(triangle.b));
    rest.add(toDouble(triangle.c));
    for (const Plane& plane : planes_) {
        const auto height = [&](const Point& p) {
            return plane.x * p[0] + plane.y * p[1] + plane.z * p[2] + plane.constant;
        };
        rest = cutPolygon(rest, height, between);
    }
    return rest.count > 0;
}

} // namespace quor::gs
