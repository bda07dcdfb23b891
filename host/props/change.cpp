#include "host/props/change.h"

#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/modeless_operation.h"
#include "host/session.h"
#include "host/texts/properties.h"

namespace quor::props {

namespace {

// Announces the change, and its end.
class Announced {
public:
    Announced(Session& session, const wchar_t* name) : session_(session) { session.modelessOperation().start(name); }
    ~Announced() { session_.modelessOperation().end(); }
    Announced(const Announced&) = delete;
    Announced& operator=(const Announced&) = delete;

private:
    Session& session_;
};

Refusal changeLocked(Document& document, DocumentManager& documents, const std::function<Refusal()>& change) {
    if (documents.lockDocument(document) != Quor::eOk)
        return texts::kDrawingIsLocked.get();
    Refusal refusal = change();
    if (refusal)
        document.drawing().journal().rollback();
    documents.unlockDocument(document);
    return refusal;
}

} // namespace

bool canChange(Session& session) {
    return session.documents().current() != nullptr && !session.processor().isRunning();
}

Refusal makeChange(Session& session, const wchar_t* name, const std::function<Refusal()>& change) {
    DocumentManager& documents = session.documents();
    if (documents.current() == nullptr)
        return texts::kNoOpenDrawing.get();
    if (!canChange(session))
        return texts::kCommandIsRunning.get();
    Refusal refusal;
    {
        const Announced announced(session, name);
        // Those who are told may close it.
        if (Document* const document = documents.current())
            refusal = changeLocked(*document, documents, change);
    }
    session.front().redraw();
    return refusal;
}

} // namespace quor::props
