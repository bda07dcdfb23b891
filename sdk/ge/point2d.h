// A place in the plane.
#pragma once

#include "sdk/ge/vector2d.h"

class ZrGePoint2d {
public:
    constexpr ZrGePoint2d() = default;
    constexpr ZrGePoint2d(double xx, double yy) : x(xx), y(yy) {}

    constexpr ZrGePoint2d& set(double xx, double yy) { return *this = {xx, yy}; }

    constexpr ZrGePoint2d& operator+=(const ZrGeVector2d& v) { return set(x + v.x, y + v.y); }
    constexpr ZrGePoint2d& operator-=(const ZrGeVector2d& v) { return set(x - v.x, y - v.y); }

    // Exact comparison of the coordinates; isEqualTo is the one with a tolerance.
    [[nodiscard]] constexpr bool operator==(const ZrGePoint2d&) const = default;

    [[nodiscard]] constexpr ZrGeVector2d asVector() const { return {x, y}; }
    [[nodiscard]] double distanceTo(const ZrGePoint2d& p) const { return std::hypot(x - p.x, y - p.y); }
    [[nodiscard]] bool isEqualTo(const ZrGePoint2d& p, const ZrGeTol& tol = ZrGeContext::gTol) const {
        return distanceTo(p) <= tol.equalPoint();
    }

    double x = 0;
    double y = 0;

    static const ZrGePoint2d kOrigin;
};

inline constexpr ZrGePoint2d ZrGePoint2d::kOrigin{0, 0};

[[nodiscard]] constexpr ZrGePoint2d operator+(ZrGePoint2d p, const ZrGeVector2d& v) { return p += v; }
[[nodiscard]] constexpr ZrGePoint2d operator-(ZrGePoint2d p, const ZrGeVector2d& v) { return p -= v; }
[[nodiscard]] constexpr ZrGeVector2d operator-(const ZrGePoint2d& a, const ZrGePoint2d& b) {
    return {a.x - b.x, a.y - b.y};
}
