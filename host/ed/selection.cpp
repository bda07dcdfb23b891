#include "sdk/ed/selection.h"

#include "host/document.h"
#include "host/ed/id_set.h"
#include "host/ed/selection_change.h"
#include "host/session.h"

#include <algorithm>

namespace {

using quor::Document;
using quor::Session;

Document* currentDocument() { return Session::exists() ? Session::current().documents().current() : nullptr; }

// What can be selected of it: each object of this drawing once, in order, without those that are erased.
ZrDbObjectIdArray usable(const ZrDbObjectIdArray& ids, const Document& document) {
    ZrDbObjectIdArray result;
    quor::ed::IdSet seen;
    result.reserve(ids.size());
    seen.reserve(ids.size());
    const ZrDbDatabase* const drawing = document.database();
    for (const ZrDbObjectId id : ids)
        if (!id.isNull() && id.database() == drawing && !id.isErased() && seen.insert(id))
            result.push_back(id);
    return result;
}

} // namespace

void quor::ed::tellSelectionChanged(const DocumentManager& documents) {
    const std::vector<ZrEdSelectionReactor*>& present = documents.selectionReactors();
    const std::vector<ZrEdSelectionReactor*> listeners(present.begin(), present.end());
    for (ZrEdSelectionReactor* const listener : listeners)
        if (std::find(present.begin(), present.end(), listener) != present.end())
            listener->impliedSelectionChanged();
}

ZrDbObjectIdArray zredImpliedSelection() {
    const Document* const document = currentDocument();
    if (document == nullptr)
        return {};
    // What was usable when it was selected may have been erased since.
    ZrDbObjectIdArray selected = document->impliedSelection;
    std::erase_if(selected, [](ZrDbObjectId id) { return id.isErased(); });
    return selected;
}

void zredSetImpliedSelection(const ZrDbObjectIdArray& ids) {
    Document* const document = currentDocument();
    if (document == nullptr)
        return;
    ++document->selectionChanges;
    ZrDbObjectIdArray wanted = usable(ids, *document);
    if (wanted == document->impliedSelection)
        return;
    document->impliedSelection = std::move(wanted);
    quor::ed::tellSelectionChanged(Session::current().documents());
}

void zredAddSelectionReactor(ZrEdSelectionReactor* reactor) {
    if (Session::exists())
        Session::current().documents().addSelectionReactor(reactor);
}

void zredRemoveSelectionReactor(ZrEdSelectionReactor* reactor) {
    if (Session::exists())
        Session::current().documents().removeSelectionReactor(reactor);
}
