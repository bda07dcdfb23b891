#include "sdk/db/light.h"

#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/finite.h"
#include "host/db/light_names.h"
#include "host/db/light_web.h"
#include "host/texts/web_files.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t kLongestName = 255;
constexpr double kWidestCone = 160 * quor::db::kDegree;
// A cone typed as 160 degrees and turned into radians may exceed the bound by a rounding error.
constexpr double kConeTolerance = 1e-9;
constexpr double kColdestLamp = 1000; // Kelvin
constexpr double kHottestLamp = 20000;

bool isNotNegative(double value) { return std::isfinite(value) && value >= 0; }

bool isKnown(DrawableType type) {
    return type == DrawableType::kDistantLight || type == DrawableType::kPointLight ||
           type == DrawableType::kSpotLight || type == DrawableType::kWebLight;
}

// Whether an enumeration holds one of its numbers, 0 to `last`.
template <class Enumeration>
bool isUpTo(Enumeration value, Enumeration last) {
    return static_cast<int>(value) >= 0 && static_cast<int>(value) <= static_cast<int>(last);
}

// A line of a drawing file holds no control characters.
bool holdsControls(const ZrString& text) {
    return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c < L' ' || c == 0x7F; });
}

bool isLightName(const ZrString& name) { return !name.empty() && name.size() <= kLongestName && !holdsControls(name); }

// Answers the status, with the words for it where they are wanted.
Quor::ErrorStatus refused(Quor::ErrorStatus status, const quor::Text& words, ZrString* reason) {
    if (reason != nullptr)
        *reason = words.get();
    return status;
}

} // namespace

ZrDbLight::ZrDbLight() : ZrDbEntity(std::make_unique<ZrDbLightData>()) {}

ZrRxClass* ZrDbLight::desc() {
    static ZrRxClass description(L"ZrDbLight", ZrDbEntity::desc(), L"LIGHT");
    return &description;
}

const ZrDbLightData& ZrDbLight::data() const { return static_cast<const ZrDbLightData&>(*data_); }

template <class T, class Data>
Quor::ErrorStatus ZrDbLight::change(bool accepted, T Data::*member, const T& value) {
    if (!accepted)
        return Quor::eInvalidInput;
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk)
        return status;
    auto& values = static_cast<ZrDbLightData&>(*data_);
    if (!objectId().isNull())
        objectId().entry()->database->reservePhotometry(values);
    values.*member = value;
    return Quor::eOk;
}

const ZrString& ZrDbLight::name() const { return data().name; }

Quor::ErrorStatus ZrDbLight::setName(const ZrString& name) {
    if (!isLightName(name))
        return Quor::eInvalidName;
    // Listeners are told of the coming change before the names are counted anew.
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk || objectId().isNull())
        return status == Quor::eOk ? change(true, &ZrDbLightData::name, name) : status;
    const quor::db::LightNames::Renaming renaming(*objectId().entry());
    return change(true, &ZrDbLightData::name, name);
}

DrawableType ZrDbLight::lightType() const { return data().type; }

Quor::ErrorStatus ZrDbLight::setLightType(DrawableType type) {
    const bool losesWeb = type != DrawableType::kWebLight && lightType() == DrawableType::kWebLight;
    if (const Quor::ErrorStatus status = change(isKnown(type), &ZrDbLightData::type, type);
        status != Quor::eOk || !losesWeb)
        return status;
    return setWebFile(L"");
}

bool ZrDbLight::isOn() const { return data().on; }

Quor::ErrorStatus ZrDbLight::setOn(bool on) { return change(true, &ZrDbLightData::on, on); }

double ZrDbLight::intensity() const { return data().intensity; }

Quor::ErrorStatus ZrDbLight::setIntensity(double intensity) {
    return change(isNotNegative(intensity), &ZrDbLightData::intensity, intensity);
}

const ZrCmColor& ZrDbLight::lightColor() const { return data().lightColor; }

Quor::ErrorStatus ZrDbLight::setLightColor(const ZrCmColor& color) {
    return change(true, &ZrDbLightData::lightColor, color);
}

ZrGePoint3d ZrDbLight::position() const { return data().position; }

Quor::ErrorStatus ZrDbLight::setPosition(const ZrGePoint3d& position) {
    return change(quor::db::isFinite(position), &ZrDbLightData::position, position);
}

ZrGePoint3d ZrDbLight::targetLocation() const { return data().target; }

Quor::ErrorStatus ZrDbLight::setTargetLocation(const ZrGePoint3d& target) {
    return change(quor::db::isFinite(target), &ZrDbLightData::target, target);
}

ZrGeVector3d ZrDbLight::lightDirection() const {
    const ZrGeVector3d direction = data().target - data().position;
    return direction.isZeroLength() ? ZrGeVector3d() : direction.normal();
}

Quor::ErrorStatus ZrDbLight::setLightDirection(const ZrGeVector3d& direction) {
    if (!quor::db::isFinite(direction) || direction.isZeroLength())
        return Quor::eInvalidInput;
    const double distance = data().position.distanceTo(data().target);
    return setTargetLocation(data().position + direction.normal() * (distance > 0 ? distance : 1));
}

bool ZrDbLight::hasTarget() const { return data().hasTarget; }

