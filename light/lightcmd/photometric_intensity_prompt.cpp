// The photometric intensity: candela, with luminous flux and illuminance as alternatives.
#include "light/lightcmd/intensity_conversion.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/real_question.h"
#include "light/lightcmd/replies.h"
#include "sdk/db/units.h"
#include "sdk/sys/case_fold.h"

using quor::equalFolded;
using quor::PhotometricIntensity;
using quor::light::askKeywordOrText;
using quor::light::askReal;
using quor::light::decimalUnits;
using quor::light::LoadedText;
using quor::light::shownIlluminance;
using quor::light::texts;
using quor::light::withNumber;

namespace {

// What promptFlux() answers.
constexpr int entered = 1;
constexpr int notEntered = -1;

// The setters refuse what is negative or no finite number; the light then keeps the number that it has.
void setPhotometric(ZrDbLight& light, PhysicalIntensityMethod method, double value) {
    light.setPhysicalIntensityMethod(method);
    light.setPhysicalIntensity(value);
}

// As the drawing's units are at this moment.
PhotometricIntensity intensityOf(const ZrDbLight& light) {
    return quor::photometricIntensityOf(light, quor::photometricUnits());
}

// Without a unit of illuminance, in generic lighting units, the question has no text. A light at distance 0 has no
// illuminance: 0 is shown.
ZrString illuminancePrompt(const PhotometricIntensity& intensity) {
    switch (intensity.lightingUnits) {
    case quor::footCandles:
        return withNumber(texts.illuminancePromptFootCandle, shownIlluminance(intensity));
    case quor::lux:
        return withNumber(texts.illuminancePromptLux, shownIlluminance(intensity));
    default:
        return {};
    }
}

// The illuminance stays what it was at the old distance.
void askIlluminanceDistance(ZrDbLight& light) {
    double distance = light.illuminanceDistance();
    if (askReal(texts.illuminanceDistancePrompt, distance) == RTNORM)
        light.setIlluminanceDistance(distance);
}

} // namespace

double CZrMultiLight::convertPhotometricIntensity(int target) const {
    if (m_pLight == nullptr)
        return 0;
    return quor::convertIntensity(intensityOf(*m_pLight), static_cast<PhysicalIntensityMethod>(target));
}

// What is neither a number nor a keyword is asked again without a word.
int CZrMultiLight::promptPhotometricIntensity() {
    if (m_pLight == nullptr)
        return RTERROR;
    const ZrString prompt = withNumber(
        texts.candelaPrompt, convertPhotometricIntensity(static_cast<int>(PhysicalIntensityMethod::kPeakIntensity)));
    const LoadedText keywords(texts.candelaKeywords);
    for (;;) {
        ZrString reply;
        const int result = askKeywordOrText(prompt.c_str(), keywords.c_str(), reply);
        if (result != RTNORM)
            return result;
        if (equalFolded(reply, L"Flux"))
            return promptFlux();
        if (equalFolded(reply, L"Illuminance"))
            return promptIlluminance();
        double candela = 0;
        if (zrdbDisToF(reply.c_str(), decimalUnits, candela) != RTNORM)
            continue;
        setPhotometric(*m_pLight, PhysicalIntensityMethod::kPeakIntensity, quor::light::acceptedCandela(candela));
        return RTNORM;
    }
}

// The light is given in lumen from here on, whatever is answered.
int CZrMultiLight::promptFlux() {
    if (m_pLight == nullptr)
        return notEntered;
    double lumen = convertPhotometricIntensity(static_cast<int>(PhysicalIntensityMethod::kFlux));
    setPhotometric(*m_pLight, PhysicalIntensityMethod::kFlux, lumen);
    if (askReal(texts.fluxPrompt, lumen) != RTNORM)
        return notEntered;
    m_pLight->setPhysicalIntensity(lumen);
    return entered;
}

// Distance turns the light to illuminance, whatever is then answered, and ends the question.
int CZrMultiLight::promptIlluminance() {
    if (m_pLight == nullptr)
        return RTERROR;
    const ZrString prompt = illuminancePrompt(intensityOf(*m_pLight));
    const LoadedText keywords(texts.illuminanceKeywords);
    for (;;) {
        ZrString reply;
        const int result = askKeywordOrText(prompt.c_str(), keywords.c_str(), reply);
        if (result != RTNORM)
            return result;
        constexpr auto illuminance = PhysicalIntensityMethod::kIlluminance;
        if (double value = 0; zrdbDisToF(reply.c_str(), decimalUnits, value) == RTNORM) {
            setPhotometric(*m_pLight, illuminance, value);
            return RTNORM;
        }
        if (equalFolded(reply, L"Distance")) {
            setPhotometric(*m_pLight, illuminance, convertPhotometricIntensity(static_cast<int>(illuminance)));
            askIlluminanceDistance(*m_pLight);
            return RTNORM;
        }
    }
}
