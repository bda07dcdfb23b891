// The fields of a light and of the record with its photometric data.
#include "host/db/entity_fields.h"

#include "host/db/color_fields.h"
#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/light_tags.h"
#include "host/db/versions.h"

#include <algorithm>
#include <array>
#include <limits>
#include <type_traits>

namespace quor::db {

namespace {

using Light = ZrDbLightData;
using Shadow = ZrGiShadowParameters;

constexpr std::int64_t kClassVersion = 1;

FieldValue none() { return std::nullopt; }
FieldValue whole(std::int64_t value) { return value; }

void readNothing(ZrDbObjectData&, const dxf::Tag&, const FieldContext&) {}

std::wstring exactText(const dxf::Tag& tag, const FieldContext& context) {
    return context.database.file().codec().decode(tag.raw);
}

// A number of a tag, when it is one of those that `Low` to `High` name.
template <int Low, int High>
std::optional<int> ranged(const dxf::Tag& tag) {
    const auto value = tag.asInt();
    return value && *value >= Low && *value <= High ? std::optional(static_cast<int>(*value)) : std::nullopt;
}

template <auto Member>
constexpr Field angle(int code) {
    return {code,
            [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
                if (const auto degrees = tag.asDouble())
                    as<Light>(data).*Member = *degrees * kDegree;
            },
            [](const ZrDbObjectData& data, const FieldContext&) -> FieldValue {
                return toDegrees(as<Light>(data).*Member);
            }};
}

template <std::size_t Index>
constexpr Field webAngle(int code) {
    return {code,
            [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
                if (const auto degrees = tag.asDouble())
                    as<Light>(data).webAngles[Index] = *degrees * kDegree;
            },
            [](const ZrDbObjectData& data, const FieldContext&) -> FieldValue {
                return toDegrees(as<Light>(data).webAngles[Index]);
            }};
}

// An enumeration kept as a whole number from Low to High.
template <auto Member, int Low, int High>
constexpr Field choice(int code) {
    return {code,
            [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
                using Choice = std::remove_reference_t<decltype(as<Light>(data).*Member)>;
                if (const auto value = ranged<Low, High>(tag))
                    as<Light>(data).*Member = static_cast<Choice>(*value);
            },
            [](const ZrDbObjectData& data, const FieldContext&) {
                return whole(static_cast<int>(as<Light>(data).*Member));
            }};
}

// The largest number that goes into a value without losing anything.
template <class Value>
constexpr int kLargest = std::min<std::int64_t>(std::numeric_limits<Value>::max(), std::numeric_limits<int>::max());
template <class Value>
requires std::is_enum_v<Value>
constexpr int kLargest<Value> = std::numeric_limits<std::int16_t>::max();

// A value of the shadow record, by its getter and setter; the setter refuses what it cannot hold.
template <auto Get, auto Set, class Value>
constexpr Field shadowNumber(int code) {
    return {code,
            [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
                if (const auto value = ranged<0, kLargest<Value>>(tag))
                    (void)(as<Light>(data).shadow.*Set)(static_cast<Value>(*value));
            },
            [](const ZrDbObjectData& data, const FieldContext&) {
                return whole(static_cast<std::int64_t>((as<Light>(data).shadow.*Get)()));
            }};
}

template <auto Get, auto Set>
constexpr Field shadowSize(int code) {
    return {
        code,
        [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
            if (const auto value = tag.asDouble())
                (void)(as<Light>(data).shadow.*Set)(*value);
        },
        [](const ZrDbObjectData& data, const FieldContext&) -> FieldValue { return (as<Light>(data).shadow.*Get)(); }};
}

template <auto Get, auto Set>
constexpr Field shadowFlag(int code) {
    return {
        code,
        [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
            (as<Light>(data).shadow.*Set)(tag.asInt().value_or(0) != 0);
        },
        [](const ZrDbObjectData& data, const FieldContext&) { return whole((as<Light>(data).shadow.*Get)() ? 1 : 0); }};
}

template <auto Member, auto Coordinate>
constexpr Field coordinate(int code) {
    return coordinateField<Light, Member, Coordinate>(code);
}

void readName(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    as<Light>(data).name = exactText(tag, context);
}

void readType(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    if (const auto type = light_tags::typeIn(tag))
        as<Light>(data).type = *type;
}

FieldValue writeType(const ZrDbObjectData& data, const FieldContext&) {
    const DrawableType type = as<Light>(data).type;
    return whole(static_cast<int>(type == DrawableType::kWebLight ? DrawableType::kPointLight : type));
}

void readColorIndex(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    if (const auto index = ranged<0, 256>(tag))
        (void)as<Light>(data).lightColor.setColorIndex(*index);
}

FieldValue writeColorIndex(const ZrDbObjectData& data, const FieldContext& context) {
    return context.version <= versions::kOnlyWithRawLightColor ? none()
                                                               : whole(as<Light>(data).lightColor.colorIndex());
}

void readTrueColor(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    takeTrueColor(as<Light>(data).lightColor, tag);
}

FieldValue writeTrueColor(const ZrDbObjectData& data, const FieldContext& context) {
    const ZrCmColor& color = as<Light>(data).lightColor;
    return context.version > versions::kOnlyWithRawLightColor && color.isByColor() ? whole(color.rgb()) : none();
}

void readBookColor(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    takeBookColor(as<Light>(data).lightColor, tag, context.database.file());
}

FieldValue writeBookColor(const ZrDbObjectData& data, const FieldContext& context) {
    return context.version > versions::kOnlyWithRawLightColor ? bookColorText(as<Light>(data).lightColor) : none();
}

void readRawColor(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    if (const auto raw = tag.asInt())
        (void)as<Light>(data).lightColor.setRawColor(static_cast<std::uint32_t>(*raw));
}

FieldValue writeRawColor(const ZrDbObjectData& data, const FieldContext& context) {
    if (context.version > versions::kOnlyWithRawLightColor)
        return none();
    return whole(static_cast<std::int32_t>(as<Light>(data).lightColor.rawColor()));
}

void readAttenuation(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    using Type = ZrGiLightAttenuation::AttenuationType;
    if (const auto type = ranged<0, 2>(tag))
        (void)as<Light>(data).attenuation.setAttenuationType(static_cast<Type>(*type));
}

FieldValue writeAttenuation(const ZrDbObjectData& data, const FieldContext&) {
    return whole(as<Light>(data).attenuation.attenuationType());
}

void readUseLimits(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    as<Light>(data).attenuation.setUseLimits(tag.asInt().value_or(0) != 0);
}

FieldValue writeUseLimits(const ZrDbObjectData& data, const FieldContext&) {
    return whole(as<Light>(data).attenuation.useLimits() ? 1 : 0);
}

void readStartLimit(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    ZrGiLightAttenuation& attenuation = as<Light>(data).attenuation;
    if (const auto limit = tag.asDouble())
        (void)attenuation.setLimits(*limit, attenuation.endLimit());
}

FieldValue writeStartLimit(const ZrDbObjectData& data, const FieldContext&) {
    return as<Light>(data).attenuation.startLimit();
}

void readEndLimit(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    ZrGiLightAttenuation& attenuation = as<Light>(data).attenuation;
    if (const auto limit = tag.asDouble())
        (void)attenuation.setLimits(attenuation.startLimit(), *limit);
}

FieldValue writeEndLimit(const ZrDbObjectData& data, const FieldContext&) {
    return as<Light>(data).attenuation.endLimit();
}

constexpr std::array kLightFields{
    Field{90, readNothing, [](const ZrDbObjectData&, const FieldContext&) { return whole(kClassVersion); }},
    Field{light_tags::kName, readName,
          [](const ZrDbObjectData& data, const FieldContext&) -> FieldValue { return as<Light>(data).name; }},
    Field{light_tags::kType, readType, writeType},
    boolField<Light, &Light::on>(290),
    Field{63, readColorIndex, writeColorIndex},
    Field{421, readTrueColor, writeTrueColor},
    Field{431, readBookColor, writeBookColor},
    Field{90, readRawColor, writeRawColor},
    boolField<Light, &Light::plotsGlyph>(291),
    realField<Light, &Light::intensity>(40),
    coordinate<&Light::position, &ZrGePoint3d::x>(10),
    coordinate<&Light::position, &ZrGePoint3d::y>(20),
    coordinate<&Light::position, &ZrGePoint3d::z>(30),
    coordinate<&Light::target, &ZrGePoint3d::x>(11),
    coordinate<&Light::target, &ZrGePoint3d::y>(21),
    coordinate<&Light::target, &ZrGePoint3d::z>(31),
    Field{72, readAttenuation, writeAttenuation},
    Field{292, readUseLimits, writeUseLimits},
    Field{41, readStartLimit, writeStartLimit},
    Field{42, readEndLimit, writeEndLimit},
    angle<&Light::hotspot>(50),
    angle<&Light::falloff>(51),
    shadowFlag<&Shadow::shadowsOn, &Shadow::setShadowsOn>(293),
    shadowNumber<&Shadow::shadowType, &Shadow::setShadowType, Shadow::ShadowType>(73),
    shadowNumber<&Shadow::shadowMapSize, &Shadow::setShadowMapSize, std::uint16_t>(91),
    shadowNumber<&Shadow::shadowMapSoftness, &Shadow::setShadowMapSoftness, std::uint8_t>(light_tags::kLast),
};

void readHasWeb(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    Light& light = as<Light>(data);
    light.type = light_tags::withWeb(light.type, tag);
}

FieldValue writeHasWeb(const ZrDbObjectData& data, const FieldContext&) {
    return whole(as<Light>(data).type == DrawableType::kWebLight ? 1 : 0);
}

void readWebFile(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    as<Light>(data).webFile = exactText(tag, context);
}

FieldValue writeWebFile(const ZrDbObjectData& data, const FieldContext&) {
    const Light& light = as<Light>(data);
    if (light.type != DrawableType::kWebLight && light.webFile.empty())
        return none();
    return light.webFile;
}

constexpr std::array kPhotometryFields{
    Field{light_tags::kHasWeb, readHasWeb, writeHasWeb},
    Field{300, readWebFile, writeWebFile},
    choice<&Light::method, 0, 2>(70),
    realField<Light, &Light::physicalIntensity>(40),
    realField<Light, &Light::illuminanceDistance>(41),
    choice<&Light::lampType, 0, 1>(71),
    realField<Light, &Light::lampTemperature>(42),
    choice<&Light::lampPreset, 0, 14>(72),
    coordinate<&Light::webRotation, &ZrGeVector3d::x>(43),
    coordinate<&Light::webRotation, &ZrGeVector3d::y>(44),
    coordinate<&Light::webRotation, &ZrGeVector3d::z>(45),
    shadowNumber<&Shadow::extendedLightShape, &Shadow::setExtendedLightShape, Shadow::ExtendedLightShape>(73),
    shadowSize<&Shadow::extendedLightLength, &Shadow::setExtendedLightLength>(46),
    shadowSize<&Shadow::extendedLightWidth, &Shadow::setExtendedLightWidth>(47),
    shadowSize<&Shadow::extendedLightRadius, &Shadow::setExtendedLightRadius>(48),
    shadowNumber<&Shadow::shadowSamples, &Shadow::setShadowSamples, std::uint16_t>(74),
    shadowFlag<&Shadow::shapeVisibility, &Shadow::setShapeVisibility>(75),
    boolField<Light, &Light::hasTarget>(76),
    realField<Light, &Light::webFlux>(49),
    webAngle<0>(50),
    webAngle<1>(51),
    webAngle<2>(53),
    webAngle<3>(54),
    webAngle<4>(55),
    choice<&Light::glyph, 0, 2>(77),
};

} // namespace

std::span<const FieldGroup> lightGroups() {
    static const std::array groups{FieldGroup{"AcDbEntity", entityFields()},
                                   FieldGroup{light_tags::kLight, kLightFields, true}};
    return groups;
}

std::span<const FieldGroup> photometryGroups() {
    static const std::array groups{FieldGroup{light_tags::kPhotometry, kPhotometryFields}};
    return groups;
}

} // namespace quor::db
