#include "host/props/layer_rows.h"

#include "host/db/database.h"
#include "host/props/layer_name.h"
#include "host/texts/commands.h"
#include "host/texts/properties.h"
#include "sdk/db/symbol_table.h"

namespace quor::props {

namespace {

using LayerForRead = ZrDbObjectPointer<ZrDbLayerTableRecord>;

// Message texts of commands begin and end with a line break.
ZrString inOneLine(const ZrString& message) {
    const std::size_t first = message.find_first_not_of(L'\n');
    return first == ZrString::npos ? ZrString() : message.substr(first, message.find_last_not_of(L'\n') + 1 - first);
}

// Opens the layer and sets one of its values.
template <class T>
Refusal change(ZrDbObjectId id, Quor::ErrorStatus (ZrDbLayerTableRecord::*set)(T), const std::decay_t<T>& value) {
    const ZrDbObjectPointer<ZrDbLayerTableRecord> layer(id, ZrDb::kForWrite);
    if (!layer)
        return texts::kDrawingIsLocked.get();
    return refusalOf((layer.object()->*set)(value));
}

} // namespace

std::vector<LayerRow> layersOf(db::Database& drawing) {
    std::vector<LayerRow> rows;
    const ZrDbObjectId current = drawing.interface().currentLayerId();
    for (const ZrDbObjectId id : drawing.layerIds()) {
        const LayerForRead layer(id, ZrDb::kForRead);
        if (layer && !layer->isHidden())
            rows.push_back({.id = id,
                            .name = layer->getName(),
                            .isOn = !layer->isOff(),
                            .isFrozen = layer->isFrozen(),
                            .isLocked = layer->isLocked(),
                            .isCurrent = id == current,
                            .color = layer->color()});
    }
    return rows;
}

ZrDbObjectId findLayer(db::Database& drawing, const ZrString& name) {
    return ZrDbObjectId(drawing.layers().find(name));
}

Refusal setLayerOn(ZrDbObjectId layer, bool on) { return change(layer, &ZrDbLayerTableRecord::setIsOff, !on); }

Refusal setLayerFrozen(ZrDbObjectId id, bool frozen) {
    if (frozen && !id.isNull() && id.database()->currentLayerId() == id) {
        const LayerForRead layer(id, ZrDb::kForRead);
        return fill(texts::kCurrentLayerFrozen, layer ? layer->getName() : ZrString());
    }
    return change(id, &ZrDbLayerTableRecord::setIsFrozen, frozen);
}

Refusal setLayerLocked(ZrDbObjectId layer, bool locked) {
    return change(layer, &ZrDbLayerTableRecord::setIsLocked, locked);
}

Refusal setLayerColor(ZrDbObjectId layer, const ZrCmColor& color) {
    if (color.isByLayer() || color.isByBlock())
        return fill(texts::kNeedsOwnColor, color.colorNameForDisplay());
    return change(layer, &ZrDbLayerTableRecord::setColor, color);
}

Refusal makeLayerCurrent(db::Database& drawing, ZrDbObjectId id) {
    {
        const LayerForRead layer(id, ZrDb::kForRead);
        if (!layer)
            return texts::kValueRefused.get();
        if (layer->isFrozen())
            return fill(texts::kLayerCannotBeCurrent, layer->getName());
        if (layer->isHidden())
            return inOneLine(fill(texts::kLayerIsHidden, layer->getName()));
    }
    drawing.setCurrentLayer(id);
    return std::nullopt;
}

Refusal addLayer(db::Database& drawing, const ZrString& name) {
    if (!isLayerName(name))
        return inOneLine(fill(texts::kBadLayerName, visibleText(name), ZrString(kNotInLayerNames)));
    if (!findLayer(drawing, name).isNull())
        return fill(texts::kLayerNameIsTaken, name);
    drawing.makeLayer(name);
    return std::nullopt;
}

ZrString freeLayerName(db::Database& drawing) {
    for (int number = 1;; ++number)
        if (ZrString name = fill(texts::kNewLayerName, number); findLayer(drawing, name).isNull())
            return name;
}

bool isOnLockedLayer(const ZrDbEntity& entity) {
    const LayerForRead layer(entity.layerId(), ZrDb::kForRead);
    return layer && layer->isLocked() && !layer->isHidden();
}

} // namespace quor::props