Quor::ErrorStatus ZrDbLight::setHasTarget(bool hasTarget) { return change(true, &ZrDbLightData::hasTarget, hasTarget); }

double ZrDbLight::hotspotAngle() const { return data().hotspot; }

double ZrDbLight::falloffAngle() const { return data().falloff; }

Quor::ErrorStatus ZrDbLight::setHotspotAndFalloff(double hotspot, double falloff) {
    const bool accepted = isNotNegative(hotspot) && std::isfinite(falloff) && hotspot <= falloff &&
                          falloff <= kWidestCone + kConeTolerance;
    if (const Quor::ErrorStatus status = change(accepted, &ZrDbLightData::hotspot, hotspot); status != Quor::eOk)
        return status;
    return change(true, &ZrDbLightData::falloff, falloff);
}

const ZrGiLightAttenuation& ZrDbLight::lightAttenuation() const { return data().attenuation; }

Quor::ErrorStatus ZrDbLight::setLightAttenuation(const ZrGiLightAttenuation& attenuation) {
    return change(true, &ZrDbLightData::attenuation, attenuation);
}

Quor::ErrorStatus ZrDbLight::shadowParameters(ZrGiShadowParameters& parameters) const {
    parameters = data().shadow;
    return Quor::eOk;
}

Quor::ErrorStatus ZrDbLight::setShadowParameters(const ZrGiShadowParameters& parameters) {
    return change(true, &ZrDbLightData::shadow, parameters);
}

GlyphDisplay ZrDbLight::glyphDisplay() const { return data().glyph; }

Quor::ErrorStatus ZrDbLight::setGlyphDisplay(GlyphDisplay display) {
    return change(isUpTo(display, GlyphDisplay::kOff), &ZrDbLightData::glyph, display);
}

bool ZrDbLight::plotsGlyph() const { return data().plotsGlyph; }

Quor::ErrorStatus ZrDbLight::setPlotsGlyph(bool plots) { return change(true, &ZrDbLightData::plotsGlyph, plots); }

PhysicalIntensityMethod ZrDbLight::physicalIntensityMethod() const { return data().method; }

Quor::ErrorStatus ZrDbLight::setPhysicalIntensityMethod(PhysicalIntensityMethod method) {
    return change(isUpTo(method, PhysicalIntensityMethod::kIlluminance), &ZrDbLightData::method, method);
}

double ZrDbLight::physicalIntensity() const { return data().physicalIntensity; }

Quor::ErrorStatus ZrDbLight::setPhysicalIntensity(double intensity) {
    return change(isNotNegative(intensity), &ZrDbLightData::physicalIntensity, intensity);
}

double ZrDbLight::illuminanceDistance() const { return data().illuminanceDistance; }

Quor::ErrorStatus ZrDbLight::setIlluminanceDistance(double distance) {
    return change(isNotNegative(distance), &ZrDbLightData::illuminanceDistance, distance);
}

LampColorType ZrDbLight::lampColorType() const { return data().lampType; }

Quor::ErrorStatus ZrDbLight::setLampColorType(LampColorType type) {
    return change(isUpTo(type, LampColorType::kPreset), &ZrDbLightData::lampType, type);
}

double ZrDbLight::lampColorTemp() const { return data().lampTemperature; }

Quor::ErrorStatus ZrDbLight::setLampColorTemp(double kelvin) {
    return change(kelvin >= kColdestLamp && kelvin <= kHottestLamp, &ZrDbLightData::lampTemperature, kelvin);
}

LampColorPreset ZrDbLight::lampColorPreset() const { return data().lampPreset; }

Quor::ErrorStatus ZrDbLight::setLampColorPreset(LampColorPreset preset) {
    return change(isUpTo(preset, LampColorPreset::kCustom), &ZrDbLightData::lampPreset, preset);
}

const ZrString& ZrDbLight::webFile() const { return data().webFile; }

Quor::ErrorStatus ZrDbLight::setWebFile(const ZrString& path, ZrString* reason) {
    if (!path.empty() && lightType() != DrawableType::kWebLight)
        return refused(Quor::eNotApplicable, quor::texts::kWebForWebLightsOnly, reason);
    if (holdsControls(path))
        return refused(Quor::eInvalidInput, quor::texts::kWebNameHoldsControls, reason);
    const quor::db::LightWeb web = quor::db::readLightWeb(path, reason);
    if (web.status != Quor::eOk)
        return web.status;
    if (const Quor::ErrorStatus status = change(true, &ZrDbLightData::webFile, path); status != Quor::eOk)
        return status;
    return change(true, &ZrDbLightData::webFlux, web.flux);
}

double ZrDbLight::webFlux() const { return data().webFlux; }

WebSymmetry ZrDbLight::webSymmetry() const { return quor::db::symmetryOfKeptWeb(data().webFile); }

Quor::ErrorStatus ZrDbLight::webRotation(ZrGeVector3d& rotation) const {
    rotation = data().webRotation;
    return Quor::eOk;
}

Quor::ErrorStatus ZrDbLight::setWebRotation(const ZrGeVector3d& rotation) {
    return change(quor::db::isFinite(rotation), &ZrDbLightData::webRotation, rotation);
}
