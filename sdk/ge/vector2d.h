// A direction and length in the plane.
#pragma once

#include <cmath>
#include <numbers>

#include "sdk/ge/tol.h"

class ZrGeVector2d {
public:
    constexpr ZrGeVector2d() = default;
    constexpr ZrGeVector2d(double xx, double yy) : x(xx), y(yy) {}

    constexpr ZrGeVector2d& set(double xx, double yy) { return *this = {xx, yy}; }

    constexpr ZrGeVector2d& operator+=(const ZrGeVector2d& v) { return set(x + v.x, y + v.y); }
    constexpr ZrGeVector2d& operator-=(const ZrGeVector2d& v) { return set(x - v.x, y - v.y); }
    constexpr ZrGeVector2d& operator*=(double s) { return set(x * s, y * s); }
    constexpr ZrGeVector2d& operator/=(double s) { return set(x / s, y / s); }

    // Exact comparison of the components; isEqualTo is the one with a tolerance.
    [[nodiscard]] constexpr bool operator==(const ZrGeVector2d&) const = default;

    [[nodiscard]] constexpr double dotProduct(const ZrGeVector2d& v) const { return x * v.x + y * v.y; }
    // The Z component of the product in space: positive when v lies counterclockwise of this vector.
    [[nodiscard]] constexpr double crossProduct(const ZrGeVector2d& v) const { return x * v.y - y * v.x; }
    [[nodiscard]] constexpr double lengthSqrd() const { return dotProduct(*this); }
    [[nodiscard]] double length() const { return std::hypot(x, y); }

    [[nodiscard]] bool isZeroLength(const ZrGeTol& tol = ZrGeContext::gTol) const {
        return length() <= tol.equalVector();
    }
    [[nodiscard]] bool isEqualTo(const ZrGeVector2d& v, const ZrGeTol& tol = ZrGeContext::gTol) const {
        return std::hypot(x - v.x, y - v.y) <= tol.equalVector();
    }
    // Same or opposite direction. A vector of length zero is parallel to nothing.
    [[nodiscard]] bool isParallelTo(const ZrGeVector2d& v, const ZrGeTol& tol = ZrGeContext::gTol) const {
        if (isZeroLength(tol) || v.isZeroLength(tol))
            return false;
        return std::abs(normal(tol).crossProduct(v.normal(tol))) <= tol.equalVector();
    }

    // The vector of length 1 in this direction. A vector of length zero stays as it is.
    [[nodiscard]] ZrGeVector2d normal(const ZrGeTol& tol = ZrGeContext::gTol) const {
        const double size = length();
        return size <= tol.equalVector() ? *this : ZrGeVector2d(x / size, y / size);
    }
    ZrGeVector2d& normalize(const ZrGeTol& tol = ZrGeContext::gTol) { return *this = normal(tol); }

    // The same length, turned a quarter counterclockwise.
    [[nodiscard]] constexpr ZrGeVector2d perpVector() const { return {-y, x}; }

    // The angle from the X axis, counterclockwise, 0 <= angle < 2 pi.
    [[nodiscard]] double angle() const {
        const double turn = 2 * std::numbers::pi;
        const double signedAngle = std::atan2(y, x);
        const double positive = signedAngle < 0 ? signedAngle + turn : signedAngle;
        return positive < turn ? positive : 0.0;
    }
    // The angle between the two directions, 0 to pi.
    [[nodiscard]] double angleTo(const ZrGeVector2d& v) const {
        return std::atan2(std::abs(crossProduct(v)), dotProduct(v));
    }

    double x = 0;
    double y = 0;

    static const ZrGeVector2d kIdentity; // length zero: the vector that changes nothing when added
    static const ZrGeVector2d kXAxis;
    static const ZrGeVector2d kYAxis;
};

inline constexpr ZrGeVector2d ZrGeVector2d::kIdentity{0, 0};
inline constexpr ZrGeVector2d ZrGeVector2d::kXAxis{1, 0};
inline constexpr ZrGeVector2d ZrGeVector2d::kYAxis{0, 1};

[[nodiscard]] constexpr ZrGeVector2d operator-(const ZrGeVector2d& v) { return {-v.x, -v.y}; }
[[nodiscard]] constexpr ZrGeVector2d operator+(ZrGeVector2d a, const ZrGeVector2d& b) { return a += b; }
[[nodiscard]] constexpr ZrGeVector2d operator-(ZrGeVector2d a, const ZrGeVector2d& b) { return a -= b; }
[[nodiscard]] constexpr ZrGeVector2d operator*(ZrGeVector2d v, double s) { return v *= s; }
[[nodiscard]] constexpr ZrGeVector2d operator*(double s, ZrGeVector2d v) { return v *= s; }
[[nodiscard]] constexpr ZrGeVector2d operator/(ZrGeVector2d v, double s) { return v /= s; }
