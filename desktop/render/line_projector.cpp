#include "desktop/render/line_projector.h"

#include <algorithm>

namespace quor::desktop {
namespace {

struct Exact {
    double x, y, depth, w;
};

Exact exact(const Homogeneous& h) { return {h.x, h.y, h.depth, h.w}; }

bool isUsable(const Exact& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.depth) && std::isfinite(p.w);
}

Exact between(const Exact& a, const Exact& b, double share) {
    return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share, a.depth + (b.depth - a.depth) * share,
            a.w + (b.w - a.w) * share};
}

// Leaves of the shares from `first` to `last` those where a value that runs from `a` to `b` is not negative.
bool cut(double a, double b, double& first, double& last) {
    if (a < 0 && b < 0)
        return false;
    if (a < 0)
        first = std::max(first, a / (a - b));
    else if (b < 0)
        last = std::min(last, a / (a - b));
    return first <= last;
}

LineEnds dividedEnds(const Exact& a, const Exact& b) {
    return {static_cast<float>(a.x / a.w), static_cast<float>(a.y / a.w), static_cast<float>(a.depth / a.w),
            static_cast<float>(b.x / b.w), static_cast<float>(b.y / b.w), static_cast<float>(b.depth / b.w)};
}

bool isNear(const LineEnds& ends, const ViewTransform& view, float margin) {
    const float right = static_cast<float>(view.width()) + margin + 1;
    const float bottom = static_cast<float>(view.height()) + margin + 1;
    const float left = -margin - 1;
    return ends.x0 > left && ends.x1 > left && ends.y0 > left && ends.y1 > left && ends.x0 < right && ends.x1 < right &&
           ends.y0 < bottom && ends.y1 < bottom && std::isfinite(ends.depth0) && std::isfinite(ends.depth1);
}

// For lines that reach over the picture's border or behind the eye.
std::optional<LineEnds> cutLine(const ViewTransform& view, const Exact& a, const Exact& b, double margin) {
    if (!isUsable(a) || !isUsable(b))
        return {};
    const double right = view.width() + margin;
    const double bottom = view.height() + margin;
    constexpr double nearest = ViewTransform::kNearest;
    double first = 0;
    double last = 1;
    const bool isSeen = cut(a.w - nearest, b.w - nearest, first, last) &&
                        cut(a.x + margin * a.w, b.x + margin * b.w, first, last) &&
                        cut(right * a.w - a.x, right * b.w - b.x, first, last) &&
                        cut(a.y + margin * a.w, b.y + margin * b.w, first, last) &&
                        cut(bottom * a.w - a.y, bottom * b.w - b.y, first, last);
    if (!isSeen)
        return {};
    const LineEnds ends = dividedEnds(between(a, b, first), between(a, b, last));
    if (!isNear(ends, view, static_cast<float>(margin)))
        return {};
    return ends;
}

} // namespace

std::optional<LineEnds> projectLine(const ViewTransform& view, const gs::SceneLine& line, float margin) {
    const Homogeneous a = view.apply(line.a);
    const Homogeneous b = view.apply(line.b);
    if (a.w > ViewTransform::kNearest && b.w > ViewTransform::kNearest) {
        const float perA = 1 / a.w;
        const float perB = 1 / b.w;
        const LineEnds ends{a.x * perA, a.y * perA, a.depth * perA, b.x * perB, b.y * perB, b.depth * perB};
        if (isNear(ends, view, margin - 1))
            return ends;
        const float right = static_cast<float>(view.width()) + margin;
        const float bottom = static_cast<float>(view.height()) + margin;
        if (std::max(ends.x0, ends.x1) < -margin || std::max(ends.y0, ends.y1) < -margin ||
            std::min(ends.x0, ends.x1) > right || std::min(ends.y0, ends.y1) > bottom)
            return {};
    }
    return cutLine(view, exact(a), exact(b), margin);
}

} // namespace quor::desktop
