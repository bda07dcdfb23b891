#include "host/document.h"

#include "host/db/ref_edit.h"
#include "host/ed/command_processor.h"
#include "host/ed/selection_change.h"
#include "host/session.h"
#include "host/sys/utf8.h"
#include "host/texts/input.h"

#include <algorithm>
#include <cassert>

namespace quor {

namespace {

template <class Listener>
void addOnce(std::vector<Listener*>& listeners, Listener* listener) {
    if (listener != nullptr && std::find(listeners.begin(), listeners.end(), listener) == listeners.end())
        listeners.push_back(listener);
}

template <class Listener>
void drop(std::vector<Listener*>& listeners, Listener* listener) {
    listeners.erase(std::remove(listeners.begin(), listeners.end(), listener), listeners.end());
}

bool hasSelection(const Document* document) { return document != nullptr && !document->impliedSelection.empty(); }

// Each drawing has a pick-first selection of its own.
void sayCurrent(const DocumentManager& documents, bool somethingWasSelected) {
    Document* const current = documents.current();
    documents.tell([&](ZrApDocumentReactor& listener) { listener.documentBecameCurrent(current); });
    if (somethingWasSelected || hasSelection(documents.current()))
        ed::tellSelectionChanged(documents);
}

} // namespace

Document::Document(std::unique_ptr<db::Database> database, std::filesystem::path path, ZrString name)
    : database_(std::move(database)), path_(std::move(path)), name_(std::move(name)) {}

Document::~Document() = default;

ZrDbDatabase* Document::database() const { return &database_->interface(); }

ZrString Document::fileName() const { return path_.empty() ? name_ : fromUtf8(path_.string()); }

bool Document::isModified() const { return database_->journal().isModified(); }

bool Document::isQuiescent() const { return !Session::exists() || !Session::current().processor().isRunning(); }

void Document::setPath(std::filesystem::path path) { path_ = std::move(path); }

DocumentManager::DocumentManager() = default;

DocumentManager::~DocumentManager() { closeAll(); }

bool DocumentManager::hasUnsavedChanges() const {
    return std::any_of(documents_.begin(), documents_.end(),
                       [](const auto& document) { return document->isModified(); });
}

const Document* DocumentManager::firstWithEditing() const {
    const auto found = std::find_if(documents_.begin(), documents_.end(),
                                    [](const auto& document) { return document->drawing().refEdit().isActive(); });
    return found == documents_.end() ? nullptr : found->get();
}

void DocumentManager::closeAll() {
    while (!documents_.empty())
        close(*documents_.back());
}

Document& DocumentManager::newDocument() {
    const ZrString name = fill(texts::kNewDrawingName, ++newCount_);
    return add(std::make_unique<Document>(db::Database::makeNew(), std::filesystem::path(), name));
}

Document& DocumentManager::adopt(std::unique_ptr<db::Database> database, const std::filesystem::path& path) {
    return add(std::make_unique<Document>(std::move(database), path, fromUtf8(path.string())));
}

Document& DocumentManager::adoptNew(std::unique_ptr<db::Database> database, const ZrString& name) {
    return add(std::make_unique<Document>(std::move(database), std::filesystem::path(), name));
}

void DocumentManager::tell(const std::function<void(ZrApDocumentReactor&)>& message) const {
    const std::vector<ZrApDocumentReactor*> listeners = reactors_;
    for (ZrApDocumentReactor* listener : listeners)
        if (std::find(reactors_.begin(), reactors_.end(), listener) != reactors_.end())
            message(*listener);
}

void DocumentManager::sayDeactivated() const {
    if (Document* const document = current_)
        tell([&](ZrApDocumentReactor& listener) { listener.documentToBeDeactivated(*document); });
}

Document& DocumentManager::add(std::unique_ptr<Document> document) {
    sayDeactivated();
    const bool somethingWasSelected = hasSelection(current_);
    Document& added = *documents_.emplace_back(std::move(document));
    // Code that is told of it finds it as the working drawing.
    current_ = &added;
    tell([&](ZrApDocumentReactor& listener) { listener.documentCreated(added); });
    sayCurrent(*this, somethingWasSelected);
    return added;
}

void DocumentManager::setCurrent(Document* document) {
    if (document == current_)
        return;
    sayDeactivated();
    const bool somethingWasSelected = hasSelection(current_);
    current_ = document;
    sayCurrent(*this, somethingWasSelected);
}

void DocumentManager::close(Document& document) {
    if (current_ == &document)
        sayDeactivated();
    tell([&](ZrApDocumentReactor& listener) { listener.documentToBeDestroyed(document); });
    const auto at =
        std::find_if(documents_.begin(), documents_.end(), [&](const auto& known) { return known.get() == &document; });
    assert(at != documents_.end());
    const std::unique_ptr<Document> closed = std::move(*at);
    documents_.erase(at);
    if (current_ != closed.get())
        return;
    current_ = documents_.empty() ? nullptr : documents_.back().get();
    sayCurrent(*this, hasSelection(closed.get()));
}

ZrApDocument* DocumentManager::curDocument() const { return current_; }

std::vector<ZrApDocument*> DocumentManager::documents() const {
    std::vector<ZrApDocument*> result;
    for (const auto& document : documents_)
        result.push_back(document.get());
    return result;
}

Document* DocumentManager::own(const ZrApDocument& document) const {
    for (const auto& known : documents_)
        if (known.get() == &document)
            return known.get();
    return nullptr;
}

Quor::ErrorStatus DocumentManager::lockDocument(ZrApDocument& document) {
    Document* const mine = own(document);
    if (mine == nullptr)
        return Quor::eInvalidInput;
    if (mine->locked)
        return Quor::eLockViolation;
    mine->locked = true;
    return Quor::eOk;
}

Quor::ErrorStatus DocumentManager::unlockDocument(ZrApDocument& document) {
    Document* const mine = own(document);
    if (mine == nullptr)
        return Quor::eInvalidInput;
    if (!mine->locked)
        return Quor::eLockViolation;
    mine->locked = false;
    return Quor::eOk;
}

void DocumentManager::addReactor(ZrApDocumentReactor* reactor) { addOnce(reactors_, reactor); }
void DocumentManager::removeReactor(ZrApDocumentReactor* reactor) { drop(reactors_, reactor); }
void DocumentManager::addSelectionReactor(ZrEdSelectionReactor* reactor) { addOnce(selectionReactors_, reactor); }
void DocumentManager::removeSelectionReactor(ZrEdSelectionReactor* reactor) { drop(selectionReactors_, reactor); }

} // namespace quor

ZrApDocManager* zrapDocManager() { return quor::Session::exists() ? &quor::Session::current().documents() : nullptr; }

ZrDbDatabase* zrdbWorkingDatabase() {
    if (!quor::Session::exists())
        return nullptr;
    const quor::Document* const current = quor::Session::current().documents().current();
    return current != nullptr ? current->database() : nullptr;
}
