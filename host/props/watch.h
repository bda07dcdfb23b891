// Listens to what the rows of a palette depend on: the selection, its objects, the settings and layers of the current
// drawing, which drawing is current.
#pragma once

#include "sdk/db/database.h"
#include "sdk/ed/documents.h"
#include "sdk/ed/selection.h"

#include <functional>

namespace quor::props {

class Watch final : public ZrDbDatabaseReactor, public ZrApDocumentReactor, public ZrEdSelectionReactor {
public:
    // `changed` is told of each change; it must not change anything itself.
    explicit Watch(std::function<void()> changed);
    ~Watch() override;
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    // The entities of the current drawing whose changes count from now on.
    void setObjects(const ZrDbObjectIdArray& ids);

    void objectAppended(const ZrDbDatabase& drawing, const ZrDbObject& object) override;
    void objectUnAppended(const ZrDbDatabase& drawing, const ZrDbObject& object) override;
    void objectReAppended(const ZrDbDatabase& drawing, const ZrDbObject& object) override;
    void objectModified(const ZrDbDatabase& drawing, const ZrDbObject& object) override;
    void objectErased(const ZrDbDatabase& drawing, const ZrDbObject& object, bool erased) override;
    void headerSysVarChanged(const ZrDbDatabase& drawing, const wchar_t* name) override;
    void goodbye(const ZrDbDatabase& drawing) override;
    void documentBecameCurrent(ZrApDocument* document) override;
    void documentToBeDestroyed(ZrApDocument& document) override;
    void impliedSelectionChanged() override;

private:
    void listenTo(ZrDbDatabase* drawing);
    // Entities that are not watched do not count; everything else of a drawing is rare.
    void told(const ZrDbObject& object);

    std::function<void()> changed_;
    ZrDbDatabase* drawing_ = nullptr;
    ZrDbObjectIdArray watched_; // sorted
};

} // namespace quor::props
