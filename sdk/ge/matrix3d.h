// An affine transformation of space: turns, shifts, scales, changes the coordinate system.
#pragma once

#include "sdk/ge/point3d.h"
#include "sdk/ge/vector3d.h"

// Points are columns: (a * b) * p applies b first. The last row is always 0 0 0 1.
class ZrGeMatrix3d {
public:
    // A new matrix is the identity.
    constexpr ZrGeMatrix3d() = default;

    [[nodiscard]] constexpr double operator()(int row, int column) const { return entry[row][column]; }
    [[nodiscard]] constexpr double& operator()(int row, int column) { return entry[row][column]; }
    // Exact comparison of the entries; isEqualTo is the one with a tolerance.
    [[nodiscard]] constexpr bool operator==(const ZrGeMatrix3d&) const = default;
    [[nodiscard]] bool isEqualTo(const ZrGeMatrix3d& other, const ZrGeTol& tol = ZrGeContext::gTol) const;

    ZrGeMatrix3d& setToIdentity();
    ZrGeMatrix3d& setToTranslation(const ZrGeVector3d& shift);
    // Turns by `angle` radians, counterclockwise as seen from the axis' tip. An axis of length zero gives the identity.
    ZrGeMatrix3d& setToRotation(double angle, const ZrGeVector3d& axis,
                                const ZrGePoint3d& center = ZrGePoint3d::kOrigin);
    ZrGeMatrix3d& setToScaling(double scale, const ZrGePoint3d& center = ZrGePoint3d::kOrigin);
    // Takes the "from" system onto the "to" system: fromOrigin to toOrigin, fromXAxis to toXAxis, and so on. When the
    // "from" axes lie in one plane there is no such matrix and the result is the identity.
    ZrGeMatrix3d& setToAlignCoordSys(const ZrGePoint3d& fromOrigin, const ZrGeVector3d& fromXAxis,
                                     const ZrGeVector3d& fromYAxis, const ZrGeVector3d& fromZAxis,
                                     const ZrGePoint3d& toOrigin, const ZrGeVector3d& toXAxis,
                                     const ZrGeVector3d& toYAxis, const ZrGeVector3d& toZAxis);
    // From the coordinates of the plane through the origin with this normal to world coordinates, its X axis by the
    // arbitrary axis rule (ZrGeVector3d::perpVector). A normal of length zero gives the identity.
    ZrGeMatrix3d& setToPlaneToWorld(const ZrGeVector3d& normal);
    ZrGeMatrix3d& setToProduct(const ZrGeMatrix3d& left, const ZrGeMatrix3d& right);

    // The columns: where the origin and the axes go.
    ZrGeMatrix3d& setCoordSystem(const ZrGePoint3d& origin, const ZrGeVector3d& xAxis, const ZrGeVector3d& yAxis,
                                 const ZrGeVector3d& zAxis);
    void getCoordSystem(ZrGePoint3d& origin, ZrGeVector3d& xAxis, ZrGeVector3d& yAxis, ZrGeVector3d& zAxis) const;
    [[nodiscard]] constexpr ZrGeVector3d translation() const { return {entry[0][3], entry[1][3], entry[2][3]}; }

    [[nodiscard]] double det() const;
    // Whether the transformed axes lie in one plane, so that there is no way back. Independent of the matrix' scale.
    [[nodiscard]] bool isSingular(const ZrGeTol& tol = ZrGeContext::gTol) const;
    // The way back. A singular matrix has none and gives the identity; ask isSingular where that can happen.
    [[nodiscard]] ZrGeMatrix3d inverse() const;
    ZrGeMatrix3d& invert() { return *this = inverse(); }

    ZrGeMatrix3d& operator*=(const ZrGeMatrix3d& right) { return setToProduct(*this, right); }
    ZrGeMatrix3d& postMultBy(const ZrGeMatrix3d& right) { return setToProduct(*this, right); }
    ZrGeMatrix3d& preMultBy(const ZrGeMatrix3d& left) { return setToProduct(left, *this); }

    double entry[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};

    static const ZrGeMatrix3d kIdentity;
};

inline constexpr ZrGeMatrix3d ZrGeMatrix3d::kIdentity{};

[[nodiscard]] inline ZrGeMatrix3d operator*(const ZrGeMatrix3d& left, const ZrGeMatrix3d& right) {
    return ZrGeMatrix3d().setToProduct(left, right);
}

// A vector is turned and scaled, not shifted.
[[nodiscard]] constexpr ZrGeVector3d operator*(const ZrGeMatrix3d& m, const ZrGeVector3d& v) {
    const auto& e = m.entry;
    return {e[0][0] * v.x + e[0][1] * v.y + e[0][2] * v.z, e[1][0] * v.x + e[1][1] * v.y + e[1][2] * v.z,
            e[2][0] * v.x + e[2][1] * v.y + e[2][2] * v.z};
}

[[nodiscard]] constexpr ZrGePoint3d operator*(const ZrGeMatrix3d& m, const ZrGePoint3d& p) {
    return ZrGePoint3d() + (m * p.asVector() + m.translation());
}
