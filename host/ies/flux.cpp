// The luminous flux by the zonal method: each cell between neighbouring angles contributes its solid angle, taken
// exactly, times the mean intensity of its four corners.
//
// With t the polar angle and p the azimuth, a cell of a sphere has the solid angle (cos t1 - cos t2)(p2 - p1). In type
// C the vertical angle is t and the horizontal one p. In types A and B one of the two is a latitude, 90 degrees minus a
// polar angle, so that its part is sin l2 - sin l1: the horizontal angle in type B, the vertical one in type A.
#include "host/ies/photometric_web.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace quor::ies {

namespace {

constexpr double kRadiansPerDegree = std::numbers::pi / 180;

double azimuth(double degrees) { return degrees * kRadiansPerDegree; }
double polar(double degrees) { return -std::cos(degrees * kRadiansPerDegree); }
double latitude(double degrees) { return std::sin(degrees * kRadiansPerDegree); }

// What an angle adds to a solid angle: the difference of this between the two sides of a cell.
using Measure = double (*)(double degrees);

struct Measures {
    Measure vertical;
    Measure horizontal;
};

Measures measuresOf(Photometry photometry) {
    switch (photometry) {
    case Photometry::B:
        return {azimuth, latitude};
    case Photometry::A:
        return {latitude, azimuth};
    case Photometry::C:
        break;
    }
    return {polar, azimuth};
}

// How much of the grid each of its lines stands for: half of the cell on either side.
std::vector<double> shares(const std::vector<double>& angles, Measure measure) {
    std::vector<double> result(angles.size(), 0);
    for (std::size_t i = 1; i < angles.size(); ++i) {
        const double half = (measure(angles[i]) - measure(angles[i - 1])) / 2;
        result[i - 1] += half;
        result[i] += half;
    }
    return result;
}

// How many times the given planes stand around the luminaire.
double copies(Symmetry symmetry) {
    switch (symmetry) {
    case Symmetry::Quadrants:
        return 4;
    case Symmetry::Mirror0_180:
    case Symmetry::Mirror90_270:
    case Symmetry::MirrorAtZero:
        return 2;
    case Symmetry::Axial:
    case Symmetry::None:
        break;
    }
    return 1;
}

} // namespace

double luminousFlux(const PhotometricWeb& web) {
    const Measures measures = measuresOf(web.photometry);
    const std::vector<double> rows = shares(web.vertical, measures.vertical);
    const std::vector<double> planes = web.symmetry == Symmetry::Axial ? std::vector<double>{2 * std::numbers::pi}
                                                                       : shares(web.horizontal, measures.horizontal);
    double flux = 0;
    for (std::size_t plane = 0; plane < planes.size(); ++plane) {
        double zonal = 0;
        for (std::size_t row = 0; row < rows.size(); ++row)
            zonal += web.at(plane, row) * rows[row];
        flux += zonal * planes[plane];
    }
    return flux * copies(web.symmetry);
}

} // namespace quor::ies
