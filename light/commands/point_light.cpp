#include "light/commands/point_light.h"

#include "light/commands/light_jig.h"
#include "light/res/load_text.h"

using quor::light::ask;
using quor::light::LightOption;
using quor::light::texts;

ZrString& CZrPointLightCmd::defaultNamePrefix(ZrString& out) {
    return out = quor::light::LoadedText(texts.pointNamePrefix).c_str();
}

bool CZrPointLightCmd::placeLight() {
    CZrLightJig jig(m_pLight, L"PointLight");
    m_pLight->setLightType(DrawableType::kPointLight);
    return jig.dragSource();
}

// The keyword list holds Hotspot and Falloff too, which a point light does not have: they are taken and do nothing.
int CZrPointLightCmd::optionLoop() {
    static constexpr LightOption options[] = {
        {L"Name", ask<&CZrPointLightCmd::promptName>},
        {L"Intensity", ask<&CZrPointLightCmd::promptIntensity>},
        {L"Status", ask<&CZrPointLightCmd::promptStatus>},
        {L"Photometry", ask<&CZrPointLightCmd::promptPhotometry>, true},
        {L"shadoW", ask<&CZrPointLightCmd::promptShadow>},
        {L"Attenuation", ask<&CZrPointLightCmd::promptAttenuation>},
        {L"Color", ask<&CZrPointLightCmd::promptColor>},
        {L"filterColor", ask<&CZrPointLightCmd::promptColor>},
    };
    m_pLight->setHasTarget(false);
    return runOptionLoop({
        .standardPrompt = texts.pointOptions,
        .photometricPrompt = texts.pointPhotometricOptions,
        .keywords = texts.pointOptionKeywords,
        .unitsRead = quor::light::UnitsRead::OnEveryPass,
        .withoutLight = quor::light::WithoutLight::EndsAtOnce,
        .options = options,
    });
}
