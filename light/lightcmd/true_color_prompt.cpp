// The options Color and filterColor: a true colour, or the way to one of the other prompts of a colour.
#include "light/lightcmd/color_input.h"
#include "light/lightcmd/multi_light.h"
#include "light/res/load_text.h"
#include "sdk/cm/color_services.h"
#include "sdk/ed/get.h"
#include "sdk/sys/case_fold.h"
#include "sdk/sys/format.h"

using quor::equalFolded;
using quor::light::LoadedText;
using quor::light::printText;
using quor::light::texts;

namespace {
constexpr std::size_t longestAnswer = 255;
} // namespace

// A last number above 255 and an answer that is too long are asked again without a word; all else that is no colour is
// told.
int CZrMultiLight::promptColor() {
    if (m_pLight == nullptr)
        return RTERROR;
    const LoadedText keywords(texts.trueColorKeywords);
    const ZrString prompt =
        zrFormat(LoadedText(texts.trueColorPrompt).c_str(), {m_pLight->lightColor().colorNameForDisplay()});
    for (;;) {
        zredInitGet(RSG_OTHER, keywords.c_str());
        ZrString answer;
        const int result = zredGetKword(prompt.c_str(), answer);
        if (result == RTCAN || result == RTERROR || result == RTNONE)
            return result;
        if (result != RTNORM || answer.size() > longestAnswer)
            continue;
        if (equalFolded(answer, L"Index"))
            return promptIndexColor();
        if (equalFolded(answer, L"Hsl"))
            return promptHslColor();
        ZrCmColor color;
        if (equalFolded(answer, L"colorBook"))
            return quor::light::promptColorBook(color) ? m_pLight->setLightColor(color) : Quor::eOk;
        if (!quor::light::isRgbTriple(answer.c_str()))
            printText(texts.trueColorInvalid);
        else if (zrcmGetColorFromRGBName(color, answer.c_str()) == Quor::eOk)
            return m_pLight->setLightColor(color);
    }
}
