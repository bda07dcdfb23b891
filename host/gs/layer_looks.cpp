#include "host/gs/layer_looks.h"

#include "host/db/data.h"
#include "host/db/database.h"

namespace quor::gs {

namespace {

constexpr int kFrozen = 1;

} // namespace

std::uint32_t LayerLooks::numberOf(const db::ObjectEntry* layer) {
    if (layer == lastLayer_ && !layers_.empty())
        return lastNumber_;
    const auto [place, isNew] = numbers_.try_emplace(layer, static_cast<std::uint32_t>(layers_.size()));
    if (isNew) {
        layers_.push_back(layer);
        looks_.push_back(lookOf(layer));
    }
    lastLayer_ = layer;
    return lastNumber_ = place->second;
}

void LayerLooks::refresh() {
    for (std::size_t i = 0; i < layers_.size(); ++i)
        looks_[i] = lookOf(layers_[i]);
}

LayerLook LayerLooks::lookOf(const db::ObjectEntry* layer) const {
    auto* const entry = layer != nullptr ? const_cast<db::ObjectEntry*>(layer) : drawing_.layers().find(L"0");
    if (entry == nullptr)
        return {};
    // The values are read where they stand: the layer may be open for write just now.
    drawing_.materialise(*entry);
    const auto& data = static_cast<const ZrDbLayerTableRecordData&>(*entry->object->hostData());
    return {data.color.rgb(), !data.off && (data.flags & kFrozen) == 0};
}

} // namespace quor::gs
