// LIST of lights: one table of rows, each with its label, its value and the lights that it says something about.
#include "host/commands/list_kinds.h"
#include "host/commands/web_listing.h"
#include "host/props/light_facts.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/texts/list.h"

#include <cstddef>

namespace quor::commands {

namespace {

using Value = ZrString (*)(const ZrDbLight&);
using Applies = bool (*)(const ZrDbLight&);

struct LightRow {
    const Text& label;
    Value value;
    Applies applies;
};

template <std::size_t N, class E>
ZrString word(const Text (&words)[N], E value) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? ZrString(words[index].get()) : std::to_wstring(static_cast<int>(value));
}

ZrString kindText(DrawableType type) {
    switch (type) {
    case DrawableType::kDistantLight:
        return texts::kKindDistant.get();
    case DrawableType::kPointLight:
        return texts::kKindPoint.get();
    case DrawableType::kSpotLight:
        return texts::kKindSpot.get();
    case DrawableType::kWebLight:
        return texts::kKindWeb.get();
    }
    return std::to_wstring(static_cast<int>(type));
}

ZrGiShadowParameters shadowsOf(const ZrDbLight& light) {
    ZrGiShadowParameters shadows;
    light.shadowParameters(shadows);
    return shadows;
}

ZrString shadowText(const ZrDbLight& light) {
    const ZrGiShadowParameters shadows = shadowsOf(light);
    const ZrString kind = word(texts::kShadowKinds, shadows.shadowType());
    return shadows.shadowsOn() ? kind : ZrString(texts::kOff.get()) + L" (" + kind + L")";
}

// An illuminance of generic lighting has no unit.
ZrString intensityText(const ZrDbLight& light) {
    const ZrString unit = illuminanceUnit(Session::current().variables().number(L"LIGHTINGUNITS"));
    const Text& text = texts::kIntensityMethods[static_cast<std::size_t>(light.physicalIntensityMethod())];
    return fill(text, numberText(light.physicalIntensity()), unit.empty() ? unit : L" " + unit);
}

bool always(const ZrDbLight&) { return true; }
bool isSpot(const ZrDbLight& light) { return light.lightType() == DrawableType::kSpotLight; }
bool isWeb(const ZrDbLight& light) { return light.lightType() == DrawableType::kWebLight || !light.webFile().empty(); }

using L = const ZrDbLight&;
const LightRow kRows[] = {
    {texts::kLightName, [](L light) { return light.name(); }, always},
    {texts::kLightKind, [](L light) { return kindText(light.lightType()); }, always},
    {texts::kLightStatus, [](L light) { return ZrString((light.isOn() ? texts::kOn : texts::kOff).get()); }, always},
    {texts::kLightIntensity, [](L light) { return numberText(light.intensity()); }, always},
    {texts::kLightPosition, [](L light) { return pointText(light.position()); }, always},
    {texts::kLightTarget, [](L light) { return pointText(light.targetLocation()); }, always},
    {texts::kLightTargeted, [](L light) { return yesNoText(light.hasTarget()); }, always},
    {texts::kLightDirection, [](L light) { return directionText(light.lightDirection()); }, always},
    {texts::kLightHotspot, [](L light) { return degreesText(light.hotspotAngle()); }, isSpot},
    {texts::kLightFalloff, [](L light) { return degreesText(light.falloffAngle()); }, isSpot},
    {texts::kLightAttenuation,
     [](L light) { return word(texts::kAttenuations, light.lightAttenuation().attenuationType()); }, always},
    {texts::kLightUsesLimits, [](L light) { return yesNoText(light.lightAttenuation().useLimits()); }, always},
    {texts::kLightStartLimit, [](L light) { return measureText(light.lightAttenuation().startLimit()); }, always},
    {texts::kLightEndLimit, [](L light) { return measureText(light.lightAttenuation().endLimit()); }, always},
    {texts::kLightColor, [](L light) { return colorWithComponentsText(light.lightColor()); }, always},
    {texts::kLightShadows, shadowText, always},
    {texts::kLightMapSize, [](L light) { return std::to_wstring(shadowsOf(light).shadowMapSize()); }, always},
    {texts::kLightSoftness, [](L light) { return std::to_wstring(shadowsOf(light).shadowMapSoftness()); }, always},
    {texts::kLightSamples, [](L light) { return std::to_wstring(shadowsOf(light).shadowSamples()); }, always},
    {texts::kLightShape, [](L light) { return word(texts::kShapes, shadowsOf(light).extendedLightShape()); }, always},
    {texts::kLightShapeLength, [](L light) { return measureText(shadowsOf(light).extendedLightLength()); }, always},
    {texts::kLightShapeWidth, [](L light) { return measureText(shadowsOf(light).extendedLightWidth()); }, always},
    {texts::kLightShapeRadius, [](L light) { return measureText(shadowsOf(light).extendedLightRadius()); }, always},
    {texts::kLightShapeVisible, [](L light) { return yesNoText(shadowsOf(light).shapeVisibility()); }, always},
    {texts::kLightGlyph, [](L light) { return word(texts::kGlyphDisplays, light.glyphDisplay()); }, always},
    {texts::kLightPlotGlyph, [](L light) { return yesNoText(light.plotsGlyph()); }, always},
    {texts::kLightPhysical, intensityText, always},
    {texts::kLightDistance, [](L light) { return measureText(light.illuminanceDistance()); }, always},
    {texts::kLightLamp,
     [](L light) {
         return ZrString((light.lampColorType() == LampColorType::kPreset ? texts::kByPreset : texts::kByKelvin).get());
     },
     always},
    {texts::kLightLampPreset, [](L light) { return word(texts::kLampPresets, light.lampColorPreset()); }, always},
    {texts::kLightLampKelvin, [](L light) { return numberText(light.lampColorTemp()) + L" K"; }, always},
};

} // namespace

void listLight(const ZrDbLight& light, Listing& listing) {
    for (const LightRow& row : kRows)
        if (row.applies(light))
            listing.row(row.label, row.value(light));
    if (isWeb(light))
        listLightWeb(light, listing);
}

} // namespace quor::commands
