#include "host/gs/web_directions.h"

#include "host/db/data.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quor::gs {

ZrGeVector3d webDirection(ies::Photometry photometry, double horizontal, double vertical) {
    const double h = horizontal * db::kDegree;
    const double v = vertical * db::kDegree;
    switch (photometry) {
    case ies::Photometry::B:
        return {std::sin(v), std::cos(v) * std::sin(h), -std::cos(v) * std::cos(h)};
    case ies::Photometry::A:
        return {std::cos(v) * std::sin(h), std::sin(v), -std::cos(v) * std::cos(h)};
    case ies::Photometry::C:
        break;
    }
    return {std::sin(v) * std::cos(h), std::sin(v) * std::sin(h), -std::cos(v)};
}

WebAngles webAngles(ies::Photometry photometry, const ZrGeVector3d& direction) {
    const auto degrees = [](double radians) { return radians / db::kDegree; };
    const auto& [x, y, z] = direction;
    switch (photometry) {
    case ies::Photometry::B:
        return {degrees(std::atan2(y, -z)), degrees(std::asin(std::clamp(x, -1.0, 1.0)))};
    case ies::Photometry::A:
        return {degrees(std::atan2(x, -z)), degrees(std::asin(std::clamp(y, -1.0, 1.0)))};
    case ies::Photometry::C:
        break;
    }
    const double turn = degrees(std::atan2(y, x));
    return {turn < 0 ? turn + 360 : turn, degrees(std::acos(std::clamp(-z, -1.0, 1.0)))};
}

ZrGeMatrix3d webPlacement(const ZrGePoint3d& position, const ZrGeVector3d& along, const ZrGeVector3d& rotation) {
    const ZrGeVector3d across = along.perpVector();
    ZrGeMatrix3d placement;
    placement.setCoordSystem(position, -across, along.crossProduct(across), -along);
    const std::array<std::pair<double, ZrGeVector3d>, 3> turns{std::pair{rotation.z, ZrGeVector3d::kZAxis},
                                                               std::pair{rotation.y, ZrGeVector3d::kYAxis},
                                                               std::pair{rotation.x, ZrGeVector3d::kXAxis}};
    for (const auto& [degrees, axis] : turns)
        placement *= ZrGeMatrix3d().setToRotation(degrees * db::kDegree, axis);
    return placement;
}

} // namespace quor::gs
