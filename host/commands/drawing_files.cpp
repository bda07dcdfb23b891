#include "host/commands/drawing_files.h"

#include "host/commands/ask.h"
#include "host/commands/ask_file.h"
#include "host/commands/problem.h"
#include "host/commands/save_place.h"
#include "host/db/ref_edit.h"
#include "host/db/versions.h"
#include "host/session.h"
#include "host/texts/files.h"
#include "host/texts/ref_edit.h"
#include "host/ui/file_dialog.h"

#include <algorithm>

namespace quor::commands {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kProblemsShown = 20;

ZrString versionText(const ZrString& version) {
    const auto* release = std::ranges::find_if(texts::kReleases, [&](const auto& r) { return version == r.version; });
    return release == std::end(texts::kReleases) ? version : version + L" (" + release->name + L")";
}

std::size_t entityCount(const db::Database& drawing, ZrDbDatabase& database) {
    std::size_t count = drawing.entities(database.modelSpaceId()).size();
    for (const db::LayoutInfo& layout : drawing.layouts())
        count += drawing.entities(layout.blockId).size();
    return count;
}

void sayProblems(const std::vector<ZrString>& problems) {
    if (problems.empty())
        return sayShown(texts::kRecoveredWhole);
    sayShown(texts::kRecoveredProblems, problems.size());
    const std::size_t shown = std::min(problems.size(), kProblemsShown);
    for (std::size_t i = 0; i < shown; ++i)
        printText(L"\n  " + visibleText(problems[i]) + L"\n");
    if (shown < problems.size())
        sayShown(texts::kMoreProblems, problems.size() - shown);
}

// Says why a path cannot be read. RTNORM when it can.
int checkReadable(const fs::path& path) {
    std::error_code error;
    if (fs::is_directory(path, error))
        return failBeforePerson(texts::kIsFolder, textOf(path));
    if (!fs::exists(path, error))
        return failBeforePerson(texts::kNoSuchFile, textOf(path));
    return fs::is_regular_file(path, error) ? RTNORM : failBeforePerson(texts::kNoRegularFile, textOf(path));
}

constexpr PlaceTexts kPlaceOfADrawing{.isFolder = texts::kIsFolder,
                                      .noRegularFile = texts::kNoRegularFile,
                                      .noSuchFolder = texts::kNoSuchFolder,
                                      .isOpenDrawing = texts::kOpenElsewhere,
                                      .notReplaced = texts::kNotReplaced};

FileAnswer chooseSavePath(Session& session, const Document& document) {
    FileQuestion chooser;
    chooser.caption = texts::kChooseSave.get();
    chooser.filters = {{texts::kDxfFiles.get(), L"*.dxf"}};
    chooser.initialName = document.path().empty() ? document.fileName() + L".dxf" : textOf(document.path());
    chooser.forSaving = true;
    return ui::chooseFileFully(session, chooser);
}

FileAnswer typeSavePath() { return {askLine(texts::kAskSavePath.get())}; }

} // namespace

int openPath(Session& session, const fs::path& file, bool recover) {
    const fs::path path = absolutePath(file);
    if (const int result = checkReadable(path); result != RTNORM)
        return result;
    if (Document* open = openDocument(session, path)) {
        session.documents().setCurrent(open);
        sayShown(texts::kOpenAlready, textOf(path));
        return RTNORM;
    }
    const ZrString what = fillShown(texts::kOpening, textOf(path.filename()));
    db::OpenOptions options;
    options.recover = recover;
    options.progress = [&](double fraction) { session.front().progress(what, fraction); };
    auto read = db::Database::open(path, options);
    session.front().progress(what, 1.0);
    if (!read)
        return failBeforePerson(L"\n" + visibleText(read.error().message) + L"\n");
    const Document& document = session.documents().adopt(std::move(read).value(), path);
    const db::Database& drawing = document.drawing();
    sayShown(texts::kOpened, textOf(path), versionText(drawing.version()), entityCount(drawing, *document.database()));
    if (drawing.file().version() < db::versions::kFirstWithLights)
        sayShown(texts::kHoldsNoLights, drawing.version());
    if (recover)
        sayProblems(drawing.problems());
    return RTNORM;
}

fs::path withExtension(fs::path path, const char* extension) {
    std::error_code error;
    const bool isOther = fs::exists(path, error) && !fs::is_regular_file(path, error);
    const bool hasNone = !path.has_extension() || path.extension() == ".";
    return hasNone && !isOther ? path.replace_extension(extension) : path;
}

int askSavePath(Session& session, const Document& document, fs::path& path) {
    if (const db::RefEdit& editing = document.drawing().refEdit(); editing.isActive())
        return failBeforePerson(L"\n" + fillShown(texts::kNotSavedWhileEditing, editing.blockName()) + L"\n");
    const FileAnswer answer = asksInDialog(session) ? chooseSavePath(session, document) : typeSavePath();
    if (!answer.file || answer.file->empty())
        return RTCAN;
    const fs::path given = absolutePath(pathFromText(*answer.file));
    path = withExtension(given);
    return checkPlace(session, path, &document, kPlaceOfADrawing, answer.mayReplace && path == given);
}

int saveTo(Document& document, const fs::path& path) {
    document.drawing().mendOnSave();
    FrontEnd& front = Session::current().front();
    const ZrString what = fillShown(texts::kSaving, textOf(path.filename()));
    const auto saved = document.drawing().save(path, [&](double fraction) { front.progress(what, fraction); });
    front.progress(what, 1);
    if (!saved)
        return failBeforePerson(L"\n" + visibleText(saved.error().message) + L"\n");
    document.setPath(path);
    document.drawing().journal().markSaved();
    sayShown(texts::kSavedTo, textOf(path));
    return RTNORM;
}

int saveInPlace(Session& session, Document& document) {
    if (!document.path().empty())
        return saveTo(document, document.path());
    fs::path path;
    const int result = askSavePath(session, document, path);
    return result == RTNORM ? saveTo(document, path) : result;
}

bool sameFile(const fs::path& a, const fs::path& b) {
    std::error_code error;
    if (fs::equivalent(a, b, error))
        return true;
    return absolutePath(a) == absolutePath(b);
}

Document* openDocument(Session& session, const fs::path& path) {
    for (const auto& document : session.documents().all())
        if (!document->path().empty() && sameFile(document->path(), path))
            return document.get();
    return nullptr;
}

ZrString shortName(const Document& document) {
    return document.path().empty() ? document.fileName() : textOf(document.path().filename());
}

} // namespace quor::commands
