#include "light/lightcmd/option_loop.h"

#include "light/lightcmd/find_row.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/case_fold.h"

using quor::light::ask;
using quor::light::LightOption;
using quor::light::LoadedText;
using quor::light::OptionLoop;
using quor::light::UnitsRead;
using quor::light::WithoutLight;

namespace {

constexpr short photometric = 2; // a value of LIGHTINGUNITS

const LightOption* findOption(const OptionLoop& loop, const ZrString& keyword) {
    const auto isAsked = [&](const LightOption& option) { return quor::equalFolded(option.keyword, keyword); };
    const LightOption* option = quor::light::findRow(loop.options, isAsked);
    return option != nullptr ? option : quor::light::findRow(loop.ownOptions, isAsked);
}

enum class Next { Ask, Leave, End };

// What follows a keyword when the light is gone; `usual` is what would follow it otherwise.
Next nextWithoutLight(WithoutLight rule, Next usual) {
    switch (rule) {
    case WithoutLight::EndsAtOnce:
        return Next::End;
    case WithoutLight::EndsButForExit:
        return usual == Next::Leave ? Next::Leave : Next::End;
    case WithoutLight::LeavesTheLoop:
        return Next::Leave;
    case WithoutLight::IsIgnored:
        break;
    }
    return usual;
}

} // namespace

std::span<const LightOption> CZrMultiLight::usualOptions() {
    static constexpr LightOption options[] = {
        {L"Name", ask<&CZrMultiLight::promptName>},     {L"Intensity", ask<&CZrMultiLight::promptIntensity>},
        {L"Status", ask<&CZrMultiLight::promptStatus>}, {L"Photometry", ask<&CZrMultiLight::promptPhotometry>, true},
        {L"shadoW", ask<&CZrMultiLight::promptShadow>}, {L"Attenuation", ask<&CZrMultiLight::promptAttenuation>},
        {L"Color", ask<&CZrMultiLight::promptColor>},   {L"filterColor", ask<&CZrMultiLight::promptColor>},
    };
    return options;
}

// Esc answers RTCAN at once; Enter and eXit name the light and answer RTNORM, or RTERROR when it refuses its name.
int CZrMultiLight::runOptionLoop(const OptionLoop& loop) {
    const LoadedText standardPrompt(loop.standardPrompt);
    const LoadedText photometricPrompt(loop.photometricPrompt);
    const LoadedText keywords(loop.keywords);
    short units = photometric;
    if (loop.unitsRead == UnitsRead::OnceAtTheStart)
        zwutads::getVar(L"LIGHTINGUNITS", units);
    for (;;) {
        zredInitGet(0, keywords.c_str());
        if (loop.unitsRead == UnitsRead::OnEveryPass)
            zwutads::getVar(L"LIGHTINGUNITS", units);
        ZrString keyword;
        const int result =
            quor::light::askKeyword(units != 0 ? photometricPrompt.c_str() : standardPrompt.c_str(), keyword);
        if (result == RTCAN)
            return RTCAN;
        if (result == RTNONE)
            break;
        if (result != RTNORM)
            continue;
        const Next usual = quor::equalFolded(keyword, L"eXit") ? Next::Leave : Next::Ask;
        const Next next = m_pLight != nullptr ? usual : nextWithoutLight(loop.withoutLight, usual);
        if (next == Next::End)
            return RTNORM;
        if (next == Next::Leave)
            break;
        const LightOption* option = findOption(loop, keyword);
        if (option != nullptr && (units != 0 || !option->photometricOnly))
            option->ask(*this);
    }
    return applyName() ? RTNORM : RTERROR;
}
