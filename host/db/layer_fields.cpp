// The fields of a layer.
#include "host/db/entity_fields.h"

#include "host/db/color_fields.h"
#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/layers.h"
#include "host/db/versions.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace quor::db {

namespace {

using Layer = ZrDbLayerTableRecordData;

// Files up to AC1018 have no mark for hidden layers; these two are known by name, frozen and locked.
constexpr std::array<std::wstring_view, 2> kSystemLayers{L"ADSK_SYSTEM_LIGHTS", L"ADSK_CONSTRAINTS"};
constexpr int kFrozenAndLocked = 1 | 4;

void readName(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    Layer& layer = as<Layer>(data);
    layer.name = context.database.file().text(tag);
    layer.hidden = layer.name.starts_with(L'*');
    if (layer.hidden)
        layer.name.erase(0, 1);
}

FieldValue writeName(const ZrDbObjectData& data, const FieldContext& context) {
    const Layer& layer = as<Layer>(data);
    return layer.hidden && marksHiddenLayers(context.version) ? L"*" + layer.name : layer.name;
}

bool isSystemLayer(const ZrString& name) {
    return std::any_of(kSystemLayers.begin(), kSystemLayers.end(),
                       [&](std::wstring_view known) { return equalFolded(known, name); });
}

void readFlags(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    Layer& layer = as<Layer>(data);
    layer.flags = static_cast<int>(tag.asInt().value_or(0));
    const bool lockedAway = (layer.flags & kFrozenAndLocked) == kFrozenAndLocked;
    if (!marksHiddenLayers(context.version) && lockedAway && isSystemLayer(layer.name)) {
        layer.hidden = true;
        layer.flags &= ~kFrozenAndLocked;
    }
}

FieldValue writeFlags(const ZrDbObjectData& data, const FieldContext& context) {
    const Layer& layer = as<Layer>(data);
    const bool lockAway = layer.hidden && !marksHiddenLayers(context.version);
    return std::int64_t{lockAway ? layer.flags | kFrozenAndLocked : layer.flags};
}

void readColor(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    Layer& layer = as<Layer>(data);
    if (const auto index = tag.asInt()) {
        layer.off = *index < 0;
        (void)layer.color.setColorIndex(static_cast<int>(std::abs(*index)));
    }
}

FieldValue writeColor(const ZrDbObjectData& data, const FieldContext&) {
    const Layer& layer = as<Layer>(data);
    const bool keepsOwn = layer.color.isByColor() && layer.indexBesideTrueColor != 0;
    const std::int64_t index = keepsOwn ? layer.indexBesideTrueColor : layer.color.colorIndex();
    return layer.off ? -index : index;
}

void readLinetype(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    as<Layer>(data).linetype = context.database.file().text(tag);
}

FieldValue writeLinetype(const ZrDbObjectData& data, const FieldContext&) {
    const ZrString& name = as<Layer>(data).linetype;
    return name.empty() ? ZrString(L"Continuous") : name;
}

void readTrueColor(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
    Layer& layer = as<Layer>(data);
    if (!layer.color.isByColor())
        layer.indexBesideTrueColor = layer.color.colorIndex();
    takeTrueColor(layer.color, tag);
}

FieldValue writeTrueColor(const ZrDbObjectData& data, const FieldContext& context) {
    const ZrCmColor& color = as<Layer>(data).color;
    return color.isByColor() && context.version >= versions::kFirstWithTrueColor ? FieldValue(std::int64_t{color.rgb()})
                                                                                 : FieldValue();
}

void readBookColor(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    takeBookColor(as<Layer>(data).color, tag, context.database.file());
}

FieldValue writeBookColor(const ZrDbObjectData& data, const FieldContext& context) {
    return context.version >= versions::kFirstWithTrueColor ? bookColorText(as<Layer>(data).color) : std::nullopt;
}

FieldValue writePlottable(const ZrDbObjectData& data, const FieldContext&) {
    return as<Layer>(data).plottable ? FieldValue() : FieldValue(std::int64_t{0});
}

constexpr std::array kLayerFields{
    Field{2, readName, writeName},
    Field{70, readFlags, writeFlags},
    Field{62, readColor, writeColor},
    Field{420, readTrueColor, writeTrueColor},
    Field{430, readBookColor, writeBookColor},
    Field{6, readLinetype, writeLinetype},
    Field{290, boolField<Layer, &Layer::plottable>(290).read, writePlottable},
    intField<Layer, &Layer::lineWeight>(370),
};

} // namespace

std::span<const FieldGroup> layerGroups() {
    static const std::array groups{FieldGroup{"AcDbLayerTableRecord", kLayerFields}};
    return groups;
}

} // namespace quor::db
