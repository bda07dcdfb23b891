// A place in space.
#pragma once

#include "sdk/ge/vector3d.h"

class ZrGePoint3d {
public:
    constexpr ZrGePoint3d() = default;
    constexpr ZrGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    constexpr ZrGePoint3d& set(double xx, double yy, double zz) { return *this = {xx, yy, zz}; }

    constexpr ZrGePoint3d& operator+=(const ZrGeVector3d& v) { return set(x + v.x, y + v.y, z + v.z); }
    constexpr ZrGePoint3d& operator-=(const ZrGeVector3d& v) { return set(x - v.x, y - v.y, z - v.z); }

    // Exact comparison of the coordinates; isEqualTo is the one with a tolerance.
    [[nodiscard]] constexpr bool operator==(const ZrGePoint3d&) const = default;

    [[nodiscard]] constexpr ZrGeVector3d asVector() const { return {x, y, z}; }
    [[nodiscard]] double distanceTo(const ZrGePoint3d& p) const { return std::hypot(x - p.x, y - p.y, z - p.z); }
    [[nodiscard]] bool isEqualTo(const ZrGePoint3d& p, const ZrGeTol& tol = ZrGeContext::gTol) const {
        return distanceTo(p) <= tol.equalPoint();
    }

    ZrGePoint3d& transformBy(const ZrGeMatrix3d& matrix);

    double x = 0;
    double y = 0;
    double z = 0;

    static const ZrGePoint3d kOrigin;
};

inline constexpr ZrGePoint3d ZrGePoint3d::kOrigin{0, 0, 0};

[[nodiscard]] constexpr ZrGePoint3d operator+(ZrGePoint3d p, const ZrGeVector3d& v) { return p += v; }
[[nodiscard]] constexpr ZrGePoint3d operator-(ZrGePoint3d p, const ZrGeVector3d& v) { return p -= v; }
[[nodiscard]] constexpr ZrGeVector3d operator-(const ZrGePoint3d& a, const ZrGePoint3d& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
