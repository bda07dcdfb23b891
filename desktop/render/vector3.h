// Directions and places in single precision: what pictures are computed with.
#pragma once

#include "host/gs/scene.h"

#include <cmath>

namespace quor::desktop {

struct Vector3 {
    float x = 0;
    float y = 0;
    float z = 0;

    Vector3() = default;
    constexpr Vector3(float xx, float yy, float zz) : x(xx), y(yy), z(zz) {}
    explicit Vector3(const gs::Coordinates& c) : x(c[0]), y(c[1]), z(c[2]) {}
    explicit Vector3(const ZrGeVector3d& v)
        : x(static_cast<float>(v.x)), y(static_cast<float>(v.y)), z(static_cast<float>(v.z)) {}
};

inline Vector3 operator+(Vector3 a, Vector3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vector3 operator-(Vector3 a, Vector3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Vector3 operator*(Vector3 a, float s) { return {a.x * s, a.y * s, a.z * s}; }
inline float dot(Vector3 a, Vector3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vector3 cross(Vector3 a, Vector3 b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline Vector3 product(Vector3 a, Vector3 b) { return {a.x * b.x, a.y * b.y, a.z * b.z}; }
inline float length(Vector3 a) { return std::sqrt(dot(a, a)); }
inline bool isFinite(Vector3 a) { return std::isfinite(a.x) && std::isfinite(a.y) && std::isfinite(a.z); }

// Of length 1; nothing else than zeros when there is no direction.
inline Vector3 normalized(Vector3 a) {
    const float size = length(a);
    return size > 0 && std::isfinite(size) ? a * (1 / size) : Vector3();
}

// The whole part, kept between the two whatever the value is.
inline int toWhole(float value, int low, int high) {
    if (!(value > static_cast<float>(low)))
        return low;
    if (!(value < static_cast<float>(high)))
        return high;
    const int cut = static_cast<int>(value);
    return static_cast<float>(cut) > value ? cut - 1 : cut;
}

} // namespace quor::desktop
