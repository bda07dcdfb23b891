#include "host/commands/light_facts.h"

#include "host/commands/listing.h"

#include <cmath>

namespace quor::commands {

namespace {

using enum PhysicalIntensityMethod;

bool shinesAllAround(LightKind kind) { return kind == LightKind::Point || kind == LightKind::TargetPoint; }

std::optional<ZrGeVector3d> directionOf(const ZrDbLight& light, LightKind kind) {
    const ZrGeVector3d direction = light.lightDirection();
    if (shinesAllAround(kind) || direction.isZeroLength())
        return std::nullopt;
    return direction;
}

// Whether the unit of the drawing's illuminances is needed and not known.
bool lacksUnit(const PhotometricIntensity& intensity, PhysicalIntensityMethod wanted) {
    return !isPhotometric(intensity.lightingUnits) && (intensity.method == kIlluminance || wanted == kIlluminance);
}

std::optional<double> intensityIn(PhysicalIntensityMethod wanted, const PhotometricIntensity& intensity,
                                  LightKind kind) {
    if (wanted == intensity.method)
        return intensity.value;
    if (lacksUnit(intensity, wanted) || (kind == LightKind::Distant && wanted != kPeakIntensity))
        return std::nullopt;
    const double value = convertIntensity(intensity, wanted);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

void addGeometry(const ZrDbLight& light, LightFacts& facts) {
    if (facts.kind != LightKind::Distant) {
        facts.position = light.position();
        if (light.hasTarget())
            facts.target = light.targetLocation();
    }
    facts.direction = directionOf(light, facts.kind);
    if (facts.kind == LightKind::Spot || facts.kind == LightKind::FreeSpot) {
        facts.hotspot = inDegrees(light.hotspotAngle());
        facts.falloff = inDegrees(light.falloffAngle());
    }
}

void addPhotometry(const ZrDbLight& light, const PhotometricUnits& units, LightFacts& facts) {
    const PhotometricIntensity intensity = photometricIntensityOf(light, units);
    facts.method = intensity.method;
    facts.candela = intensityIn(kPeakIntensity, intensity, facts.kind);
    facts.lumen = intensityIn(kFlux, intensity, facts.kind);
    facts.illuminance = intensityIn(kIlluminance, intensity, facts.kind);
    if (facts.kind != LightKind::Distant || facts.illuminance)
        facts.illuminanceDistance = intensity.distance;
    if (light.lampColorType() == LampColorType::kPreset)
        facts.lampPreset = light.lampColorPreset();
    else
        facts.lampKelvin = light.lampColorTemp();
}

} // namespace

const wchar_t* illuminanceUnit(int lightingUnits) {
    if (lightingUnits == footCandles)
        return L"fc";
    return lightingUnits == lux ? L"lx" : L"";
}

LightKind kindOf(const ZrDbLight& light) {
    switch (light.lightType()) {
    case DrawableType::kDistantLight:
        return LightKind::Distant;
    case DrawableType::kSpotLight:
        return light.hasTarget() ? LightKind::Spot : LightKind::FreeSpot;
    case DrawableType::kWebLight:
        return light.hasTarget() ? LightKind::Web : LightKind::FreeWeb;
    case DrawableType::kPointLight:
        break;
    }
    return light.hasTarget() ? LightKind::TargetPoint : LightKind::Point;
}

LightFacts factsOf(const ZrDbLight& light, const ZrString& layout, const PhotometricUnits& units) {
    LightFacts facts;
    facts.handle = light.objectId().handle();
    facts.name = light.name();
    facts.kind = kindOf(light);
    facts.layout = layout;
    facts.layer = light.layer();
    facts.on = light.isOn();
    addGeometry(light, facts);
    facts.factor = light.intensity();
    addPhotometry(light, units, facts);
    facts.color = light.lightColor();
    facts.webFile = light.webFile();
    light.shadowParameters(facts.shadows);
    return facts;
}

} // namespace quor::commands
