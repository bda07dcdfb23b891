// What soft sampled shadows ask: a menu of the shape that gives the light, the number of samples and whether the shape
// is drawn.
#include "light/lightcmd/keyword_question.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/shadow_record.h"
#include "sdk/sys/case_fold.h"

using quor::equalFolded;
using quor::light::LoadedText;
using quor::light::shadowsOf;
using quor::light::texts;
using quor::light::writeShadows;

namespace {

constexpr int mostSamples = 1024;       // that a light takes
constexpr int mostSamplesTyped = 32767; // that the question takes

// Whether the light got the count. A count that is too large for it stays in `samples`, without a word, and is what the
// question shows the next time.
bool askSamples(ZrDbLight* light, std::int32_t& samples) {
    ZrGiShadowParameters shadows = shadowsOf(light);
    const ZrString prompt = zrFormat(LoadedText(texts.samplesPrompt).c_str(), {samples});
    zredInitGet(RSG_NONEG, nullptr);
    if (zredGetIntInRange(prompt.c_str(), 0, mostSamplesTyped, samples) != RTNORM || samples > mostSamples)
        return false;
    if (!shadows.setShadowSamples(static_cast<std::uint16_t>(samples)))
        return false;
    writeShadows(light, shadows);
    return true;
}

} // namespace

bool CZrMultiLight::promptShadowSampledOptions() {
    const LoadedText shown(texts.sampledMenuDefault);
    for (;;) {
        ZrString answer;
        const int result =
            quor::light::askKeyword({texts.sampledMenuPrompt, texts.sampledMenuKeywords}, shown.str(), answer);
        if (result != RTNORM || equalFolded(answer, L"eXit"))
            return false;
        if (equalFolded(answer, L"Shape"))
            promptShadowShape();
        else if (equalFolded(answer, L"sAmples"))
            askSamples(m_pLight, m_shadowSamples);
        else if (equalFolded(answer, L"Visible"))
            promptShadowVisibility();
    }
}

int CZrMultiLight::promptShadowSamples() { return askSamples(m_pLight, m_shadowSamples) ? 1 : 0; }

bool CZrMultiLight::promptShadowVisibility() {
    ZrGiShadowParameters shadows = shadowsOf(m_pLight);
    const LoadedText prompt(shadows.shapeVisibility() ? texts.shapeVisiblePromptYes : texts.shapeVisiblePromptNo);
    ZrString answer;
    zredInitGet(0, LoadedText(texts.yesNoKeywords).c_str());
    const bool isAnswered = quor::light::askKeyword(prompt.c_str(), answer) == RTNORM;
    if (isAnswered && equalFolded(answer, L"Yes"))
        shadows.setShapeVisibility(true);
    else if (isAnswered && equalFolded(answer, L"No"))
        shadows.setShapeVisibility(false);
    writeShadows(m_pLight, shadows);
    return true;
}
