// The Name option.
#include "light/lightcmd/light_name.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/ed/print.h"
#include "sdk/sys/case_fold.h"

using quor::light::LoadedText;
using quor::light::printText;
using quor::light::texts;

void CZrMultiLight::offerDefaultName() {
    m_name = defaultName();
    m_prevName = m_name;
}

// Only Enter accepts the name that is shown; typing it is answered like a name that is taken. The light gets its name
// when the command ends.
void CZrMultiLight::promptName() {
    m_nameEntered = true;
    if (m_name.empty())
        offerDefaultName();
    const LoadedText question(texts.namePrompt);
    const LoadedText isInvalid(texts.nameIsInvalid);
    for (;;) {
        ZrString answer;
        zredInitGet(0, nullptr);
        const int result = quor::light::askLine((question.str() + m_name + L">: ").c_str(), answer);
        if (result == RTERROR)
            zrutPrintf(L"\n\"%s\"%s\n", answer, isInvalid.c_str());
        if (result != RTNORM || answer.empty())
            return;
        if (quor::light::hasInvalidCharacter(answer)) {
            printText(texts.nameHasInvalidCharacters);
        } else if (quor::equalFolded(answer, m_name) || lightNameExists(answer)) {
            printText(texts.nameIsTaken);
            offerDefaultName();
        } else if (answer.size() > quor::light::maxNameLength) {
            zrutPrintf(L"“%s”%s", answer, isInvalid.c_str());
        } else {
            m_name = answer;
            return;
        }
    }
}
