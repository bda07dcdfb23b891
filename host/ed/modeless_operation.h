// The change beside the commands that is going on: what a person does in a palette, as one step of undo.
#pragma once

#include "sdk/ed/documents.h"

namespace quor {
class Document;
class DocumentManager;
} // namespace quor

namespace quor::ed {

// Protocol of the outermost operation: 1 listeners are told that it starts, 2 its undo group is opened, or joins the
// one of the running command, 3 the change is made, 4 the group is closed, 5 listeners are told that it ended.
class ModelessOperation final : public ZrApDocumentReactor {
public:
    explicit ModelessOperation(DocumentManager& documents);
    ~ModelessOperation() override;
    ModelessOperation(const ModelessOperation&) = delete;
    ModelessOperation& operator=(const ModelessOperation&) = delete;

    void start(const ZrString& name);
    // Closes the group of the drawing in which the operation was started. Nothing happens when none was.
    void end();

    // The drawing takes its open group along.
    void documentToBeDestroyed(ZrApDocument& document) override;

private:
    DocumentManager& documents_;
    Document* document_ = nullptr; // whose group is open
    ZrString name_;
    int depth_ = 0;
    bool isAnnounced_ = false;
};

} // namespace quor::ed
