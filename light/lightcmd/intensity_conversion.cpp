#include "light/lightcmd/intensity_conversion.h"

namespace quor::light {

namespace {

constexpr double maxCandela = 10000000.0;
constexpr double candelaOutOfRange = 1500.0;

} // namespace

double shownIlluminance(const PhotometricIntensity& intensity) {
    PhotometricIntensity shown = intensity;
    shown.value = convertIntensity(intensity, PhysicalIntensityMethod::kPeakIntensity);
    shown.method = PhysicalIntensityMethod::kPeakIntensity;
    if (shown.lightingUnits == footCandles)
        shown.unitsPerMillimetre = 1;
    return convertIntensity(shown, PhysicalIntensityMethod::kIlluminance);
}

double acceptedCandela(double entered) { return entered >= 0 && entered <= maxCandela ? entered : candelaOutOfRange; }

} // namespace quor::light
