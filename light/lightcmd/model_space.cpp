#include "light/lightcmd/model_space.h"

#include "light/res/load_text.h"
#include "sdk/sys/ads.h"

namespace quor::light {

bool checkModelSpace() {
    short tileMode = 1;
    short viewport = 0;
    zwutads::getVar(L"TILEMODE", tileMode);
    zwutads::getVar(L"CVPORT", viewport);
    const bool isPaperCurrent = tileMode == 0 && viewport == 1;
    if (isPaperCurrent)
        printText(texts.modelSpaceOnly);
    return !isPaperCurrent;
}

} // namespace quor::light
