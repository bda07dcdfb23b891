// Collects what changes in a drawing until somebody asks.
#pragma once

#include "host/db/object_entry.h"
#include "sdk/db/database.h"

#include <vector>

namespace quor::gs {

class DrawingChanges final : public ZrDbDatabaseReactor {
public:
    // What has changed since it was asked for the last time.
    struct Changes {
        std::vector<db::ObjectEntry*> entities; // more than once, perhaps
        bool inBlocks = false;                  // entities of blocks that others show
        bool ofLayers = false;
        bool ofSettings = false;
        [[nodiscard]] bool none() const { return entities.empty() && !inBlocks && !ofLayers && !ofSettings; }
    };

    explicit DrawingChanges(ZrDbDatabase& drawing);
    ~DrawingChanges() override;
    DrawingChanges(const DrawingChanges&) = delete;
    DrawingChanges& operator=(const DrawingChanges&) = delete;

    [[nodiscard]] Changes take();
    // The drawing is gone.
    [[nodiscard]] bool isOver() const { return drawing_ == nullptr; }

    void objectAppended(const ZrDbDatabase&, const ZrDbObject& object) override { note(object); }
    void objectUnAppended(const ZrDbDatabase&, const ZrDbObject& object) override { note(object); }
    void objectReAppended(const ZrDbDatabase&, const ZrDbObject& object) override { note(object); }
    void objectModified(const ZrDbDatabase&, const ZrDbObject& object) override { note(object); }
    void objectErased(const ZrDbDatabase&, const ZrDbObject& object, bool) override { note(object); }
    void headerSysVarChanged(const ZrDbDatabase&, const wchar_t*) override { changes_.ofSettings = true; }
    void goodbye(const ZrDbDatabase&) override { drawing_ = nullptr; }

private:
    void note(const ZrDbObject& object);

    ZrDbDatabase* drawing_;
    Changes changes_;
};

} // namespace quor::gs
