#include "host/db/entity_fields.h"

#include "host/db/color_fields.h"
#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/layers.h"
#include "host/db/versions.h"

#include <array>
#include <cmath>
#include <fmt/format.h>

namespace quor::db {

namespace {

using Entity = ZrDbEntityData;

constexpr int kByLayerWeight = -1;

void readLayer(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    const ZrString name = context.database.file().text(tag);
    Entity& entity = as<Entity>(data);
    entity.layer = context.database.layers().find(name);
    entity.missingLayer = entity.layer == nullptr ? name : ZrString();
}

FieldValue writeLayer(const ZrDbObjectData& data, const FieldContext& context) {
    const Entity& entity = as<Entity>(data);
    return entity.layer == nullptr ? entity.missingLayer : context.database.layers().nameInFile(*entity.layer);
}

void readLinetype(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    as<Entity>(data).linetype = context.database.file().text(tag);
}

FieldValue writeLinetype(const ZrDbObjectData& data, const FieldContext&) {
    const ZrString& name = as<Entity>(data).linetype;
    return name.empty() ? FieldValue() : FieldValue(name);
}

void readColorIndex(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    if (const auto index = tag.asInt())
        (void)as<Entity>(data).color.setColorIndex(static_cast<int>(*index));
}

FieldValue writeColorIndex(const ZrDbObjectData& data, const FieldContext&) {
    const ZrCmColor& color = as<Entity>(data).color;
    return color.isByLayer() ? FieldValue() : FieldValue(std::int64_t{color.colorIndex()});
}

void readLineWeight(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    if (const auto weight = tag.asInt())
        as<Entity>(data).lineWeight = static_cast<int>(*weight);
}

FieldValue writeLineWeight(const ZrDbObjectData& data, const FieldContext&) {
    const int weight = as<Entity>(data).lineWeight;
    return weight == kByLayerWeight ? FieldValue() : FieldValue(std::int64_t{weight});
}

void readInvisible(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    as<Entity>(data).visible = tag.asInt().value_or(0) == 0;
}

FieldValue writeInvisible(const ZrDbObjectData& data, const FieldContext&) {
    return as<Entity>(data).visible ? FieldValue() : FieldValue(std::int64_t{1});
}

void readTrueColor(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    takeTrueColor(as<Entity>(data).color, tag);
}

FieldValue writeTrueColor(const ZrDbObjectData& data, const FieldContext& context) {
    const ZrCmColor& color = as<Entity>(data).color;
    return color.isByColor() && context.version >= versions::kFirstWithTrueColor ? FieldValue(std::int64_t{color.rgb()})
                                                                                 : FieldValue();
}

void readBookColor(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    takeBookColor(as<Entity>(data).color, tag, context.database.file());
}

FieldValue writeBookColor(const ZrDbObjectData& data, const FieldContext& context) {
    return context.version >= versions::kFirstWithTrueColor ? bookColorText(as<Entity>(data).color) : std::nullopt;
}

constexpr std::array kEntityFields{
    Field{8, readLayer, writeLayer},
    Field{6, readLinetype, writeLinetype},
    Field{62, readColorIndex, writeColorIndex},
    Field{370, readLineWeight, writeLineWeight},
    Field{60, readInvisible, writeInvisible},
    Field{420, readTrueColor, writeTrueColor},
    Field{430, readBookColor, writeBookColor},
};

template <auto Member, double ZrGePoint3d::*Coordinate>
constexpr Field lineCoordinate(int code) {
    return coordinateField<ZrDbLineData, Member, Coordinate>(code);
}

constexpr std::array kLineFields{
    lineCoordinate<&ZrDbLineData::start, &ZrGePoint3d::x>(10),
    lineCoordinate<&ZrDbLineData::start, &ZrGePoint3d::y>(20),
    lineCoordinate<&ZrDbLineData::start, &ZrGePoint3d::z>(30),
    lineCoordinate<&ZrDbLineData::end, &ZrGePoint3d::x>(11),
    lineCoordinate<&ZrDbLineData::end, &ZrGePoint3d::y>(21),
    lineCoordinate<&ZrDbLineData::end, &ZrGePoint3d::z>(31),
};

// Coordinate of corner `Corner` of a face.
template <std::size_t Corner, double ZrGePoint3d::*Coordinate>
constexpr Field corner(int code) {
    return {code,
            [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
                if (const auto value = tag.asDouble())
                    as<ZrDbFaceData>(data).vertices[Corner].*Coordinate = *value;
            },
            [](const ZrDbObjectData& data, const FieldContext&) -> FieldValue {
                return as<ZrDbFaceData>(data).vertices[Corner].*Coordinate;
            }};
}

FieldValue writeHiddenEdges(const ZrDbObjectData& data, const FieldContext&) {
    const int edges = as<ZrDbFaceData>(data).hiddenEdges;
    return edges == 0 ? FieldValue() : FieldValue(std::int64_t{edges});
}

constexpr std::array kFaceFields{
    corner<0, &ZrGePoint3d::x>(10),
    corner<0, &ZrGePoint3d::y>(20),
    corner<0, &ZrGePoint3d::z>(30),
    corner<1, &ZrGePoint3d::x>(11),
    corner<1, &ZrGePoint3d::y>(21),
    corner<1, &ZrGePoint3d::z>(31),
    corner<2, &ZrGePoint3d::x>(12),
    corner<2, &ZrGePoint3d::y>(22),
    corner<2, &ZrGePoint3d::z>(32),
    corner<3, &ZrGePoint3d::x>(13),
    corner<3, &ZrGePoint3d::y>(23),
    corner<3, &ZrGePoint3d::z>(33),
    Field{70, intField<ZrDbFaceData, &ZrDbFaceData::hiddenEdges>(70).read, writeHiddenEdges},
};

} // namespace

std::span<const Field> entityFields() { return kEntityFields; }

std::span<const FieldGroup> entityGroups() {
    static const std::array groups{FieldGroup{"AcDbEntity", kEntityFields}};
    return groups;
}

std::span<const FieldGroup> lineGroups() {
    static const std::array groups{FieldGroup{"AcDbEntity", kEntityFields}, FieldGroup{"AcDbLine", kLineFields}};
    return groups;
}

std::span<const FieldGroup> faceGroups() {
    static const std::array groups{FieldGroup{"AcDbEntity", kEntityFields}, FieldGroup{"AcDbFace", kFaceFields}};
    return groups;
}

double toDegrees(double radians) {
    const double degrees = radians / kDegree;
    // 45 degrees went through radians and came back as 45.00000000000001: take the plain number when it means the same.
    const double plain = *dxf::parseDouble(fmt::format("{:.14g}", degrees));
    return plain * kDegree == radians ? plain : degrees;
}

} // namespace quor::db
