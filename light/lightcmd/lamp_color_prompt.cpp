// The lamp colour: a preset or a colour temperature.
#include "light/lightcmd/lamp_presets.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/real_question.h"
#include "light/lightcmd/replies.h"
#include "sdk/ed/print.h"
#include "sdk/sys/case_fold.h"

#include <optional>

using quor::equalFolded;
using quor::light::LoadedText;
using quor::light::texts;

namespace {

constexpr int noPreset = -1; // what setLampColorPresetByName() answers when it sets none

// How the question for the colour ends; nothing when it is asked again.
using End = std::optional<int>;

// The light takes its colour from the temperature from here on, also when none is entered. A temperature out of the
// light's bounds is not set and yet shown as the default the next time.
End askKelvin(ZrDbLight& light, double& shownTemperature) {
    light.setLampColorType(LampColorType::kKelvin);
    double temperature = shownTemperature;
    if (quor::light::askReal(texts.kelvinPrompt, temperature) != RTNORM)
        return RTCAN;
    const Quor::ErrorStatus status = light.setLampColorTemp(temperature);
    if (status != Quor::eOk && status != Quor::eInvalidInput)
        return std::nullopt;
    shownTemperature = temperature;
    return status == Quor::eOk ? RTNORM : RTCAN;
}

// Only whole names are found, as they are written, without the abbreviation behind them.
void listPresets(const ZrString& name) {
    if (name.empty() || name == L"*") {
        const LoadedText heading(texts.lampListHeading);
        const LoadedText body(texts.lampListBody);
        zredPromptF(L"%s%s", heading.c_str(), body.c_str());
    } else if (const quor::light::LampPreset* preset = quor::light::findPresetByName(name)) {
        zredPromptF(L"%s", displayName(*preset));
    } else {
        const LoadedText isNoPreset(texts.notAPresetColor);
        zrutPrintf(L"\n%s%s", name, isNoPreset.c_str());
    }
}

End askForList() {
    const LoadedText prompt(texts.lampListPrompt);
    zredInitGet(0, nullptr);
    ZrString name;
    const int result = quor::light::askWord(prompt.c_str(), name);
    if (result == RTCAN)
        return RTCAN;
    if (result == RTNORM || result == RTNONE)
        listPresets(name);
    return std::nullopt;
}

} // namespace

// The light takes its colour from a preset from here on, also when none is chosen.
int CZrMultiLight::promptLampColor() {
    if (m_pLight == nullptr)
        return RTERROR;
    m_pLight->setLampColorType(LampColorType::kPreset);
    const ZrString prompt =
        LoadedText(texts.lampColorPrompt).str() + quor::light::displayName(m_pLight->lampColorPreset()) + L">: ";
    const LoadedText keywords(texts.lampColorKeywords);
    End end;
    while (!end) {
        ZrString reply;
        const int result = quor::light::askKeywordOrText(prompt.c_str(), keywords.c_str(), reply);
        if (result != RTNORM)
            end = result;
        else if (equalFolded(reply, L"Kelvin"))
            end = askKelvin(*m_pLight, m_lampColorTemp);
        else if (equalFolded(reply, L"?"))
            end = askForList();
        else if (setLampColorPresetByName(reply.c_str()) == Quor::eOk)
            end = RTNORM;
    }
    return *end;
}

int CZrMultiLight::setLampColorPresetByName(const wchar_t* name) {
    if (m_pLight == nullptr || m_pLight->setLampColorType(LampColorType::kPreset) != Quor::eOk)
        return noPreset;
    if (const quor::light::LampPreset* preset = quor::light::findPresetByKeyword(name))
        return m_pLight->setLampColorPreset(preset->value);
    const LoadedText isNoPreset(texts.notAPresetColor);
    zrutPrintf(L"%s%s", name, isNoPreset.c_str());
    return noPreset;
}
