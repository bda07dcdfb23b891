#include "light/commands/distant_light.h"

#include "light/commands/distant_dialog.h"
#include "light/lightcmd/intensity_conversion.h"
#include "light/lightcmd/real_question.h"
#include "light/lightcmd/replies.h"

using quor::light::texts;

ZrString& CZrDistantLightCmd::defaultNamePrefix(ZrString& out) {
    return out = quor::light::LoadedText(texts.distantNamePrefix).c_str();
}

bool CZrDistantLightCmd::placeLight() {
    m_pLight->setLightType(DrawableType::kDistantLight);
    return quor::light::askDistantLightsAllowed(s_calledFromScript) && promptDistantDirection() == RTNORM;
}

// The keyword list has no Attenuation; a translated one that adds it gets it.
int CZrDistantLightCmd::optionLoop() {
    m_pLight->setHasTarget(true);
    return runOptionLoop({
        .standardPrompt = texts.distantOptions,
        .photometricPrompt = texts.distantPhotometricOptions,
        .keywords = texts.distantOptionKeywords,
        .unitsRead = quor::light::UnitsRead::OnceAtTheStart,
        .withoutLight = quor::light::WithoutLight::LeavesTheLoop,
        .options = usualOptions(),
    });
}

// The number that was entered is what the question shows next, also where the light gets another one.
int CZrDistantLightCmd::promptPhotometricIntensity() {
    if (m_pLight == nullptr)
        return RTERROR;
    const ZrString prompt = quor::light::withNumber(texts.distantCandelaPrompt, m_physicalIntensity);
    ZrString reply;
    do {
        if (quor::light::askKeywordOrText(prompt.c_str(), nullptr, reply) != RTNORM)
            return RTERROR;
    } while (zrdbDisToF(reply.c_str(), quor::light::decimalUnits, m_physicalIntensity) != RTNORM);
    m_pLight->setPhysicalIntensityMethod(PhysicalIntensityMethod::kPeakIntensity);
    m_pLight->setPhysicalIntensity(quor::light::acceptedCandela(m_physicalIntensity));
    return RTNORM;
}
