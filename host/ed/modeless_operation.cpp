#include "host/ed/modeless_operation.h"

#include "host/document.h"
#include "host/session.h"
#include "sdk/ed/modeless_operation.h"

#include <utility>

namespace quor::ed {

ModelessOperation::ModelessOperation(DocumentManager& documents) : documents_(documents) {
    documents_.addReactor(this);
}

ModelessOperation::~ModelessOperation() { documents_.removeReactor(this); }

void ModelessOperation::start(const ZrString& name) {
    if (depth_++ > 0 || documents_.current() == nullptr)
        return;
    name_ = name;
    isAnnounced_ = true;
    documents_.tell([&](ZrApDocumentReactor& listener) { listener.modelessOperationWillStart(name); });
    document_ = documents_.current();
    if (document_ != nullptr)
        document_->drawing().journal().begin(name);
}

void ModelessOperation::end() {
    if (depth_ == 0 || --depth_ > 0)
        return;
    if (Document* const document = std::exchange(document_, nullptr))
        document->drawing().journal().end();
    if (!std::exchange(isAnnounced_, false))
        return;
    const ZrString name = std::exchange(name_, {});
    documents_.tell([&](ZrApDocumentReactor& listener) { listener.modelessOperationEnded(name); });
}

void ModelessOperation::documentToBeDestroyed(ZrApDocument& document) {
    if (&document == document_)
        document_ = nullptr;
}

} // namespace quor::ed

namespace {

using quor::Session;

void redraw() {
    if (Session::exists())
        Session::current().front().redraw();
}

} // namespace

void zrapModelessOperationStart(const wchar_t* name) {
    if (Session::exists())
        Session::current().modelessOperation().start(name != nullptr ? name : L"");
}

void zrapModelessOperationEnd(const wchar_t* /*name*/) {
    if (Session::exists())
        Session::current().modelessOperation().end();
}

void zrapRefreshGraphics(ZrApDocument& /*document*/) { redraw(); }

void zredUpdateDisplay() { redraw(); }
