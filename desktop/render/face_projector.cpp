#include "desktop/render/face_projector.h"

#include "host/gs/polygon_cut.h"

#include <algorithm>

namespace quor::desktop {
namespace {

struct Exact {
    double x, y, depth, w;
};

constexpr double kGuard = 4096; // pixels around the picture that faces may reach over without being cut

bool isUsable(const Exact& p) {
    constexpr double most = 1e30;
    return std::abs(p.x) < most && std::abs(p.y) < most && std::abs(p.depth) < most && std::abs(p.w) < most;
}

Exact exact(const Homogeneous& h) { return {h.x, h.y, h.depth, h.w}; }

using Corners = gs::CutPolygon<Exact, ScreenPolygon::kMost>;

Exact between(const Exact& a, const Exact& b, double share) {
    return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share, a.depth + (b.depth - a.depth) * share,
            a.w + (b.w - a.w) * share};
}

template <class Value>
Corners cutBy(const Corners& polygon, const Value& value) {
    return gs::cutPolygon(polygon, value, between);
}

bool needsCut(const Exact& p, double right, double bottom) {
    return !(p.w >= ViewTransform::kNearest && p.x >= -kGuard * p.w && p.x <= right * p.w && p.y >= -kGuard * p.w &&
             p.y <= bottom * p.w);
}

// The plane through three points whose depth / w it gives; false when it is seen from its edge.
bool findPlane(const Exact& a, const Exact& b, const Exact& c, double x0, double y0, DepthPlane& plane) {
    const auto determinant = [](const std::array<double, 3>& u, const std::array<double, 3>& v,
                                const std::array<double, 3>& n) {
        return u[0] * (v[1] * n[2] - v[2] * n[1]) - u[1] * (v[0] * n[2] - v[2] * n[0]) +
               u[2] * (v[0] * n[1] - v[1] * n[0]);
    };
    const std::array<double, 3> x{a.x - x0 * a.w, b.x - x0 * b.w, c.x - x0 * c.w};
    const std::array<double, 3> y{a.y - y0 * a.w, b.y - y0 * b.w, c.y - y0 * c.w};
    const std::array<double, 3> w{a.w, b.w, c.w};
    const std::array<double, 3> depth{a.depth, b.depth, c.depth};
    const double area = determinant(x, y, w);
    if (area == 0)
        return false;
    plane.x0 = static_cast<float>(x0);
    plane.y0 = static_cast<float>(y0);
    plane.right = static_cast<float>(determinant(depth, y, w) / area);
    plane.down = static_cast<float>(determinant(x, depth, w) / area);
    plane.depth = static_cast<float>(determinant(x, y, depth) / area);
    return std::isfinite(plane.right) && std::isfinite(plane.down) && std::isfinite(plane.depth);
}

// The share of its depth by which a face stands back from its edges: by what it changes within a pixel.
float setBack(const ViewTransform& view, const DepthPlane& plane) {
    constexpr float most = 4e-3F;
    const float limit = view.nearer(plane.depth, most) - plane.depth;
    return std::min(std::abs(plane.right) + std::abs(plane.down), limit);
}

bool isBesidePicture(const ScreenPolygon& polygon, const ViewTransform& view) {
    const auto xEnd = polygon.x.begin() + static_cast<std::ptrdiff_t>(polygon.count);
    const auto yEnd = polygon.y.begin() + static_cast<std::ptrdiff_t>(polygon.count);
    const auto [left, right] = std::minmax_element(polygon.x.begin(), xEnd);
    const auto [top, bottom] = std::minmax_element(polygon.y.begin(), yEnd);
    return *right < -1 || *bottom < -1 || *left > static_cast<float>(view.width()) ||
           *top > static_cast<float>(view.height());
}

} // namespace

bool projectTriangle(const ViewTransform& view, const gs::SceneTriangle& triangle, ScreenPolygon& polygon) {
    const Exact a = exact(view.apply(triangle.a));
    const Exact b = exact(view.apply(triangle.b));
    const Exact c = exact(view.apply(triangle.c));
    if (!isUsable(a) || !isUsable(b) || !isUsable(c))
        return false;
    const double right = view.width() + kGuard;
    const double bottom = view.height() + kGuard;
    Corners corners{.corners = {a, b, c}, .count = 3};
    if (needsCut(a, right, bottom) || needsCut(b, right, bottom) || needsCut(c, right, bottom)) {
        corners = cutBy(corners, [](const Exact& p) { return p.w - ViewTransform::kNearest; });
        corners = cutBy(corners, [](const Exact& p) { return p.x + kGuard * p.w; });
        corners = cutBy(corners, [right](const Exact& p) { return right * p.w - p.x; });
        corners = cutBy(corners, [](const Exact& p) { return p.y + kGuard * p.w; });
        corners = cutBy(corners, [bottom](const Exact& p) { return bottom * p.w - p.y; });
    }
    if (corners.count < 3)
        return false;

    polygon.count = corners.count;
    polygon.plane.low = std::numeric_limits<float>::max();
    polygon.plane.high = std::numeric_limits<float>::lowest();
    for (std::size_t i = 0; i < corners.count; ++i) {
        const Exact& p = corners.corners[i];
        polygon.x[i] = static_cast<float>(p.x / p.w);
        polygon.y[i] = static_cast<float>(p.y / p.w);
        const auto depth = static_cast<float>(p.depth / p.w);
        polygon.plane.low = std::min(polygon.plane.low, depth);
        polygon.plane.high = std::max(polygon.plane.high, depth);
    }
    if (isBesidePicture(polygon, view) || !findPlane(a, b, c, polygon.x[0], polygon.y[0], polygon.plane))
        return false;
    const float back = setBack(view, polygon.plane);
    polygon.plane.depth -= back;
    polygon.plane.low -= back;
    polygon.plane.high -= back;
    return true;
}

} // namespace quor::desktop
