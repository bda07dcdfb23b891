#include "light/commands/target_point.h"

#include "light/commands/light_jig.h"
#include "light/res/load_text.h"

using quor::light::texts;

ZrString& CZrTargetPointCmd::defaultNamePrefix(ZrString& out) {
    return out = quor::light::LoadedText(texts.targetPointNamePrefix).c_str();
}

bool CZrTargetPointCmd::placeLight() {
    CZrLightJig jig(m_pLight, L"TargetPoint");
    m_pLight->setLightType(DrawableType::kPointLight);
    return jig.dragSource() && jig.dragTarget();
}

// As the point light's, Hotspot and Falloff included, but a light that is gone does not end it.
int CZrTargetPointCmd::optionLoop() {
    m_pLight->setHasTarget(true);
    return runOptionLoop({
        .standardPrompt = texts.targetPointOptions,
        .photometricPrompt = texts.targetPointPhotometricOptions,
        .keywords = texts.targetPointOptionKeywords,
        .unitsRead = quor::light::UnitsRead::OnEveryPass,
        .withoutLight = quor::light::WithoutLight::IsIgnored,
        .options = usualOptions(),
    });
}
