// Where a light is, where it aims, how wide its cone is. A distant light is nowhere: it has a direction only.
#include "host/props/coordinates.h"
#include "host/props/kinds.h"
#include "host/props/light_facts.h"
#include "host/props/light_rows.h"
#include "host/texts/light_table.h"
#include "host/texts/list.h"
#include "host/texts/properties.h"

#include <algorithm>
#include <numbers>

namespace quor::props {

namespace {

using Light = ZrDbLight;
using P = ZrGePoint3d;

constexpr double kDegree = std::numbers::pi / 180;
constexpr Range kConeAngles{0, 160};

bool hasTarget(E e, C) { return !isDistant(e) && lit(e).hasTarget(); }
// What aims without a target.
bool hasDirection(E e, C) {
    const bool aims = lit(e).lightType() != DrawableType::kPointLight;
    return aims && (isDistant(e) || !lit(e).hasTarget());
}
bool hasCone(E e, C) { return lit(e).lightType() == DrawableType::kSpotLight; }

template <double P::*Component>
constexpr Property position(std::string_view id, const Text& label) {
    return coordinate<Light, &Light::position, &Light::setPosition, Component>(id, label, isSomewhere);
}
template <double P::*Component>
constexpr Property target(std::string_view id, const Text& label) {
    return coordinate<Light, &Light::targetLocation, &Light::setTargetLocation, Component>(id, label, hasTarget);
}
template <double ZrGeVector3d::*Component>
constexpr Property direction(std::string_view id, const Text& label) {
    constexpr int kDigits = 6;
    return {.id = id,
            .group = Group::Geometry,
            .label = label,
            .read = [](E e, C) -> Value { return roundedTo(kDigits, inUcs<Component>(lit(e).lightDirection())); },
            .counts = hasDirection};
}

// The hotspot lies within the falloff: the one that is not entered gives way.
Refusal writeHotspot(ZrDbEntity& e, const Value& value, C) {
    const double hotspot = std::get<double>(value) * kDegree;
    return refusalOf(lit(e).setHotspotAndFalloff(hotspot, std::max(hotspot, lit(e).falloffAngle())));
}
Refusal writeFalloff(ZrDbEntity& e, const Value& value, C) {
    const double falloff = std::get<double>(value) * kDegree;
    return refusalOf(lit(e).setHotspotAndFalloff(std::min(falloff, lit(e).hotspotAngle()), falloff));
}

constexpr Property kRows[] = {
    position<&P::x>("geometry.position.x", texts::kRowPositionX),
    position<&P::y>("geometry.position.y", texts::kRowPositionY),
    position<&P::z>("geometry.position.z", texts::kRowPositionZ),
    {.id = "geometry.targeted",
     .group = Group::Geometry,
     .label = texts::kLightTargeted,
     .editor = Editor::YesNo,
     .choices = texts::kNoYes,
     .read = [](E e, C) -> Value { return lit(e).hasTarget(); },
     .write = [](ZrDbEntity& e, const Value& value,
                 C) { return refusalOf(lit(e).setHasTarget(std::get<bool>(value))); },
     .counts = isSomewhere},
    target<&P::x>("geometry.target.x", texts::kTableTargetX),
    target<&P::y>("geometry.target.y", texts::kTableTargetY),
    target<&P::z>("geometry.target.z", texts::kTableTargetZ),
    direction<&ZrGeVector3d::x>("geometry.direction.x", texts::kRowDirectionX),
    direction<&ZrGeVector3d::y>("geometry.direction.y", texts::kRowDirectionY),
    direction<&ZrGeVector3d::z>("geometry.direction.z", texts::kRowDirectionZ),
    {.id = "geometry.hotspot",
     .group = Group::Geometry,
     .label = texts::kLightHotspot,
     .editor = Editor::Number,
     .quantity = Quantity::Degrees,
     .range = kConeAngles,
     .read = [](E e, C) -> Value { return typedDegrees(lit(e).hotspotAngle()); },
     .write = writeHotspot,
     .counts = hasCone},
    {.id = "geometry.falloff",
     .group = Group::Geometry,
     .label = texts::kLightFalloff,
     .editor = Editor::Number,
     .quantity = Quantity::Degrees,
     .range = kConeAngles,
     .read = [](E e, C) -> Value { return typedDegrees(lit(e).falloffAngle()); },
     .write = writeFalloff,
     .counts = hasCone},
};

} // namespace

std::span<const Property> lightGeometry() { return kRows; }

} // namespace quor::props
