#include "sdk/gi/photometric_intensity.h"

#include "sdk/db/units.h"
#include "sdk/sys/ads.h"

#include <numbers>

namespace quor {

namespace {

constexpr double square(double x) { return x * x; }

// Solid angles in steradian: all around, and the one that stands for every spot light, whatever its own hotspot and
// falloff are.
constexpr double wholeSphere = 4 * std::numbers::pi;
constexpr double spotCone = 0.3973980687964644;

constexpr double squareMillimetresPerSquareFoot = 92903.04;
constexpr double squareMillimetresPerSquareMetre = 1000000.0;

// The square millimetres that a unit of illuminance refers to.
double referenceArea(int lightingUnits) {
    return lightingUnits == footCandles ? squareMillimetresPerSquareFoot : squareMillimetresPerSquareMetre;
}

constexpr int millimetres = 4; // a value of INSUNITS

double squareMillimetresPerSquareUnit(const PhotometricIntensity& intensity) {
    return square(1 / intensity.unitsPerMillimetre);
}

double solidAngle(const PhotometricIntensity& intensity) { return intensity.isSpot ? spotCone : wholeSphere; }

double candelaOfIlluminance(const PhotometricIntensity& intensity) {
    double value = intensity.value;
    if (isPhotometric(intensity.lightingUnits))
        value = value / referenceArea(intensity.lightingUnits) * square(intensity.distance);
    return value * squareMillimetresPerSquareUnit(intensity);
}

double illuminanceOfCandela(double candela, const PhotometricIntensity& intensity) {
    if (isPhotometric(intensity.lightingUnits))
        candela = candela * referenceArea(intensity.lightingUnits) / square(intensity.distance);
    return candela / squareMillimetresPerSquareUnit(intensity);
}

double candelaOf(const PhotometricIntensity& intensity) {
    switch (intensity.method) {
    case PhysicalIntensityMethod::kFlux:
        return intensity.value / solidAngle(intensity);
    case PhysicalIntensityMethod::kIlluminance:
        return candelaOfIlluminance(intensity);
    case PhysicalIntensityMethod::kPeakIntensity:
        break;
    }
    return intensity.value;
}

} // namespace

PhotometricUnits photometricUnits() {
    short lightingUnits = 0;
    zwutads::getVar(L"LIGHTINGUNITS", lightingUnits);
    short insertionUnits = 0;
    zwutads::getVar(L"INSUNITS", insertionUnits);
    PhotometricUnits units{.lightingUnits = lightingUnits};
    zredGetUnitsConversion(millimetres, insertionUnits, units.unitsPerMillimetre);
    return units;
}

PhotometricIntensity photometricIntensityOf(const ZrDbLight& light, const PhotometricUnits& units) {
    return {.value = light.physicalIntensity(),
            .method = light.physicalIntensityMethod(),
            .distance = light.illuminanceDistance(),
            .isSpot = light.lightType() == DrawableType::kSpotLight,
            .lightingUnits = units.lightingUnits,
            .unitsPerMillimetre = units.unitsPerMillimetre};
}

double convertIntensity(const PhotometricIntensity& intensity, PhysicalIntensityMethod target) {
    const double candela = candelaOf(intensity);
    switch (target) {
    case PhysicalIntensityMethod::kFlux:
        return candela * solidAngle(intensity);
    case PhysicalIntensityMethod::kIlluminance:
        return illuminanceOfCandela(candela, intensity);
    case PhysicalIntensityMethod::kPeakIntensity:
        break;
    }
    return candela;
}

} // namespace quor
