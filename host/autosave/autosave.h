// Keeps a copy of every drawing with unsaved changes, for the case that the program ends before they are saved.
#pragma once

#include "host/autosave/copy_file.h"
#include "host/autosave/copy_folder.h"
#include "host/db/journal.h"
#include "sdk/ed/documents.h"

#include <functional>
#include <map>
#include <optional>

namespace quor {
class Session;
}

namespace quor::autosave {

// A copy is made at the command prompt, no more often than waitAfter() says, when the drawing has changed since the
// last one. It goes when the drawing was saved or closed. While a block is edited in place there is nothing that could
// be saved: the copy from before stays. The system variable SAVETIME turns this off.
class Autosave final : private ZrApDocumentReactor {
public:
    // Seconds that go by.
    using Clock = std::function<double()>;

    // Goes before the session. Nothing is made in `folder` before there is something to copy.
    explicit Autosave(Session& session, std::filesystem::path folder = copiesFolder(), Clock clock = {});
    // The program ends as it should: what is not saved is not wanted. Copies of writeAllNow() stay.
    ~Autosave() override;
    Autosave(const Autosave&) = delete;
    Autosave& operator=(const Autosave&) = delete;

    // Called now and then while the command prompt waits; does nothing while a command runs.
    void tick();
    // The program is made to end: every drawing with unsaved changes is copied at once, also in the middle of a
    // command, and the copies stay when the documents are closed. A tick() after it takes that back.
    void writeAllNow();

    // The copy that a document came from becomes its copy here; false, with the copy where it was, when that is not
    // possible.
    bool takeOver(const Document& document, const CopyFile& copy);

private:
    struct Copy {
        CopyFile file;
        std::optional<db::Journal::State> state; // of the drawing in the copy; nothing: none was written
        double nextAt = 0;                       // by the clock
        bool failed = false;                     // the person has been told
    };

    void documentToBeDestroyed(ZrApDocument& document) override;
    void look(Document& document, double longest);
    void copy(Document& document, double longest);
    void drop(const Document& document);
    // Says why, once until it works again.
    void complain(const Document& document, Copy* copy, const ZrString& reason);
    // The folder of this program; null when it cannot be made, which the document's copy is the first to find out.
    [[nodiscard]] const CopyFolder* ownFolder(const Document& document);
    [[nodiscard]] Copy* copyOf(const Document& document);

    Session& session_;
    std::filesystem::path parent_;
    Clock clock_;
    std::optional<CopyFolder> folder_;
    std::map<const Document*, Copy> copies_;
    int lastNumber_ = 0;
    bool hasNoFolder_ = false; // one could not be made, and the person has been told
    bool keepsAll_ = false;
};

} // namespace quor::autosave
