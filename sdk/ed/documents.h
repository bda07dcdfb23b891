// The open documents.
#pragma once

#include "sdk/rx/error_status.h"
#include "sdk/sys/string.h"

#include <vector>

class ZrDbDatabase;

// An open drawing with what belongs to working in it.
class ZrApDocument {
public:
    virtual ~ZrApDocument() = default;
    [[nodiscard]] virtual ZrDbDatabase* database() const = 0;
    // The full path, or the name that a new drawing has been given.
    [[nodiscard]] virtual ZrString fileName() const = 0;
    // Whether it differs from what was last saved.
    [[nodiscard]] virtual bool isModified() const = 0;
    // Whether no command is running in it.
    [[nodiscard]] virtual bool isQuiescent() const = 0;
};

class ZrApDocumentReactor {
public:
    virtual ~ZrApDocumentReactor() = default;
    virtual void documentCreated(ZrApDocument&) {}
    virtual void documentBecameCurrent(ZrApDocument*) {}
    // Another document becomes current, or none; it still is while this is told. Of one that is closed: told first.
    virtual void documentToBeDeactivated(ZrApDocument&) {}
    virtual void documentToBeDestroyed(ZrApDocument&) {}
    virtual void commandWillStart(const ZrString& /*globalName*/) {}
    virtual void commandEnded(const ZrString& /*globalName*/) {}
    virtual void commandCancelled(const ZrString& /*globalName*/) {}
    // The outermost of the operations of sdk/ed/modeless_operation.h.
    virtual void modelessOperationWillStart(const ZrString& /*name*/) {}
    virtual void modelessOperationEnded(const ZrString& /*name*/) {}
};

class ZrApDocManager {
public:
    virtual ~ZrApDocManager() = default;
    [[nodiscard]] virtual ZrApDocument* curDocument() const = 0;
    [[nodiscard]] virtual std::vector<ZrApDocument*> documents() const = 0;
    // Locks a document for changes from outside a command (a palette, say). eLockViolation while another holds it.
    virtual Quor::ErrorStatus lockDocument(ZrApDocument& document) = 0;
    virtual Quor::ErrorStatus unlockDocument(ZrApDocument& document) = 0;
    virtual void addReactor(ZrApDocumentReactor* reactor) = 0;
    virtual void removeReactor(ZrApDocumentReactor* reactor) = 0;
};

[[nodiscard]] ZrApDocManager* zrapDocManager();
