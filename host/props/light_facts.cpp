#include "host/props/light_facts.h"

#include "host/props/value_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace quor {

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

// Of light all around and of a cone the flux is known from the intensity, and the other way round; of a web it is not.
bool lacksFlux(const PhotometricIntensity& intensity, PhysicalIntensityMethod wanted, const ZrDbLight& light) {
    const bool isAboutFlux = intensity.method == kFlux || wanted == kFlux;
    return isAboutFlux && light.lightType() == DrawableType::kWebLight && !light.webFile().empty();
}

std::optional<double> intensityIn(PhysicalIntensityMethod wanted, const PhotometricIntensity& intensity,
                                  const ZrDbLight& light) {
    if (wanted == intensity.method)
        return intensity.value;
    if (lacksUnit(intensity, wanted) || lacksFlux(intensity, wanted, light) ||
        (light.lightType() == DrawableType::kDistantLight && wanted != kPeakIntensity))
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
    if (isSpot(facts.kind)) {
        facts.hotspot = typedDegrees(light.hotspotAngle());
        facts.falloff = typedDegrees(light.falloffAngle());
    }
}

void addPhotometry(const ZrDbLight& light, const PhotometricUnits& units, LightFacts& facts) {
    const PhotometricIntensity intensity = photometricIntensityOf(light, units);
    facts.method = intensity.method;
    facts.candela = intensityIn(kPeakIntensity, intensity, light);
    facts.lumen = intensityIn(kFlux, intensity, light);
    facts.illuminance = intensityIn(kIlluminance, intensity, light);
    if (facts.kind != LightKind::Distant || facts.illuminance)
        facts.illuminanceDistance = intensity.distance;
    if (light.lampColorType() == LampColorType::kPreset)
        facts.lampPreset = light.lampColorPreset();
    else
        facts.lampKelvin = light.lampColorTemp();
}

void addWeb(const ZrDbLight& light, LightFacts& facts) {
    facts.webFile = light.webFile();
    if (!facts.webFile.empty() && light.webFlux() > 0)
        facts.webFlux = light.webFlux();
    if (isWeb(facts.kind))
        light.webRotation(facts.webRotation.emplace());
}

} // namespace

double roundedTo(int digits, double value) {
    std::array<char, 32> text{};
    char* const end = text.data() + text.size();
    const auto written = std::to_chars(text.data(), end, value, std::chars_format::scientific, digits - 1);
    std::from_chars(text.data(), written.ptr, value);
    return value;
}

// Angles are degrees where they are typed and in the file, radians in between.
double typedDegrees(double radians) {
    constexpr int kOwnDigits = 15;
    return roundedTo(kOwnDigits, inDegrees(radians));
}

bool isSpot(LightKind kind) { return kind == LightKind::Spot || kind == LightKind::FreeSpot; }

bool isWeb(LightKind kind) { return kind == LightKind::Web || kind == LightKind::FreeWeb; }

std::optional<double> intensityOf(const ZrDbLight& light, PhysicalIntensityMethod wanted,
                                  const PhotometricUnits& units) {
    return intensityIn(wanted, photometricIntensityOf(light, units), light);
}

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
    facts.attenuation = light.lightAttenuation();
    addWeb(light, facts);
    addPhotometry(light, units, facts);
    facts.color = light.lightColor();
    light.shadowParameters(facts.shadows);
    return facts;
}

} // namespace quor
