// A colour by its number or by one of seven names.
#include "light/lightcmd/color_input.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/cm/color_services.h"

#include <cwchar>

using quor::light::LoadedText;
using quor::light::texts;

// What begins with a letter and is no colour name ends the question as Enter does, without a word; only a number that
// is no index is told.
int CZrMultiLight::promptIndexColor() {
    if (m_pLight == nullptr)
        return RTERROR;
    const LoadedText keywords(texts.indexColorKeywords);
    const LoadedText prompt(texts.indexColorPrompt);
    for (;;) {
        zredInitGet(RSG_OTHER, keywords.c_str());
        ZrString answer;
        const int result = quor::light::askWord(prompt.c_str(), answer);
        if (result != RTNORM)
            return result;
        const bool isIndex = quor::light::isColorIndexName(answer.data());
        answer.resize(std::wcslen(answer.c_str()));
        ZrCmColor color;
        if (isIndex && zrcmGetColorFromACIName(color, answer.c_str()) == Quor::eOk)
            return m_pLight->setLightColor(color);
        if (answer.empty())
            return RTNORM;
        quor::light::printText(texts.indexColorInvalid);
    }
}
