// The photometric intensity: candela, with luminous flux and illuminance as alternatives.
#include "light/lightcmd/intensity_conversion.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/db/units.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/case_fold.h"
#include "sdk/sys/format.h"

#include <cmath>

using quor::equalFolded;
using quor::light::askKeyword;
using quor::light::LoadedText;
using quor::light::PhotometricIntensity;
using quor::light::texts;

namespace {

constexpr int millimetres = 4; // a value of INSUNITS
constexpr int decimalUnits = 2;
constexpr int drawingPrecision = -1;

// What promptFlux() answers.
constexpr int entered = 1;
constexpr int notEntered = -1;

// The prompt with the number in place of its %s. A light at illuminance distance 0 has no illuminance: 0 is shown.
ZrString filled(const quor::light::Text& prompt, double value) {
    ZrString shown;
    zrdbRToS(std::isfinite(value) ? value : 0.0, decimalUnits, drawingPrecision, shown);
    return zrFormat(LoadedText(prompt).c_str(), {shown});
}

// The setters refuse what is negative or no finite number; the light then keeps the number that it has.
void setPhotometric(ZrDbLight& light, PhysicalIntensityMethod method, double value) {
    light.setPhysicalIntensityMethod(method);
    light.setPhysicalIntensity(value);
}

PhotometricIntensity photometricIntensityOf(const ZrDbLight& light) {
    short lightingUnits = 0;
    zwutads::getVar(L"LIGHTINGUNITS", lightingUnits);
    short drawingUnits = 0;
    zwutads::getVar(L"INSUNITS", drawingUnits);
    double unitsPerMillimetre = 1.0;
    zredGetUnitsConversion(millimetres, drawingUnits, unitsPerMillimetre);
    return {.value = light.physicalIntensity(),
            .method = light.physicalIntensityMethod(),
            .distance = light.illuminanceDistance(),
            .isSpot = light.lightType() == DrawableType::kSpotLight,
            .lightingUnits = lightingUnits,
            .unitsPerMillimetre = unitsPerMillimetre};
}

// Without a unit of illuminance, in generic lighting units, the question has no text.
ZrString illuminancePrompt(const PhotometricIntensity& intensity) {
    switch (intensity.lightingUnits) {
    case quor::light::footCandles:
        return filled(texts.illuminancePromptFootCandle, shownIlluminance(intensity));
    case quor::light::lux:
        return filled(texts.illuminancePromptLux, shownIlluminance(intensity));
    default:
        return {};
    }
}

// The illuminance stays what it was at the old distance.
void askIlluminanceDistance(ZrDbLight& light) {
    double distance = light.illuminanceDistance();
    const ZrString prompt = filled(texts.illuminanceDistancePrompt, distance);
    zredInitGet(RSG_NONEG, nullptr);
    if (zredGetReal(prompt.c_str(), distance) == RTNORM)
        light.setIlluminanceDistance(distance);
}

} // namespace

double CZrMultiLight::convertPhotometricIntensity(int target) const {
    return quor::light::convertIntensity(photometricIntensityOf(*m_pLight),
                                         static_cast<PhysicalIntensityMethod>(target));
}

// What is neither a number nor a keyword is asked again without a word.
int CZrMultiLight::promptPhotometricIntensity() {
    if (m_pLight == nullptr)
        return RTERROR;
    const ZrString prompt = filled(
        texts.candelaPrompt, convertPhotometricIntensity(static_cast<int>(PhysicalIntensityMethod::kPeakIntensity)));
    const LoadedText keywords(texts.candelaKeywords);
    for (;;) {
        zredInitGet(RSG_OTHER, keywords.c_str());
        ZrString reply;
        const int result = askKeyword(prompt.c_str(), reply);
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
    double lumen = convertPhotometricIntensity(static_cast<int>(PhysicalIntensityMethod::kFlux));
    setPhotometric(*m_pLight, PhysicalIntensityMethod::kFlux, lumen);
    const ZrString prompt = filled(texts.fluxPrompt, lumen);
    zredInitGet(RSG_NONEG, nullptr);
    if (zredGetReal(prompt.c_str(), lumen) != RTNORM)
        return notEntered;
    m_pLight->setPhysicalIntensity(lumen);
    return entered;
}

// Distance turns the light to illuminance, whatever is then answered, and ends the question.
int CZrMultiLight::promptIlluminance() {
    const ZrString prompt = illuminancePrompt(photometricIntensityOf(*m_pLight));
    const LoadedText keywords(texts.illuminanceKeywords);
    for (;;) {
        zredInitGet(RSG_OTHER, keywords.c_str());
        ZrString reply;
        const int result = askKeyword(prompt.c_str(), reply);
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
