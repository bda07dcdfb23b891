// The layers of a drawing as a person sees and changes them. Hidden ones, which are the system's, are left out.
#pragma once

#include "host/props/property.h"
#include "sdk/db/object_id.h"

#include <vector>

class ZrDbEntity;

namespace quor::props {

struct LayerRow {
    ZrDbObjectId id;
    ZrString name;
    bool isOn = true;
    bool isFrozen = false;
    bool isLocked = false;
    bool isCurrent = false;
    ZrCmColor color;
};

// In the order of the drawing.
[[nodiscard]] std::vector<LayerRow> layersOf(db::Database& drawing);
// The layer of that name, hidden ones too; null when there is none.
[[nodiscard]] ZrDbObjectId findLayer(db::Database& drawing, const ZrString& name);

// Each changes one layer, or answers why it did not.
[[nodiscard]] Refusal setLayerOn(ZrDbObjectId layer, bool on);
[[nodiscard]] Refusal setLayerFrozen(ZrDbObjectId layer, bool frozen);
[[nodiscard]] Refusal setLayerLocked(ZrDbObjectId layer, bool locked);
[[nodiscard]] Refusal setLayerColor(ZrDbObjectId layer, const ZrCmColor& color);
[[nodiscard]] Refusal makeLayerCurrent(db::Database& drawing, ZrDbObjectId layer);
[[nodiscard]] Refusal addLayer(db::Database& drawing, const ZrString& name);
// A name that no layer has: "Layer1", "Layer2", ...
[[nodiscard]] ZrString freeLayerName(db::Database& drawing);

// Lights are on a hidden layer that drawings lock; they can be changed all the same.
[[nodiscard]] bool isOnLockedLayer(const ZrDbEntity& entity);

} // namespace quor::props
