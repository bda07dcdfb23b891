// A direction and length in space.
#pragma once

#include <cmath>
#include <numbers>

#include "sdk/ge/tol.h"

class ZrGeMatrix3d;

class ZrGeVector3d {
public:
    constexpr ZrGeVector3d() = default;
    constexpr ZrGeVector3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    constexpr ZrGeVector3d& set(double xx, double yy, double zz) { return *this = {xx, yy, zz}; }

    constexpr ZrGeVector3d& operator+=(const ZrGeVector3d& v) { return set(x + v.x, y + v.y, z + v.z); }
    constexpr ZrGeVector3d& operator-=(const ZrGeVector3d& v) { return set(x - v.x, y - v.y, z - v.z); }
    constexpr ZrGeVector3d& operator*=(double s) { return set(x * s, y * s, z * s); }
    constexpr ZrGeVector3d& operator/=(double s) { return set(x / s, y / s, z / s); }
    constexpr ZrGeVector3d& negate() { return set(-x, -y, -z); }

    // Exact comparison of the components; isEqualTo is the one with a tolerance.
    [[nodiscard]] constexpr bool operator==(const ZrGeVector3d&) const = default;

    [[nodiscard]] constexpr double dotProduct(const ZrGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
    [[nodiscard]] constexpr ZrGeVector3d crossProduct(const ZrGeVector3d& v) const {
        return {y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x};
    }
    [[nodiscard]] constexpr double lengthSqrd() const { return dotProduct(*this); }
    [[nodiscard]] double length() const { return std::hypot(x, y, z); }

    [[nodiscard]] bool isZeroLength(const ZrGeTol& tol = ZrGeContext::gTol) const {
        return length() <= tol.equalVector();
    }
    [[nodiscard]] bool isEqualTo(const ZrGeVector3d& v, const ZrGeTol& tol = ZrGeContext::gTol) const {
        return std::hypot(x - v.x, y - v.y, z - v.z) <= tol.equalVector();
    }
    // Same or opposite direction. A vector of length zero is parallel to nothing.
    [[nodiscard]] bool isParallelTo(const ZrGeVector3d& v, const ZrGeTol& tol = ZrGeContext::gTol) const {
        if (isZeroLength(tol) || v.isZeroLength(tol))
            return false;
        return normal(tol).crossProduct(v.normal(tol)).length() <= tol.equalVector();
    }

    // The vector of length 1 in this direction. A vector of length zero stays as it is.
    [[nodiscard]] ZrGeVector3d normal(const ZrGeTol& tol = ZrGeContext::gTol) const {
        const double size = length();
        return size <= tol.equalVector() ? *this : ZrGeVector3d(x / size, y / size, z / size);
    }
    ZrGeVector3d& normalize(const ZrGeTol& tol = ZrGeContext::gTol) { return *this = normal(tol); }

    // The X axis of the plane whose normal this vector is, length 1, by the arbitrary axis rule of drawing files:
    // a normal near the world Z axis (|x| and |y| below 1/64) is crossed with world Y, any other with world Z.
    // A vector of length zero gives length zero.
    [[nodiscard]] ZrGeVector3d perpVector() const {
        constexpr double nearZ = 1.0 / 64;
        const ZrGeVector3d n = normal(ZrGeTol(0, 0));
        const bool steep = std::abs(n.x) < nearZ && std::abs(n.y) < nearZ;
        const ZrGeVector3d helper = steep ? ZrGeVector3d(0, 1, 0) : ZrGeVector3d(0, 0, 1);
        return helper.crossProduct(n).normal(ZrGeTol(0, 0));
    }

    // The angle between the two directions, 0 to pi.
    [[nodiscard]] double angleTo(const ZrGeVector3d& v) const {
        return std::atan2(crossProduct(v).length(), dotProduct(v));
    }
    // The angle from this direction to v, 0 <= angle < 2 pi, counterclockwise as seen from the tip of `reference`.
    [[nodiscard]] double angleTo(const ZrGeVector3d& v, const ZrGeVector3d& reference) const {
        constexpr double turn = 2 * std::numbers::pi;
        const double angle = angleTo(v);
        const bool clockwise = crossProduct(v).dotProduct(reference) < 0;
        return clockwise && turn - angle < turn ? turn - angle : angle;
    }

    // Turns by `angle` radians about `axis` through the origin, counterclockwise as seen from the axis' tip.
    ZrGeVector3d& rotateBy(double angle, const ZrGeVector3d& axis);
    ZrGeVector3d& transformBy(const ZrGeMatrix3d& matrix);

    double x = 0;
    double y = 0;
    double z = 0;

    static const ZrGeVector3d kIdentity; // length zero: the vector that changes nothing when added
    static const ZrGeVector3d kXAxis;
    static const ZrGeVector3d kYAxis;
    static const ZrGeVector3d kZAxis;
};

inline constexpr ZrGeVector3d ZrGeVector3d::kIdentity{0, 0, 0};
inline constexpr ZrGeVector3d ZrGeVector3d::kXAxis{1, 0, 0};
inline constexpr ZrGeVector3d ZrGeVector3d::kYAxis{0, 1, 0};
inline constexpr ZrGeVector3d ZrGeVector3d::kZAxis{0, 0, 1};

[[nodiscard]] constexpr ZrGeVector3d operator-(const ZrGeVector3d& v) { return {-v.x, -v.y, -v.z}; }
[[nodiscard]] constexpr ZrGeVector3d operator+(ZrGeVector3d a, const ZrGeVector3d& b) { return a += b; }
[[nodiscard]] constexpr ZrGeVector3d operator-(ZrGeVector3d a, const ZrGeVector3d& b) { return a -= b; }
[[nodiscard]] constexpr ZrGeVector3d operator*(ZrGeVector3d v, double s) { return v *= s; }
[[nodiscard]] constexpr ZrGeVector3d operator*(double s, ZrGeVector3d v) { return v *= s; }
[[nodiscard]] constexpr ZrGeVector3d operator/(ZrGeVector3d v, double s) { return v /= s; }
