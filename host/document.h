// The open drawings of a session: their files, their undo, their selection.
#pragma once

#include "host/db/database.h"
#include "sdk/ed/documents.h"
#include "sdk/ed/selection.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace quor {

class Document final : public ZrApDocument {
public:
    Document(std::unique_ptr<db::Database> database, std::filesystem::path path, ZrString name);
    ~Document() override;

    [[nodiscard]] ZrDbDatabase* database() const override;
    [[nodiscard]] ZrString fileName() const override;
    [[nodiscard]] bool isModified() const override;
    [[nodiscard]] bool isQuiescent() const override;

    [[nodiscard]] db::Database& drawing() const { return *database_; }
    // Empty for a drawing that was never saved.
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    void setPath(std::filesystem::path path);

    // The pick-first selection and the last one made, and the last point entered (UCS).
    ZrDbObjectIdArray impliedSelection;
    ZrDbObjectIdArray previousSelection;
    // Counts the changes of the pick-first selection, so that a command that made one is told from one that did not.
    std::size_t selectionChanges = 0;
    ZrGePoint3d lastPoint;
    bool locked = false;
    // Undo depths that UNDO Mark has set, and the coordinate systems that UCS Previous goes back to.
    std::vector<std::size_t> undoMarks;
    std::vector<db::Ucs> previousUcs;

private:
    std::unique_ptr<db::Database> database_;
    std::filesystem::path path_;
    ZrString name_;
};

class DocumentManager final : public ZrApDocManager {
public:
    DocumentManager();
    ~DocumentManager() override;

    // Opens a new drawing ("Drawing1", "Drawing2", …) and makes it current.
    Document& newDocument();
    // Makes a document of a drawing that was read, and makes it current.
    Document& adopt(std::unique_ptr<db::Database> database, const std::filesystem::path& path);
    // The same for one that was never saved, under the name that it had.
    Document& adoptNew(std::unique_ptr<db::Database> database, const ZrString& name);
    // Makes another document current; null: none.
    void setCurrent(Document* document);
    // Closes without asking; the next document becomes current.
    void close(Document& document);
    // The last one that was opened goes first.
    void closeAll();

    [[nodiscard]] Document* current() const { return current_; }
    [[nodiscard]] const std::vector<std::unique_ptr<Document>>& all() const { return documents_; }
    [[nodiscard]] bool hasUnsavedChanges() const;
    // The first one of which a block is being edited in place; null: there is none.
    [[nodiscard]] const Document* firstWithEditing() const;
    [[nodiscard]] const std::vector<ZrApDocumentReactor*>& reactors() const { return reactors_; }
    [[nodiscard]] const std::vector<ZrEdSelectionReactor*>& selectionReactors() const { return selectionReactors_; }
    // Tells every document listener; one that is taken off on the way is not told any more.
    void tell(const std::function<void(ZrApDocumentReactor&)>& message) const;
    void addSelectionReactor(ZrEdSelectionReactor* reactor);
    void removeSelectionReactor(ZrEdSelectionReactor* reactor);

    [[nodiscard]] ZrApDocument* curDocument() const override;
    [[nodiscard]] std::vector<ZrApDocument*> documents() const override;
    Quor::ErrorStatus lockDocument(ZrApDocument& document) override;
    Quor::ErrorStatus unlockDocument(ZrApDocument& document) override;
    void addReactor(ZrApDocumentReactor* reactor) override;
    void removeReactor(ZrApDocumentReactor* reactor) override;

private:
    Document& add(std::unique_ptr<Document> document);
    void sayDeactivated() const;
    [[nodiscard]] Document* own(const ZrApDocument& document) const;

    std::vector<std::unique_ptr<Document>> documents_;
    std::vector<ZrApDocumentReactor*> reactors_;
    std::vector<ZrEdSelectionReactor*> selectionReactors_;
    Document* current_ = nullptr;
    int newCount_ = 0;
};

} // namespace quor
