// The Attenuation option: a menu of how the light falls off with the distance, and of the limits of its reach.
#include "light/lightcmd/keyword_question.h"
#include "light/lightcmd/multi_light.h"
#include "sdk/db/units.h"
#include "sdk/sys/case_fold.h"

#include <algorithm>
#include <iterator>

using quor::equalFolded;
using quor::light::LoadedText;
using quor::light::Text;
using quor::light::texts;

namespace {

constexpr int drawingUnits = -1;
constexpr int drawingPrecision = -1;

struct AttenuationKind {
    ZrGiLightAttenuation::AttenuationType type;
    const wchar_t* keyword;
    const Text& shown;
};

constexpr AttenuationKind attenuationKinds[] = {
    {ZrGiLightAttenuation::kNone, L"None", texts.attenuationNone},
    {ZrGiLightAttenuation::kInverseLinear, L"Inverse", texts.attenuationInverseLinear},
    {ZrGiLightAttenuation::kInverseSquare, L"Squared", texts.attenuationInverseSquare},
};

template <class Predicate>
const AttenuationKind* findKind(Predicate matches) {
    const auto* const found = std::find_if(std::begin(attenuationKinds), std::end(attenuationKinds), matches);
    return found == std::end(attenuationKinds) ? nullptr : found;
}

ZrGiLightAttenuation attenuationOf(const ZrDbLight* light) {
    return light != nullptr ? light->lightAttenuation() : ZrGiLightAttenuation();
}

void writeAttenuation(ZrDbLight* light, const ZrGiLightAttenuation& attenuation) {
    if (light != nullptr)
        light->setLightAttenuation(attenuation);
}

// Enter, Esc and broken input leave a sub-prompt; a reply that is too long does not.
bool leaves(int result) { return result == RTNONE || result == RTCAN || result == RTERROR; }

// Whether a limit was entered.
bool askLimit(const Text& text, double& limit) {
    ZrString shown;
    zrdbRToS(limit, drawingUnits, drawingPrecision, shown);
    const ZrString prompt = zrFormat(LoadedText(text).c_str(), {shown});
    zredInitGet(RSG_NONEG, nullptr);
    return zredGetReal(prompt.c_str(), limit) == RTNORM;
}

} // namespace

// The limits are edited in a copy of the record that is taken when the menu opens, and the whole copy is written with
// each of them. So a limit takes back the type and the use of limits that were set before it in the same visit; what an
// earlier visit set is in the copy and stays. A start limit beyond the end limit is the user's affair.
int CZrMultiLight::promptAttenuation() {
    ZrGiLightAttenuation opened = attenuationOf(m_pLight);
    const LoadedText shown(texts.attenuationMenuDefault);
    for (;;) {
        ZrString answer;
        const int result =
            quor::light::askKeyword({texts.attenuationMenuPrompt, texts.attenuationMenuKeywords}, shown.str(), answer);
        if (result != RTNORM || equalFolded(answer, L"eXit"))
            return 0;
        if (equalFolded(answer, L"attenuationType")) {
            promptAttenuationType();
        } else if (equalFolded(answer, L"Uselimits")) {
            promptAttenuationLimits();
        } else if (equalFolded(answer, L"attenuationstartLimit") && askLimit(texts.startLimitPrompt, m_startLimit)) {
            opened.setLimits(m_startLimit, opened.endLimit());
            writeAttenuation(m_pLight, opened);
        } else if (equalFolded(answer, L"attenuationEndlimit") && askLimit(texts.endLimitPrompt, m_endLimit)) {
            opened.setLimits(opened.startLimit(), m_endLimit);
            writeAttenuation(m_pLight, opened);
        }
    }
}

int CZrMultiLight::promptAttenuationType() {
    ZrGiLightAttenuation attenuation = attenuationOf(m_pLight);
    const AttenuationKind* const current =
        findKind([&](const AttenuationKind& kind) { return kind.type == attenuation.attenuationType(); });
    const ZrString shown = current != nullptr ? LoadedText(current->shown).str() : ZrString();
    ZrString answer;
    const int result =
        quor::light::askKeyword({texts.attenuationTypePrompt, texts.attenuationTypeKeywords}, shown, answer);
    if (leaves(result))
        return 0;
    const AttenuationKind* const chosen =
        findKind([&](const AttenuationKind& kind) { return equalFolded(kind.keyword, answer); });
    if (result == RTNORM && chosen != nullptr)
        attenuation.setAttenuationType(chosen->type);
    writeAttenuation(m_pLight, attenuation);
    return 1;
}

int CZrMultiLight::promptAttenuationLimits() {
    ZrGiLightAttenuation attenuation = attenuationOf(m_pLight);
    const LoadedText shown(attenuation.useLimits() ? texts.on : texts.off);
    ZrString answer;
    const int result = quor::light::askKeyword({texts.useLimitsPrompt, texts.onOffKeywords}, shown.str(), answer);
    if (leaves(result))
        return 0;
    if (result == RTNORM && equalFolded(answer, L"oN"))
        attenuation.setUseLimits(true);
    else if (result == RTNORM && equalFolded(answer, L"oFf"))
        attenuation.setUseLimits(false);
    writeAttenuation(m_pLight, attenuation);
    return 1;
}
