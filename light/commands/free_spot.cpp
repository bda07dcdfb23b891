#include "light/commands/free_spot.h"

#include "light/commands/cone_angle.h"
#include "light/commands/light_jig.h"
#include "light/lightcmd/real_question.h"

using quor::light::ask;
using quor::light::LightOption;
using quor::light::texts;
using quor::light::toDegrees;
using quor::light::toRadians;

namespace {

// An angle loses less than this, in degrees, when it is turned into radians and back.
constexpr double roundingOfAngles = 1e-9;

// Asks until the angle is in range, with a word about one that is not. False when the question was left.
bool askConeAngle(const ZrString& prompt, double& degrees) {
    for (;;) {
        zredInitGet(RSG_NONEG, nullptr);
        if (zredGetReal(prompt.c_str(), degrees) != RTNORM)
            return false;
        if (degrees < 0)
            quor::light::printText(texts.mustBePositive);
        else if (degrees > quor::light::largestCone)
            quor::light::printText(texts.angleOutOfRange);
        else
            return true;
    }
}

} // namespace

ZrString& CZrFreeSpotCmd::defaultNamePrefix(ZrString& out) {
    return out = quor::light::LoadedText(texts.freeSpotNamePrefix).c_str();
}

bool CZrFreeSpotCmd::placeLight() {
    CZrLightJig jig(m_pLight, L"FreeSpot");
    m_pLight->setLightType(DrawableType::kSpotLight);
    return jig.dragSource();
}

int CZrFreeSpotCmd::optionLoop() {
    static constexpr LightOption cone[] = {
        {L"Hotspot", ask<&CZrFreeSpotCmd::promptHotspot>},
        {L"Falloff", ask<&CZrFreeSpotCmd::promptFalloff>},
    };
    m_pLight->setHasTarget(false);
    return runOptionLoop({
        .standardPrompt = texts.freeSpotOptions,
        .photometricPrompt = texts.freeSpotPhotometricOptions,
        .keywords = texts.freeSpotOptionKeywords,
        .unitsRead = quor::light::UnitsRead::OnceAtTheStart,
        .withoutLight = quor::light::WithoutLight::EndsAtOnce,
        .options = usualOptions(),
        .ownOptions = cone,
    });
}

bool CZrFreeSpotCmd::promptHotspot() {
    if (m_pLight == nullptr)
        return false;
    double hotspot = toDegrees(m_pLight->hotspotAngle());
    return askConeAngle(quor::light::withNumber(texts.freeSpotHotspotPrompt, hotspot), hotspot) &&
           m_pLight->setHotspotAndFalloff(toRadians(hotspot), m_pLight->falloffAngle()) == Quor::eOk;
}

// A hotspot that would not be inside the new falloff goes one degree inside it.
bool CZrFreeSpotCmd::promptFalloff() {
    if (m_pLight == nullptr)
        return false;
    double falloff = 0; // degrees
    if (!askConeAngle(quor::light::withAngle(texts.freeSpotFalloffPrompt, m_pLight->falloffAngle()), falloff))
        return false;
    const double current = m_pLight->hotspotAngle();
    const bool isInside = toDegrees(current) < falloff - roundingOfAngles;
    const double hotspot = isInside ? current : toRadians(falloff - 1);
    return m_pLight->setHotspotAndFalloff(hotspot, toRadians(falloff)) == Quor::eOk;
}
