// The shape of the luminous opening, which a web file tells by the signs of its three sizes.
#pragma once

#include "host/ies/photometric_web.h"

#include <cstdint>
#include <vector>

namespace quor::ies {

enum class OpeningShape : std::uint8_t {
    Unknown, // the edition of the file has no such shape
    Point,
    Rectangle,
    Box,
    Disc,
    UprightDisc,
    Ellipse,
    Cylinder, // with a vertical axis
    EllipticalCylinder,
    CylinderAlong,  // with a horizontal axis along the luminaire
    CylinderAcross, // and across it
    Sphere,
    Ellipsoid,
};

struct Opening {
    OpeningShape shape = OpeningShape::Unknown;
    // Not negative, in the unit of the file: of a rectangle, an ellipse, a box, an elliptical cylinder and an ellipsoid
    // width, length and (the last three) height; of a disc and a sphere the diameter; of a cylinder the diameter and
    // the length of its axis; nothing for a point. Of an unknown shape the three numbers of the file as they are.
    std::vector<double> sizes;
};

[[nodiscard]] Opening openingOf(const PhotometricWeb& web);

} // namespace quor::ies
