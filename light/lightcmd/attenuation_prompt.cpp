// The Attenuation option: a menu of how the light falls off with the distance, and of the limits of its reach.
#include "light/lightcmd/find_row.h"
#include "light/lightcmd/keyword_question.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/real_question.h"
#include "sdk/sys/case_fold.h"

using quor::equalFolded;
using quor::light::findRow;
using quor::light::LoadedText;
using quor::light::Text;
using quor::light::texts;

namespace {

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

ZrGiLightAttenuation attenuationOf(const ZrDbLight* light) {
    return light != nullptr ? light->lightAttenuation() : ZrGiLightAttenuation();
}

void writeAttenuation(ZrDbLight* light, const ZrGiLightAttenuation& attenuation) {
    if (light != nullptr)
        light->setLightAttenuation(attenuation);
}

void writeLimits(ZrDbLight* light, ZrGiLightAttenuation& attenuation, double start, double end) {
    attenuation.setLimits(start, end);
    writeAttenuation(light, attenuation);
}

// Whether a limit was entered.
bool askLimit(const Text& prompt, double& limit) {
    return quor::light::askReal(prompt, limit, quor::light::unitsOfDrawing) == RTNORM;
}

// Asks for one value of the record and writes the record back, changed or not. 0 when the question was left, by Enter,
// Esc or broken input, else 1; a reply that is too long changes nothing and is written all the same.
template <class TakeAnswer>
int askAndWrite(ZrDbLight* light, ZrGiLightAttenuation attenuation, const quor::light::KeywordQuestion& question,
                const ZrString& shown, TakeAnswer take) {
    ZrString answer;
    const int result = quor::light::askKeyword(question, shown, answer);
    if (result == RTNONE || result == RTCAN || result == RTERROR)
        return 0;
    if (result == RTNORM)
        take(attenuation, answer);
    writeAttenuation(light, attenuation);
    return 1;
}

void takeType(ZrGiLightAttenuation& attenuation, const ZrString& answer) {
    const auto isChosen = [&](const AttenuationKind& kind) { return equalFolded(kind.keyword, answer); };
    if (const AttenuationKind* const chosen = findRow(attenuationKinds, isChosen))
        attenuation.setAttenuationType(chosen->type);
}

void takeUseOfLimits(ZrGiLightAttenuation& attenuation, const ZrString& answer) {
    if (equalFolded(answer, L"oN"))
        attenuation.setUseLimits(true);
    else if (equalFolded(answer, L"oFf"))
        attenuation.setUseLimits(false);
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
        } else if (equalFolded(answer, L"attenuationstartLimit")) {
            if (askLimit(texts.startLimitPrompt, m_startLimit))
                writeLimits(m_pLight, opened, m_startLimit, opened.endLimit());
        } else if (equalFolded(answer, L"attenuationEndlimit")) {
            if (askLimit(texts.endLimitPrompt, m_endLimit))
                writeLimits(m_pLight, opened, opened.startLimit(), m_endLimit);
        }
    }
}

int CZrMultiLight::promptAttenuationType() {
    const ZrGiLightAttenuation attenuation = attenuationOf(m_pLight);
    const AttenuationKind* const current = findRow(
        attenuationKinds, [&](const AttenuationKind& kind) { return kind.type == attenuation.attenuationType(); });
    const ZrString shown = current != nullptr ? LoadedText(current->shown).str() : ZrString();
    return askAndWrite(m_pLight, attenuation, {texts.attenuationTypePrompt, texts.attenuationTypeKeywords}, shown,
                       takeType);
}

int CZrMultiLight::promptAttenuationLimits() {
    const ZrGiLightAttenuation attenuation = attenuationOf(m_pLight);
    const LoadedText shown(attenuation.useLimits() ? texts.on : texts.off);
    return askAndWrite(m_pLight, attenuation, {texts.useLimitsPrompt, texts.onOffKeywords}, shown.str(),
                       takeUseOfLimits);
}
