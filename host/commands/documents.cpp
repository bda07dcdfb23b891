#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/drawing_files.h"
#include "host/db/ref_edit.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/text_width.h"
#include "host/texts/files.h"

#include <algorithm>

namespace quor::commands {

namespace {

using Documents = std::vector<std::unique_ptr<Document>>;

// What is to be told of it beside its name.
ZrString detailsOf(const Document& document) {
    ZrString details;
    if (document.isModified())
        details.append(L"  ").append(texts::kModifiedMark.get());
    if (const db::RefEdit& editing = document.drawing().refEdit(); editing.isActive())
        details.append(L"  ").append(fillShown(texts::kEditingMark, editing.blockName()));
    if (!document.path().empty())
        details.append(L"  ").append(visibleText(textOf(document.path())));
    return details;
}

void show(const Documents& documents, const Document* current) {
    int width = 0;
    for (const auto& document : documents)
        width = std::max(width, columnsOf(visibleText(shortName(*document))));
    const int digits = columnsOf(std::to_wstring(documents.size()));
    for (std::size_t i = 0; i < documents.size(); ++i) {
        const Document& document = *documents[i];
        const ZrString details = detailsOf(document);
        const ZrString row = padRight(visibleText(shortName(document)), details.empty() ? 0 : width) + details;
        printText(ZrString(L"\n") + (&document == current ? L"* " : L"  ") + padLeft(std::to_wstring(i + 1), digits) +
                  L"  " + row + L"\n");
    }
}

// The documents that answer to a number or a name, full or short.
std::vector<Document*> matching(const Documents& documents, const ZrString& answer) {
    std::vector<Document*> found;
    for (std::size_t i = 0; i < documents.size(); ++i)
        if (answer == std::to_wstring(i + 1))
            return {documents[i].get()};
    for (const auto& document : documents)
        if (equalFolded(shortName(*document), answer) || equalFolded(document->fileName(), answer))
            found.push_back(document.get());
    return found;
}

bool switchTo(DocumentManager& manager, const ZrString& answer) {
    const std::vector<Document*> found = matching(manager.all(), answer);
    if (found.size() != 1) {
        sayShown(found.empty() ? texts::kNoSuchDocument : texts::kAmbiguousDocument, shortened(answer));
        return false;
    }
    manager.setCurrent(found.front());
    sayShown(texts::kSwitched, shortName(*found.front()));
    return true;
}

} // namespace

int listDocuments(Session& session) {
    DocumentManager& manager = session.documents();
    if (manager.all().empty()) {
        say(texts::kNoDocuments);
        return RTNORM;
    }
    show(manager.all(), manager.current());
    return askUntilTaken(texts::kAskDocument.get(), [&](const ZrString& answer) { return switchTo(manager, answer); });
}

} // namespace quor::commands
