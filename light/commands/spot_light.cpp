#include "light/commands/spot_light.h"

#include "light/commands/cone_angle.h"
#include "light/commands/light_jig.h"
#include "light/lightcmd/real_question.h"

using quor::light::askUntilDone;
using quor::light::LightOption;
using quor::light::texts;
using quor::light::toDegrees;
using quor::light::toRadians;

namespace {

// Below this falloff, in degrees, the hotspot follows it one degree inside.
constexpr double followedFalloff = 46;

bool isConeAngle(double degrees) {
    const bool isInRange = degrees >= 0 && degrees <= quor::light::largestCone;
    if (!isInRange)
        quor::light::printText(texts.angleOutOfRange);
    return isInRange;
}

} // namespace

ZrString& CZrSpotLightCmd::defaultNamePrefix(ZrString& out) {
    return out = quor::light::LoadedText(texts.spotNamePrefix).c_str();
}

bool CZrSpotLightCmd::placeLight() {
    m_pLight->setLightType(DrawableType::kSpotLight);
    CZrLightJig jig(m_pLight, L"SpotLight");
    return jig.dragSource() && jig.dragTarget();
}

int CZrSpotLightCmd::optionLoop() {
    static constexpr LightOption cone[] = {
        {L"Hotspot", askUntilDone<&CZrSpotLightCmd::promptHotspot>},
        {L"Falloff", askUntilDone<&CZrSpotLightCmd::promptFalloff>},
    };
    m_pLight->setHasTarget(true);
    return runOptionLoop({
        .standardPrompt = texts.spotOptions,
        .photometricPrompt = texts.spotPhotometricOptions,
        .keywords = texts.spotOptionKeywords,
        .unitsRead = quor::light::UnitsRead::OnceAtTheStart,
        .withoutLight = quor::light::WithoutLight::EndsAtOnce,
        .options = usualOptions(),
        .ownOptions = cone,
    });
}

bool CZrSpotLightCmd::promptHotspot() {
    if (m_pLight == nullptr)
        return false;
    double hotspot = toDegrees(m_pLight->hotspotAngle());
    if (quor::light::askReal(texts.hotspotPrompt, hotspot) != RTNORM)
        return true;
    return isConeAngle(hotspot) &&
           m_pLight->setHotspotAndFalloff(toRadians(hotspot), m_pLight->falloffAngle()) == Quor::eOk;
}

// The hotspot gives way to the falloff: below 46 degrees it becomes one degree less; from there on its radians are
// taken for degrees, which leaves hardly any of it.
bool CZrSpotLightCmd::promptFalloff() {
    if (m_pLight == nullptr)
        return false;
    const ZrString prompt = quor::light::withAngle(texts.falloffPrompt, m_pLight->falloffAngle());
    double falloff = 0; // degrees
    zredInitGet(RSG_NONEG, nullptr);
    if (zredGetReal(prompt.c_str(), falloff) != RTNORM)
        return true;
    if (!isConeAngle(falloff))
        return false;
    const double hotspot = toRadians(falloff < followedFalloff ? falloff - 1 : m_pLight->hotspotAngle());
    return m_pLight->setHotspotAndFalloff(hotspot, toRadians(falloff)) == Quor::eOk;
}
