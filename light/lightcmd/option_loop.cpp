#include "light/lightcmd/option_loop.h"

#include "light/lightcmd/find_row.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/case_fold.h"

using quor::light::LightOption;
using quor::light::LoadedText;
using quor::light::OptionLoop;
using quor::light::UnitsRead;
using quor::light::WithoutLight;

namespace {

const LightOption* findOption(const OptionLoop& loop, const ZrString& keyword) {
    return quor::light::findRow(loop.options,
                                [&](const LightOption& option) { return quor::equalFolded(option.keyword, keyword); });
}

} // namespace

// Esc answers RTCAN at once; Enter and eXit name the light and answer RTNORM, or RTERROR when it refuses its name.
int CZrMultiLight::runOptionLoop(const OptionLoop& loop) {
    const LoadedText standardPrompt(loop.standardPrompt);
    const LoadedText photometricPrompt(loop.photometricPrompt);
    const LoadedText keywords(loop.keywords);
    short units = 0;
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
        if (m_pLight == nullptr && loop.withoutLight == WithoutLight::EndsAtOnce)
            return RTNORM;
        const bool leaves = m_pLight == nullptr && loop.withoutLight == WithoutLight::LeavesTheLoop;
        if (leaves || quor::equalFolded(keyword, L"eXit"))
            break;
        const LightOption* option = findOption(loop, keyword);
        if (option != nullptr && (units != 0 || !option->photometricOnly))
            option->ask(*this);
    }
    return applyName() ? RTNORM : RTERROR;
}
