// The Photometry option: the menu of intensity and lamp colour.
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/sys/case_fold.h"

using quor::equalFolded;
using quor::light::LoadedText;
using quor::light::texts;

// Enter asks for the intensity; only X and Esc leave the menu.
int CZrMultiLight::promptPhotometry() {
    const LoadedText prompt(texts.photometryPrompt);
    const LoadedText keywords(texts.photometryKeywords);
    for (;;) {
        zredInitGet(0, keywords.c_str());
        ZrString keyword;
        const int result = quor::light::askKeyword(prompt.c_str(), keyword);
        if (result == RTCAN)
            return RTCAN;
        if (result != RTNORM && result != RTNONE)
            continue;
        if (result == RTNONE || equalFolded(keyword, L"Intensity"))
            promptPhotometricIntensity();
        else if (equalFolded(keyword, L"Color"))
            promptLampColor();
        else if (equalFolded(keyword, L"eXit"))
            return result;
    }
}
