// The Intensity option.
#include "light/lightcmd/multi_light.h"
#include "light/res/load_text.h"
#include "sdk/db/units.h"
#include "sdk/ed/get.h"
#include "sdk/sys/format.h"

using quor::light::LoadedText;
using quor::light::texts;

namespace {
constexpr double maxIntensity = 1000000.0;
constexpr int decimalUnits = 2;
constexpr int drawingPrecision = -1;
} // namespace

// A number above the limit is not set on the light, yet shown as the default the next time.
void CZrMultiLight::promptIntensity() {
    ZrString shown;
    zrdbRToS(m_intensity, decimalUnits, drawingPrecision, shown);
    const ZrString prompt = zrFormat(LoadedText(texts.intensityPrompt).c_str(), {shown});
    zredInitGet(RSG_NONEG, nullptr);
    const int result = zredGetReal(prompt.c_str(), m_intensity);
    if (result == RTNORM && m_pLight != nullptr && m_intensity <= maxIntensity)
        m_pLight->setIntensity(m_intensity);
}
