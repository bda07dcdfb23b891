#include "host/props/watch.h"

#include "sdk/db/entity.h"

#include <algorithm>
#include <functional>

namespace quor::props {

namespace {

bool isBefore(ZrDbObjectId a, ZrDbObjectId b) { return std::less<>()(a.entry(), b.entry()); }

} // namespace

Watch::Watch(std::function<void()> changed) : changed_(std::move(changed)) {
    if (ZrApDocManager* const documents = zrapDocManager()) {
        documents->addReactor(this);
        zredAddSelectionReactor(this);
        listenTo(zrdbWorkingDatabase());
    }
}

Watch::~Watch() {
    if (ZrApDocManager* const documents = zrapDocManager()) {
        documents->removeReactor(this);
        zredRemoveSelectionReactor(this);
        listenTo(nullptr);
    }
}

void Watch::setObjects(const ZrDbObjectIdArray& ids) {
    watched_ = ids;
    std::sort(watched_.begin(), watched_.end(), isBefore);
}

void Watch::listenTo(ZrDbDatabase* drawing) {
    if (drawing == drawing_)
        return;
    if (drawing_ != nullptr)
        drawing_->removeReactor(this);
    drawing_ = drawing;
    if (drawing_ != nullptr)
        drawing_->addReactor(this);
    watched_.clear();
}

void Watch::told(const ZrDbObject& object) {
    const bool isEntity = zrrxCast<ZrDbEntity>(&object) != nullptr;
    if (!isEntity || std::binary_search(watched_.begin(), watched_.end(), object.objectId(), isBefore))
        changed_();
}

void Watch::objectAppended(const ZrDbDatabase&, const ZrDbObject& object) { told(object); }
void Watch::objectUnAppended(const ZrDbDatabase&, const ZrDbObject& object) { told(object); }
void Watch::objectReAppended(const ZrDbDatabase&, const ZrDbObject& object) { told(object); }
void Watch::objectModified(const ZrDbDatabase&, const ZrDbObject& object) { told(object); }
void Watch::objectErased(const ZrDbDatabase&, const ZrDbObject& object, bool) { told(object); }
void Watch::headerSysVarChanged(const ZrDbDatabase&, const wchar_t*) { changed_(); }

void Watch::goodbye(const ZrDbDatabase&) {
    drawing_ = nullptr;
    watched_.clear();
    changed_();
}

void Watch::documentBecameCurrent(ZrApDocument* document) {
    listenTo(document != nullptr ? document->database() : nullptr);
    changed_();
}

void Watch::documentToBeDestroyed(ZrApDocument& document) {
    if (document.database() != drawing_)
        return;
    listenTo(nullptr);
    changed_();
}

void Watch::impliedSelectionChanged() { changed_(); }

} // namespace quor::props
