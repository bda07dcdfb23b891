#include "host/gs/shapes/source.h"

#include "host/cm/palette.h"
#include "host/db/data.h"

namespace quor::gs {

namespace {

constexpr int kMarker = 100;
constexpr int kLayer = 8;
constexpr int kInvisible = 60;
constexpr int kColorIndex = 62;
constexpr int kTrueColor = 420;

constexpr std::int64_t kByBlock = 0;
constexpr std::int64_t kMostIndexed = 255;
constexpr std::uint32_t kRgbMask = 0xFFFFFF;
constexpr std::wstring_view kLayerZero = L"0";

void takeIndex(Look& look, std::int64_t index) {
    if (index == kByBlock) {
        look.color = Look::Color::ByBlock;
    } else if (index > kByBlock && index <= kMostIndexed) {
        look.color = Look::Color::Fixed;
        look.rgb = cm::paletteRgb(static_cast<int>(index));
    } else {
        look.color = Look::Color::ByLayer;
    }
}

void takeTag(Look& look, const dxf::Tag& tag, LayerFinder& layers) {
    if (tag.code == kLayer) {
        const LayerFinder::Found found = layers.find(tag);
        look.layer = found.layer;
        look.onLayerZero = found.isZero;
    } else if (tag.code == kInvisible) {
        look.visible = tag.asInt().value_or(0) == 0;
    } else if (const auto number = tag.asInt(); number && tag.code == kColorIndex) {
        if (look.color != Look::Color::Fixed)
            takeIndex(look, *number);
    } else if (number && tag.code == kTrueColor) {
        look.color = Look::Color::Fixed;
        look.rgb = static_cast<std::uint32_t>(*number) & kRgbMask;
    }
}

Look lookOf(const ZrDbEntityData& data, const db::Layers& layers) {
    Look look;
    look.layer = data.layer;
    look.onLayerZero = data.layer == nullptr ? data.missingLayer == kLayerZero : data.layer == layers.find(kLayerZero);
    look.visible = data.visible;
    if (data.color.isByBlock())
        look.color = Look::Color::ByBlock;
    else if (!data.color.isByLayer())
        look.color = Look::Color::Fixed;
    look.rgb = data.color.rgb();
    return look;
}

} // namespace

LayerFinder::Found LayerFinder::find(const dxf::Tag& name) {
    if (hasLast_ && name.raw == last_)
        return found_;
    const ZrString text = drawing_.file().text(name);
    found_ = {drawing_.layers().find(text), text == kLayerZero};
    last_ = name.raw;
    hasLast_ = true;
    return found_;
}

// What all entities have in common ends at the second marker. Old drawings have no markers, and all tags in one.
Head readHead(const db::DrawingFile& file, const dxf::Record& record, LayerFinder& layers) {
    static constexpr dxf::CodeSet kWanted{kMarker, kLayer, kInvisible, kColorIndex, kTrueColor};
    Head head;
    head.bodyBegin = record.begin;
    dxf::TagReader reader = file.tags(record);
    int markers = 0;
    dxf::Tag tag;
    while (reader.next(tag, kWanted) && tag.code < dxf::CodeSet::kFirstExtendedData) {
        if (tag.code != kMarker) {
            takeTag(head.look, tag, layers);
        } else if (++markers == 2) {
            head.bodyBegin = tag.end;
            break;
        }
    }
    return head;
}

std::optional<Look> lookInMemory(const db::ObjectEntry& entity) {
    const auto* const data =
        entity.object == nullptr ? nullptr : dynamic_cast<const ZrDbEntityData*>(entity.object->hostData().get());
    return data == nullptr ? std::nullopt : std::optional(lookOf(*data, entity.database->layers()));
}

} // namespace quor::gs
