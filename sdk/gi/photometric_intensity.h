// A light's photometric intensity in each of its three measures: peak intensity in candela, luminous flux in lumen,
// illuminance at a distance in foot-candle or lux.
#pragma once

#include "sdk/db/light.h"

namespace quor {

// Values of LIGHTINGUNITS with a unit of illuminance: a lumen on a square foot, a lumen on a square metre.
inline constexpr int footCandles = 1;
inline constexpr int lux = 2;

// Whether a value of LIGHTINGUNITS has a unit of illuminance. Without one, in generic lighting, the photometric values
// of lights have no effect.
[[nodiscard]] constexpr bool isPhotometric(int lightingUnits) {
    return lightingUnits == footCandles || lightingUnits == lux;
}

// What the photometric measures depend on in a drawing.
struct PhotometricUnits {
    int lightingUnits = lux;       // LIGHTINGUNITS
    double unitsPerMillimetre = 1; // drawing units; 1 in a unitless drawing
};

// Those of the current drawing, from LIGHTINGUNITS and INSUNITS.
[[nodiscard]] PhotometricUnits photometricUnits();

// A light's intensity, and what its measures depend on.
struct PhotometricIntensity {
    double value = 0; // in the unit of the method
    PhysicalIntensityMethod method = PhysicalIntensityMethod::kPeakIntensity;
    double distance = 1; // at which the illuminance is measured, in drawing units
    bool isSpot = false;
    int lightingUnits = lux;       // LIGHTINGUNITS
    double unitsPerMillimetre = 1; // drawing units
};

// The intensity that a light has in a drawing of these units.
[[nodiscard]] PhotometricIntensity photometricIntensityOf(const ZrDbLight& light, const PhotometricUnits& units);

// The intensity in the unit of another method. No finite number where it has none: there is no illuminance at distance
// 0.
[[nodiscard]] double convertIntensity(const PhotometricIntensity& intensity, PhysicalIntensityMethod target);

} // namespace quor
