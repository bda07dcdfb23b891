// The records that a light carries: attenuation, shadows, the photometric web, its glyph.
#include "host/ed/support_files.h"
#include "host/props/kinds.h"
#include "host/props/light_facts.h"
#include "host/props/light_rows.h"
#include "host/session.h"
#include "host/sys/path_text.h"
#include "host/texts/ies_info.h"
#include "host/texts/list.h"
#include "host/texts/properties.h"

namespace quor::props {

namespace {

constexpr int kDigitsOfWeb = 5; // what a web shines is not known more exactly

bool isWebLight(E e, C) { return lit(e).lightType() == DrawableType::kWebLight; }
bool hasWeb(E e, C context) { return isWebLight(e, context) && !lit(e).webFile().empty(); }
bool hasOneWeb(E e, C context) { return !context.several && hasWeb(e, context); }

// Attenuation.

bool usesLimits(E e, C context) { return isSomewhere(e, context) && lit(e).lightAttenuation().useLimits(); }

Refusal writeStart(ZrDbEntity& e, const Value& value, C) {
    return changeAttenuation(e, [&](Attenuation& a) { return a.setLimits(std::get<double>(value), a.endLimit()); });
}
Refusal writeEnd(ZrDbEntity& e, const Value& value, C) {
    return changeAttenuation(e, [&](Attenuation& a) { return a.setLimits(a.startLimit(), std::get<double>(value)); });
}
Refusal writeAttenuation(ZrDbEntity& e, const Value& value, C) {
    return changeAttenuation(e, [&](Attenuation& a) {
        return a.setAttenuationType(static_cast<Attenuation::AttenuationType>(std::get<int>(value)));
    });
}
Refusal writeUsesLimits(ZrDbEntity& e, const Value& value, C) {
    return changeAttenuation(e, [&](Attenuation& a) {
        a.setUseLimits(std::get<bool>(value));
        return true;
    });
}

// Shadows: those that are off keep their kind, and it counts again when they are on.

bool castsShadows(E e, C) { return shadowsOf(e).shadowsOn(); }
template <Shadows::ShadowType Type>
bool casts(E e, C) {
    const Shadows shadows = shadowsOf(e);
    return shadows.shadowsOn() && shadows.shadowType() == Type;
}
template <Shadows::ExtendedLightShape... Shapes>
bool hasShape(E e, C context) {
    const auto shape = shadowsOf(e).extendedLightShape();
    return casts<Shadows::kAreaSampled>(e, context) && ((shape == Shapes) || ...);
}

constexpr int kSmallestMap = 64;
constexpr Text kMapSizes[] = {{L"64", L"64"},     {L"128", L"128"},   {L"256", L"256"},  {L"512", L"512"},
                              {L"1024", L"1024"}, {L"2048", L"2048"}, {L"4096", L"4096"}};

int placeOfMapSize(int size) {
    int place = 0;
    while (kSmallestMap << place < size)
        ++place;
    return place;
}

// A member of the record, as the number or the place in a list that people see.
template <class T, class N, N (Shadows::*Get)() const>
Value readShadow(E e, C) {
    return static_cast<T>((shadowsOf(e).*Get)());
}
template <class T, class N, bool (Shadows::*Set)(N)>
Refusal writeShadow(ZrDbEntity& e, const Value& value, C) {
    return changeShadows(e, [&](Shadows& shadows) { return (shadows.*Set)(static_cast<N>(std::get<T>(value))); });
}

template <double (Shadows::*Get)() const, bool (Shadows::*Set)(double)>
constexpr Property shapeSize(std::string_view id, const Text& label, Property::Applies counts) {
    return {.id = id,
            .group = Group::Shadows,
            .label = label,
            .editor = Editor::Number,
            .quantity = Quantity::Length,
            .range = kNotNegative,
            .read = readShadow<double, double, Get>,
            .write = writeShadow<double, double, Set>,
            .counts = counts};
}

// The web.

// A path that leads nowhere is answered before the light refuses it, because the light would not look for it.
Refusal writeWebFile(ZrDbEntity& e, const Value& value, C) {
    const ZrString& typed = std::get<ZrString>(value);
    ZrString path;
    if (!typed.empty()) {
        const auto found = ed::findSupportFile(Session::current(), typed);
        if (!found)
            return fill(texts::kWebFileNotFound, typed);
        path = textOf(*found);
    }
    ZrString reason;
    const Quor::ErrorStatus status = lit(e).setWebFile(path, &reason);
    return status == Quor::eOk || reason.empty() ? refusalOf(status) : Refusal(reason);
}

Value readSymmetry(E e, C) {
    const auto place = static_cast<std::size_t>(lit(e).webSymmetry());
    return place < std::size(texts::kWebSymmetries) ? Value(ZrString(texts::kWebSymmetries[place].get())) : Value();
}

template <double ZrGeVector3d::*Axis>
constexpr Property rotation(std::string_view id, const Text& label) {
    return {.id = id,
            .group = Group::Web,
            .label = label,
            .editor = Editor::Number,
            .read = [](E e, C) -> Value {
                ZrGeVector3d turned;
                lit(e).webRotation(turned);
                return turned.*Axis;
            },
            .write =
                [](ZrDbEntity& e, const Value& value, C) {
                    ZrGeVector3d turned;
                    lit(e).webRotation(turned);
                    turned.*Axis = std::get<double>(value);
                    return refusalOf(lit(e).setWebRotation(turned));
                },
            .counts = isWebLight};
}

constexpr Property kRows[] = {
    {.id = "attenuation.type",
     .group = Group::Attenuation,
     .label = texts::kLightAttenuation,
     .editor = Editor::Choice,
     .choices = texts::kAttenuations,
     .read = [](E e, C) -> Value { return static_cast<int>(lit(e).lightAttenuation().attenuationType()); },
     .write = writeAttenuation,
     .counts = isSomewhere},
    {.id = "attenuation.limits",
     .group = Group::Attenuation,
     .label = texts::kLightUsesLimits,
     .editor = Editor::YesNo,
     .choices = texts::kNoYes,
     .read = [](E e, C) -> Value { return lit(e).lightAttenuation().useLimits(); },
     .write = writeUsesLimits,
     .counts = isSomewhere},
    {.id = "attenuation.start",
     .group = Group::Attenuation,
     .label = texts::kLightStartLimit,
     .editor = Editor::Number,
     .quantity = Quantity::Length,
     .range = kNotNegative,
     .read = [](E e, C) -> Value { return lit(e).lightAttenuation().startLimit(); },
     .write = writeStart,
     .counts = usesLimits},
    {.id = "attenuation.end",
     .group = Group::Attenuation,
     .label = texts::kLightEndLimit,
     .editor = Editor::Number,
     .quantity = Quantity::Length,
     .range = kNotNegative,
     .read = [](E e, C) -> Value { return lit(e).lightAttenuation().endLimit(); },
     .write = writeEnd,
     .counts = usesLimits},
    {.id = "shadows.type",
     .group = Group::Shadows,
     .label = texts::kRowShadowKind,
     .editor = Editor::Choice,
     .choices = texts::kShadowKinds,
     .read = readShadow<int, Shadows::ShadowType, &Shadows::shadowType>,
     .write = writeShadow<int, Shadows::ShadowType, &Shadows::setShadowType>,
     .counts = castsShadows},
    {.id = "shadows.map",
     .group = Group::Shadows,
     .label = texts::kLightMapSize,
     .editor = Editor::Choice,
     .choices = kMapSizes,
     .read = [](E e, C) -> Value { return placeOfMapSize(shadowsOf(e).shadowMapSize()); },
     .write =
         [](ZrDbEntity& e, const Value& value, C) {
             const auto size = static_cast<std::uint16_t>(kSmallestMap << std::get<int>(value));
             return changeShadows(e, [&](Shadows& shadows) { return shadows.setShadowMapSize(size); });
         },
     .counts = casts<Shadows::kShadowMaps>},
    {.id = "shadows.softness",
     .group = Group::Shadows,
     .label = texts::kLightSoftness,
     .editor = Editor::Number,
     .quantity = Quantity::Whole,
     .range = {1, 10},
     .read = readShadow<double, std::uint8_t, &Shadows::shadowMapSoftness>,
     .write = writeShadow<double, std::uint8_t, &Shadows::setShadowMapSoftness>,
     .counts = casts<Shadows::kShadowMaps>},
    {.id = "shadows.samples",
     .group = Group::Shadows,
     .label = texts::kLightSamples,
     .editor = Editor::Number,
     .quantity = Quantity::Whole,
     .range = {0, 1024},
     .read = readShadow<double, std::uint16_t, &Shadows::shadowSamples>,
     .write = writeShadow<double, std::uint16_t, &Shadows::setShadowSamples>,
     .counts = casts<Shadows::kAreaSampled>},
    {.id = "shadows.shape",
     .group = Group::Shadows,
     .label = texts::kLightShape,
     .editor = Editor::Choice,
     .choices = texts::kShapes,
     .read = readShadow<int, Shadows::ExtendedLightShape, &Shadows::extendedLightShape>,
     .write = writeShadow<int, Shadows::ExtendedLightShape, &Shadows::setExtendedLightShape>,
     .counts = casts<Shadows::kAreaSampled>},
    shapeSize<&Shadows::extendedLightLength, &Shadows::setExtendedLightLength>(
        "shadows.length", texts::kLightShapeLength, hasShape<Shadows::kLinear, Shadows::kRect, Shadows::kCylinder>),
    shapeSize<&Shadows::extendedLightWidth, &Shadows::setExtendedLightWidth>("shadows.width", texts::kLightShapeWidth,
                                                                             hasShape<Shadows::kRect>),
    shapeSize<&Shadows::extendedLightRadius, &Shadows::setExtendedLightRadius>(
        "shadows.radius", texts::kLightShapeRadius, hasShape<Shadows::kDisk, Shadows::kCylinder, Shadows::kSphere>),
    {.id = "shadows.visible",
     .group = Group::Shadows,
     .label = texts::kLightShapeVisible,
     .editor = Editor::YesNo,
     .choices = texts::kNoYes,
     .read = [](E e, C) -> Value { return shadowsOf(e).shapeVisibility(); },
     .write =
         [](ZrDbEntity& e, const Value& value, C) {
             return changeShadows(e, [&](Shadows& shadows) {
                 shadows.setShapeVisibility(std::get<bool>(value));
                 return true;
             });
         },
     .counts = casts<Shadows::kAreaSampled>},
    {.id = "web.file",
     .group = Group::Web,
     .label = texts::kLightWebFile,
     .editor = Editor::File,
     .read = [](E e, C) -> Value { return lit(e).webFile(); },
     .write = writeWebFile,
     .counts = isWebLight},
    {.id = "web.flux",
     .group = Group::Web,
     .label = texts::kRowWebFlux,
     .quantity = Quantity::Lumen,
     .read = [](E e, C) -> Value { return roundedTo(kDigitsOfWeb, lit(e).webFlux()); },
     .counts = hasWeb},
    {.id = "web.symmetry",
     .group = Group::Web,
     .label = texts::kRowWebSymmetry,
     .read = readSymmetry,
     .counts = hasOneWeb},
    rotation<&ZrGeVector3d::x>("web.rotation.x", texts::kRowRotationX),
    rotation<&ZrGeVector3d::y>("web.rotation.y", texts::kRowRotationY),
    rotation<&ZrGeVector3d::z>("web.rotation.z", texts::kRowRotationZ),
    {.id = "glyph.display",
     .group = Group::Glyph,
     .label = texts::kLightGlyph,
     .editor = Editor::Choice,
     .choices = texts::kGlyphDisplays,
     .read = [](E e, C) -> Value { return static_cast<int>(lit(e).glyphDisplay()); },
     .write = [](ZrDbEntity& e, const Value& value,
                 C) { return refusalOf(lit(e).setGlyphDisplay(std::get<int>(value))); }},
    {.id = "glyph.plot",
     .group = Group::Glyph,
     .label = texts::kLightPlotGlyph,
     .editor = Editor::YesNo,
     .choices = texts::kNoYes,
     .read = [](E e, C) -> Value { return lit(e).plotsGlyph(); },
     .write = [](ZrDbEntity& e, const Value& value,
                 C) { return refusalOf(lit(e).setPlotsGlyph(std::get<bool>(value))); }},
};

} // namespace

std::span<const Property> lightDetails() { return kRows; }

} // namespace quor::props
