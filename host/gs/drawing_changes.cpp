#include "host/gs/drawing_changes.h"

#include "host/db/database.h"

#include <utility>

namespace quor::gs {

DrawingChanges::DrawingChanges(ZrDbDatabase& drawing) : drawing_(&drawing) { drawing.addReactor(this); }

DrawingChanges::~DrawingChanges() {
    if (drawing_ != nullptr)
        drawing_->removeReactor(this);
}

DrawingChanges::Changes DrawingChanges::take() { return std::exchange(changes_, {}); }

void DrawingChanges::note(const ZrDbObject& object) {
    db::ObjectEntry& entry = *object.objectId().entry();
    db::Database& host = drawing_->host();
    if (entry.kind == db::ObjectKind::TableRecord) {
        changes_.ofLayers |= entry.owner == host.layers().table().entry;
    } else if (entry.kind == db::ObjectKind::Entity) {
        const db::Block* const block = host.structure().blockOf(entry.owner);
        changes_.inBlocks |= block != nullptr && !block->isLayout;
        // One change after the other of the same entity is one change.
        if (changes_.entities.empty() || changes_.entities.back() != &entry)
            changes_.entities.push_back(&entry);
    }
}

} // namespace quor::gs
