#include "host/commands/ucs_math.h"

namespace quor::commands {

namespace {

std::optional<db::Ucs> fromXandZ(const ZrGePoint3d& origin, const ZrGeVector3d& x, const ZrGeVector3d& z) {
    if (x.isZeroLength() || z.isZeroLength())
        return std::nullopt;
    db::Ucs ucs;
    ucs.origin = origin;
    ucs.xAxis = x.normal();
    ucs.yAxis = z.normal().crossProduct(ucs.xAxis).normal();
    return ucs;
}

} // namespace

ZrGeVector3d zAxisOf(const db::Ucs& ucs) { return ucs.xAxis.crossProduct(ucs.yAxis).normal(); }

bool sameUcs(const db::Ucs& a, const db::Ucs& b) {
    return a.origin.isEqualTo(b.origin) && a.xAxis.isEqualTo(b.xAxis) && a.yAxis.isEqualTo(b.yAxis);
}

ZrGeMatrix3d worldFromUcs(const db::Ucs& ucs) {
    return ZrGeMatrix3d().setCoordSystem(ucs.origin, ucs.xAxis, ucs.yAxis, zAxisOf(ucs));
}

db::Ucs movedUcs(const db::Ucs& ucs, const ZrGePoint3d& origin) {
    db::Ucs moved{origin, ucs.xAxis, ucs.yAxis, {}};
    return moved;
}

std::optional<db::Ucs> ucsTowards(const db::Ucs& ucs, const ZrGePoint3d& origin, const ZrGePoint3d& onX) {
    const ZrGeVector3d x = (onX - origin).normal();
    const ZrGeVector3d z = zAxisOf(ucs);
    const ZrGeVector3d upright = z - x * z.dotProduct(x);
    return fromXandZ(origin, x, upright.isZeroLength() ? x.perpVector() : upright);
}

std::optional<db::Ucs> ucsThrough(const ZrGePoint3d& origin, const ZrGePoint3d& onX, const ZrGePoint3d& onXy) {
    const ZrGeVector3d x = (onX - origin).normal();
    return fromXandZ(origin, x, x.crossProduct((onXy - origin).normal()));
}

std::optional<db::Ucs> ucsAlongZ(const ZrGePoint3d& origin, const ZrGePoint3d& onZ) {
    const ZrGeVector3d z = (onZ - origin).normal();
    return fromXandZ(origin, z.perpVector(), z);
}

db::Ucs rotatedUcs(const db::Ucs& ucs, wchar_t axis, double angle) {
    const ZrGeVector3d about = axis == L'X' ? ucs.xAxis : axis == L'Y' ? ucs.yAxis : zAxisOf(ucs);
    db::Ucs turned{ucs.origin, ucs.xAxis, ucs.yAxis, {}};
    turned.xAxis.rotateBy(angle, about).normalize();
    turned.yAxis.rotateBy(angle, about).normalize();
    return turned;
}

} // namespace quor::commands
