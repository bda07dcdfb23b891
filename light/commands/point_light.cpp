#include "light/commands/point_light.h"

#include "light/commands/light_jig.h"
#include "light/res/load_text.h"

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
    m_pLight->setHasTarget(false);
    return runOptionLoop({
        .standardPrompt = texts.pointOptions,
        .photometricPrompt = texts.pointPhotometricOptions,
        .keywords = texts.pointOptionKeywords,
        .unitsRead = quor::light::UnitsRead::OnEveryPass,
        .withoutLight = quor::light::WithoutLight::EndsAtOnce,
        .options = usualOptions(),
    });
}
