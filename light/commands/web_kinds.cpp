#include "light/commands/web_kinds.h"

#include "light/res/load_text.h"

using quor::light::ask;
using quor::light::LightOption;
using quor::light::texts;

// The units are photometric.
bool CZrWebKindCmd::finishLight() {
    short units = 0;
    return checkLightingUnits(units);
}

ZrString& CZrWebKindCmd::defaultNamePrefix(ZrString& out) {
    return out = quor::light::LoadedText(texts.webNamePrefix).c_str();
}

// A web light is photometric: there is one question, and Photometry is always answered. Its light falls off as in
// nature, so there is no attenuation to choose.
int CZrWebKindCmd::runWebOptions(bool hasTarget) {
    static constexpr LightOption options[] = {
        {L"Name", ask<&CZrWebKindCmd::promptName>},         {L"Intensityfactor", ask<&CZrWebKindCmd::promptIntensity>},
        {L"Status", ask<&CZrWebKindCmd::promptStatus>},     {L"Photometry", ask<&CZrWebKindCmd::promptPhotometry>},
        {L"weB", ask<&CZrWebKindCmd::promptWeb>},           {L"shadoW", ask<&CZrWebKindCmd::promptShadow>},
        {L"filterColor", ask<&CZrWebKindCmd::promptColor>},
    };
    m_pLight->setHasTarget(hasTarget);
    return runOptionLoop({
        .standardPrompt = texts.webOptions,
        .photometricPrompt = texts.webOptions,
        .keywords = texts.webOptionKeywords,
        .unitsRead = quor::light::UnitsRead::Never,
        .withoutLight = quor::light::WithoutLight::EndsButForExit,
        .options = options,
    });
}
