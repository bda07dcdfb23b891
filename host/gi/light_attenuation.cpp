#include "sdk/gi/light_attenuation.h"

#include <cmath>

bool ZrGiLightAttenuation::setAttenuationType(AttenuationType type) {
    if (type < kNone || type > kInverseSquare)
        return false;
    type_ = type;
    return true;
}

bool ZrGiLightAttenuation::setLimits(double start, double end) {
    if (!std::isfinite(start) || !std::isfinite(end) || start < 0 || end < 0)
        return false;
    start_ = start;
    end_ = end;
    return true;
}
