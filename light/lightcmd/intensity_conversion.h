// What the prompts do with a photometric intensity beyond its conversion: what they show, and what they accept.
#pragma once

#include "sdk/gi/photometric_intensity.h"

namespace quor::light {

// The illuminance that its question shows. In foot-candle the distance counts as millimetres whatever the drawing's
// unit is; so it is not what convertIntensity() answers, except in a drawing in millimetres.
[[nodiscard]] double shownIlluminance(const PhotometricIntensity& intensity);

// What a light gets for a number of candela that was entered: from 0 to 10,000,000 the number itself, else 1500.
[[nodiscard]] double acceptedCandela(double entered);

} // namespace quor::light
