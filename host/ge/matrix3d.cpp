// The part of the geometry that is more than a line: rotations, coordinate systems, inverses.
#include "sdk/ge/matrix3d.h"

#include <cmath>

namespace {

// Rotation by Rodrigues' formula; `axis` has length 1.
ZrGeMatrix3d rotationAboutOrigin(double angle, const ZrGeVector3d& axis) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const auto turned = [&](const ZrGeVector3d& v) {
        return v * c + axis.crossProduct(v) * s + axis * (axis.dotProduct(v) * (1 - c));
    };
    ZrGeMatrix3d result;
    result.setCoordSystem(ZrGePoint3d::kOrigin, turned(ZrGeVector3d::kXAxis), turned(ZrGeVector3d::kYAxis),
                          turned(ZrGeVector3d::kZAxis));
    return result;
}

// Carries a transformation about the origin over to another centre.
ZrGeMatrix3d aboutCenter(const ZrGeMatrix3d& aboutOrigin, const ZrGePoint3d& center) {
    ZrGeMatrix3d result = aboutOrigin;
    const ZrGeVector3d shift = center.asVector() - aboutOrigin * center.asVector();
    result(0, 3) = shift.x;
    result(1, 3) = shift.y;
    result(2, 3) = shift.z;
    return result;
}

} // namespace

bool ZrGeMatrix3d::isEqualTo(const ZrGeMatrix3d& other, const ZrGeTol& tol) const {
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            if (!(std::abs(entry[row][column] - other.entry[row][column]) <= tol.equalPoint()))
                return false;
    return true;
}

ZrGeMatrix3d& ZrGeMatrix3d::setToIdentity() { return *this = ZrGeMatrix3d(); }

ZrGeMatrix3d& ZrGeMatrix3d::setToTranslation(const ZrGeVector3d& shift) {
    return setCoordSystem(ZrGePoint3d() + shift, ZrGeVector3d::kXAxis, ZrGeVector3d::kYAxis, ZrGeVector3d::kZAxis);
}

ZrGeMatrix3d& ZrGeMatrix3d::setToRotation(double angle, const ZrGeVector3d& axis, const ZrGePoint3d& center) {
    if (axis.isZeroLength())
        return setToIdentity();
    return *this = aboutCenter(rotationAboutOrigin(angle, axis.normal()), center);
}

ZrGeMatrix3d& ZrGeMatrix3d::setToScaling(double scale, const ZrGePoint3d& center) {
    ZrGeMatrix3d scaling;
    scaling.setCoordSystem(ZrGePoint3d::kOrigin, ZrGeVector3d::kXAxis * scale, ZrGeVector3d::kYAxis * scale,
                           ZrGeVector3d::kZAxis * scale);
    return *this = aboutCenter(scaling, center);
}

ZrGeMatrix3d& ZrGeMatrix3d::setToAlignCoordSys(const ZrGePoint3d& fromOrigin, const ZrGeVector3d& fromXAxis,
                                               const ZrGeVector3d& fromYAxis, const ZrGeVector3d& fromZAxis,
                                               const ZrGePoint3d& toOrigin, const ZrGeVector3d& toXAxis,
                                               const ZrGeVector3d& toYAxis, const ZrGeVector3d& toZAxis) {
    ZrGeMatrix3d from;
    from.setCoordSystem(fromOrigin, fromXAxis, fromYAxis, fromZAxis);
    if (from.isSingular())
        return setToIdentity();
    ZrGeMatrix3d to;
    to.setCoordSystem(toOrigin, toXAxis, toYAxis, toZAxis);
    return setToProduct(to, from.inverse());
}

ZrGeMatrix3d& ZrGeMatrix3d::setToPlaneToWorld(const ZrGeVector3d& normal) {
    if (normal.isZeroLength())
        return setToIdentity();
    const ZrGeVector3d zAxis = normal.normal();
    const ZrGeVector3d xAxis = zAxis.perpVector();
    return setCoordSystem(ZrGePoint3d::kOrigin, xAxis, zAxis.crossProduct(xAxis), zAxis);
}

ZrGeMatrix3d& ZrGeMatrix3d::setToProduct(const ZrGeMatrix3d& left, const ZrGeMatrix3d& right) {
    ZrGePoint3d origin;
    ZrGeVector3d xAxis;
    ZrGeVector3d yAxis;
    ZrGeVector3d zAxis;
    right.getCoordSystem(origin, xAxis, yAxis, zAxis);
    const ZrGeMatrix3d m = left; // `left` may be this matrix
    return setCoordSystem(m * origin, m * xAxis, m * yAxis, m * zAxis);
}

ZrGeMatrix3d& ZrGeMatrix3d::setCoordSystem(const ZrGePoint3d& origin, const ZrGeVector3d& xAxis,
                                           const ZrGeVector3d& yAxis, const ZrGeVector3d& zAxis) {
    const ZrGeVector3d columns[] = {xAxis, yAxis, zAxis, origin.asVector()};
    for (int column = 0; column < 4; ++column) {
        entry[0][column] = columns[column].x;
        entry[1][column] = columns[column].y;
        entry[2][column] = columns[column].z;
        entry[3][column] = column == 3 ? 1 : 0;
    }
    return *this;
}

void ZrGeMatrix3d::getCoordSystem(ZrGePoint3d& origin, ZrGeVector3d& xAxis, ZrGeVector3d& yAxis,
                                  ZrGeVector3d& zAxis) const {
    xAxis.set(entry[0][0], entry[1][0], entry[2][0]);
    yAxis.set(entry[0][1], entry[1][1], entry[2][1]);
    zAxis.set(entry[0][2], entry[1][2], entry[2][2]);
    origin.set(entry[0][3], entry[1][3], entry[2][3]);
}

double ZrGeMatrix3d::det() const {
    ZrGePoint3d origin;
    ZrGeVector3d xAxis;
    ZrGeVector3d yAxis;
    ZrGeVector3d zAxis;
    getCoordSystem(origin, xAxis, yAxis, zAxis);
    return xAxis.dotProduct(yAxis.crossProduct(zAxis));
}

bool ZrGeMatrix3d::isSingular(const ZrGeTol& tol) const {
    ZrGePoint3d origin;
    ZrGeVector3d xAxis;
    ZrGeVector3d yAxis;
    ZrGeVector3d zAxis;
    getCoordSystem(origin, xAxis, yAxis, zAxis);
    const ZrGeTol exact(0, 0);
    const double volume = xAxis.normal(exact).dotProduct(yAxis.normal(exact).crossProduct(zAxis.normal(exact)));
    return !(std::abs(volume) > tol.equalVector());
}

ZrGeMatrix3d ZrGeMatrix3d::inverse() const {
    if (isSingular())
        return {};
    ZrGePoint3d origin;
    ZrGeVector3d xAxis;
    ZrGeVector3d yAxis;
    ZrGeVector3d zAxis;
    getCoordSystem(origin, xAxis, yAxis, zAxis);
    const double volume = det();
    // The rows of the inverse are the cross products of the columns over the volume they span.
    const ZrGeVector3d rows[] = {yAxis.crossProduct(zAxis) / volume, zAxis.crossProduct(xAxis) / volume,
                                 xAxis.crossProduct(yAxis) / volume};
    ZrGeMatrix3d result;
    for (int row = 0; row < 3; ++row) {
        result(row, 0) = rows[row].x;
        result(row, 1) = rows[row].y;
        result(row, 2) = rows[row].z;
        result(row, 3) = -rows[row].dotProduct(origin.asVector());
    }
    return result;
}
