#include "host/commands/light_fields.h"

#include "sdk/sys/format.h"

#include <iterator>

namespace quor::commands {

namespace {

using F = const LightFacts&;
using Shadows = ZrGiShadowParameters;

constexpr const wchar_t* kKinds[] = {L"point", L"target_point", L"spot", L"free_spot", L"web", L"free_web", L"distant"};
constexpr const wchar_t* kMethods[] = {L"candela", L"lumen", L"illuminance"};
constexpr const wchar_t* kPresets[] = {L"d65_white",
                                       L"fluorescent",
                                       L"cool_white",
                                       L"white_fluorescent",
                                       L"daylight_fluorescent",
                                       L"incandescent",
                                       L"xenon",
                                       L"halogen",
                                       L"quartz",
                                       L"metal_halide",
                                       L"mercury",
                                       L"phosphor_mercury",
                                       L"high_pressure_sodium",
                                       L"low_pressure_sodium",
                                       L"custom"};
constexpr const wchar_t* kShadows[] = {L"sharp", L"soft_mapped", L"soft_sampled"};
constexpr const wchar_t* kAttenuations[] = {L"none", L"inverse_linear", L"inverse_square"};
constexpr const wchar_t* kShapes[] = {L"linear", L"rectangle", L"disk", L"cylinder", L"sphere"};

template <std::size_t N, class E>
FieldValue word(const wchar_t* const (&words)[N], E value) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? FieldValue(ZrString(words[index])) : FieldValue();
}

FieldValue text(const ZrString& value) { return value.empty() ? FieldValue() : FieldValue(value); }
FieldValue number(const std::optional<double>& value) { return value ? FieldValue(*value) : FieldValue(); }
FieldValue whole(int value) { return static_cast<std::int64_t>(value); }

template <class Triple>
FieldValue part(const std::optional<Triple>& triple, double Triple::*component) {
    return triple ? FieldValue((*triple).*component) : FieldValue();
}

FieldValue colorText(const ZrCmColor& color) { return zrFormat(L"#%06X", {color.rgb()}); }

FieldValue colorName(const ZrCmColor& color) {
    if (!color.hasColorName())
        return {};
    return color.bookName().empty() ? color.colorName() : color.bookName() + L"$" + color.colorName();
}

FieldValue unitOfIlluminance(F light, int lightingUnits) {
    return light.illuminance ? text(illuminanceUnit(lightingUnits)) : FieldValue();
}

bool isMapped(F light) { return light.shadows.shadowsOn() && light.shadows.shadowType() == Shadows::kShadowMaps; }
bool isSampled(F light) { return light.shadows.shadowsOn() && light.shadows.shadowType() == Shadows::kAreaSampled; }

FieldValue shadows(F light, int) {
    return light.shadows.shadowsOn() ? word(kShadows, light.shadows.shadowType()) : FieldValue(ZrString(L"off"));
}

// The sizes that a shape has.
bool hasLength(F light) {
    const auto shape = light.shadows.extendedLightShape();
    return isSampled(light) && (shape == Shadows::kLinear || shape == Shadows::kRect || shape == Shadows::kCylinder);
}
bool hasWidth(F light) { return isSampled(light) && light.shadows.extendedLightShape() == Shadows::kRect; }
bool hasRadius(F light) {
    const auto shape = light.shadows.extendedLightShape();
    return isSampled(light) && (shape == Shadows::kDisk || shape == Shadows::kCylinder || shape == Shadows::kSphere);
}

using P = ZrGePoint3d;
using V = ZrGeVector3d;

// clang-format off
constexpr LightField kFields[] = {
    {"handle",               [](F f, int) -> FieldValue { return zrFormat(L"%X", {f.handle.value()}); }},
    {"name",                 [](F f, int) -> FieldValue { return f.name; }},
    {"kind",                 [](F f, int) { return word(kKinds, f.kind); }},
    {"space",                [](F f, int) -> FieldValue { return f.layout.empty() ? ZrString(L"Model") : f.layout; }},
    {"layer",                [](F f, int) -> FieldValue { return f.layer; }},
    {"on",                   [](F f, int) -> FieldValue { return f.on; }},
    {"position_x",           [](F f, int) { return part(f.position, &P::x); }},
    {"position_y",           [](F f, int) { return part(f.position, &P::y); }},
    {"position_z",           [](F f, int) { return part(f.position, &P::z); }},
    {"target_x",             [](F f, int) { return part(f.target, &P::x); }},
    {"target_y",             [](F f, int) { return part(f.target, &P::y); }},
    {"target_z",             [](F f, int) { return part(f.target, &P::z); }},
    {"direction_x",          [](F f, int) { return part(f.direction, &V::x); }},
    {"direction_y",          [](F f, int) { return part(f.direction, &V::y); }},
    {"direction_z",          [](F f, int) { return part(f.direction, &V::z); }},
    {"hotspot_degrees",      [](F f, int) { return number(f.hotspot); }},
    {"falloff_degrees",      [](F f, int) { return number(f.falloff); }},
    {"intensity_factor",     [](F f, int) -> FieldValue { return f.factor; }},
    {"given_as",             [](F f, int) { return word(kMethods, f.method); }},
    {"candela",              [](F f, int) { return number(f.candela); }},
    {"lumen",                [](F f, int) { return number(f.lumen); }},
    {"illuminance",          [](F f, int) { return number(f.illuminance); }},
    {"illuminance_unit",     unitOfIlluminance},
    {"illuminance_distance", [](F f, int) { return number(f.illuminanceDistance); }},
    {"lamp_preset",          [](F f, int) { return f.lampPreset ? word(kPresets, *f.lampPreset) : FieldValue(); }},
    {"lamp_kelvin",          [](F f, int) { return number(f.lampKelvin); }},
    {"color",                [](F f, int) { return colorText(f.color); }},
    {"color_index",          [](F f, int) { return f.color.isByACI() ? whole(f.color.colorIndex()) : FieldValue(); }},
    {"color_name",           [](F f, int) { return colorName(f.color); }},
    {"web_file",             [](F f, int) { return text(f.webFile); }},
    {"shadows",              shadows},
    {"shadow_map_size",      [](F f, int) { return isMapped(f) ? whole(f.shadows.shadowMapSize()) : FieldValue(); }},
    {"shadow_softness",      [](F f, int) { return isMapped(f) ? whole(f.shadows.shadowMapSoftness()) : FieldValue(); }},
    {"shadow_samples",       [](F f, int) { return isSampled(f) ? whole(f.shadows.shadowSamples()) : FieldValue(); }},
    {"shadow_shape",         [](F f, int) { return isSampled(f) ? word(kShapes, f.shadows.extendedLightShape()) : FieldValue(); }},
    {"shadow_shape_length",  [](F f, int) { return hasLength(f) ? FieldValue(f.shadows.extendedLightLength()) : FieldValue(); }},
    {"shadow_shape_width",   [](F f, int) { return hasWidth(f) ? FieldValue(f.shadows.extendedLightWidth()) : FieldValue(); }},
    {"shadow_shape_radius",  [](F f, int) { return hasRadius(f) ? FieldValue(f.shadows.extendedLightRadius()) : FieldValue(); }},
    {"attenuation",          [](F f, int) { return word(kAttenuations, f.attenuation.attenuationType()); }},
    {"attenuation_limits",   [](F f, int) -> FieldValue { return f.attenuation.useLimits(); }},
    {"attenuation_start",    [](F f, int) -> FieldValue { return f.attenuation.startLimit(); }},
    {"attenuation_end",      [](F f, int) -> FieldValue { return f.attenuation.endLimit(); }},
    {"web_rotation_x",       [](F f, int) { return part(f.webRotation, &V::x); }},
    {"web_rotation_y",       [](F f, int) { return part(f.webRotation, &V::y); }},
    {"web_rotation_z",       [](F f, int) { return part(f.webRotation, &V::z); }},
    {"web_flux",             [](F f, int) { return number(f.webFlux); }},
};
// clang-format on

} // namespace

std::span<const LightField> lightFields() { return kFields; }

FieldValues fieldsOf(const LightFacts& light, int lightingUnits) {
    FieldValues values;
    values.reserve(std::size(kFields));
    for (const LightField& field : kFields)
        values.push_back(field.value(light, lightingUnits));
    return values;
}

} // namespace quor::commands
