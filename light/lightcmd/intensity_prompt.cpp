// The Intensity option.
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/real_question.h"

namespace {
constexpr double maxIntensity = 1000000.0;
} // namespace

// A number above the limit is not set on the light, yet shown as the default the next time.
void CZrMultiLight::promptIntensity() {
    const int result = quor::light::askReal(quor::light::texts.intensityPrompt, m_intensity);
    if (result == RTNORM && m_pLight != nullptr && m_intensity <= maxIntensity)
        m_pLight->setIntensity(m_intensity);
}
