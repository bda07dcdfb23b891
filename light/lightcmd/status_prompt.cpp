// The Status option.
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/sys/case_fold.h"

using quor::light::LoadedText;
using quor::light::texts;

// What is chosen here is shown by the light only when the command ends; until then it is off.
void CZrMultiLight::promptStatus() {
    zredInitGet(0, LoadedText(texts.onOffKeywords).c_str());
    const LoadedText prompt(m_lightOn ? texts.statusPromptOn : texts.statusPromptOff);
    ZrString answer;
    if (quor::light::askKeyword(prompt.c_str(), answer) != RTNORM)
        return;
    if (quor::equalFolded(answer, L"oFf"))
        m_lightOn = false;
    else if (quor::equalFolded(answer, L"oN"))
        m_lightOn = true;
}
