#include "sdk/ed/selection.h"

#include "host/document.h"
#include "host/session.h"

#include <algorithm>
#include <unordered_set>

namespace {

using quor::Document;
using quor::Session;

Document* currentDocument() { return Session::exists() ? Session::current().documents().current() : nullptr; }

// What can be selected of it: each object of this drawing once, in order, without those that are erased.
ZrDbObjectIdArray usable(const ZrDbObjectIdArray& ids, const Document& document) {
    ZrDbObjectIdArray result;
    std::unordered_set<ZrDbObjectId> seen;
    result.reserve(ids.size());
    for (const ZrDbObjectId id : ids)
        if (!id.isNull() && id.database() == document.database() && !id.isErased() && seen.insert(id).second)
            result.push_back(id);
    return result;
}

} // namespace

ZrDbObjectIdArray zredImpliedSelection() {
    const Document* const document = currentDocument();
    return document != nullptr ? usable(document->impliedSelection, *document) : ZrDbObjectIdArray();
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
    const std::vector<ZrEdSelectionReactor*>& present = Session::current().documents().selectionReactors();
    const std::vector<ZrEdSelectionReactor*> listeners = present;
    for (ZrEdSelectionReactor* listener : listeners)
        if (std::find(present.begin(), present.end(), listener) != present.end())
            listener->impliedSelectionChanged();
}

void zredAddSelectionReactor(ZrEdSelectionReactor* reactor) {
    if (Session::exists())
        Session::current().documents().addSelectionReactor(reactor);
}

void zredRemoveSelectionReactor(ZrEdSelectionReactor* reactor) {
    if (Session::exists())
        Session::current().documents().removeSelectionReactor(reactor);
}
