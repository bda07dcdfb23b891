#include "sdk/gi/shadow_parameters.h"

#include <bit>
#include <cmath>

namespace {

bool setSize(double& member, double size) {
    if (!std::isfinite(size) || size < 0)
        return false;
    member = size;
    return true;
}

} // namespace

bool ZrGiShadowParameters::setShadowType(ShadowType type) {
    if (type < kShadowsRayTraced || type > kAreaSampled)
        return false;
    type_ = type;
    return true;
}

bool ZrGiShadowParameters::setShadowMapSize(std::uint16_t size) {
    if (size < 64 || size > 4096 || !std::has_single_bit(size))
        return false;
    mapSize_ = size;
    return true;
}

bool ZrGiShadowParameters::setShadowMapSoftness(std::uint8_t softness) {
    if (softness < 1 || softness > 10)
        return false;
    softness_ = softness;
    return true;
}

bool ZrGiShadowParameters::setShadowSamples(std::uint16_t samples) {
    if (samples > 1024)
        return false;
    samples_ = samples;
    return true;
}

bool ZrGiShadowParameters::setExtendedLightShape(ExtendedLightShape shape) {
    if (shape < kLinear || shape > kSphere)
        return false;
    shape_ = shape;
    return true;
}

bool ZrGiShadowParameters::setExtendedLightLength(double length) { return setSize(length_, length); }
bool ZrGiShadowParameters::setExtendedLightWidth(double width) { return setSize(width_, width); }
bool ZrGiShadowParameters::setExtendedLightRadius(double radius) { return setSize(radius_, radius); }
