#include "host/autosave/recovery.h"

#include "host/autosave/autosave.h"
#include "host/commands/drawing_files.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/path_text.h"
#include "host/sys/utf8.h"

#include <algorithm>
#include <charconv>

namespace quor::autosave {

namespace fs = std::filesystem;

namespace {

// The number of "3.dxf"; 0 for any other name.
int copyNumber(const fs::path& file) {
    if (file.extension() != ".dxf")
        return 0;
    const std::string stem = file.stem().string();
    int number = 0;
    const auto [end, error] = std::from_chars(stem.data(), stem.data() + stem.size(), number);
    return error == std::errc() && end == stem.data() + stem.size() && number > 0 ? number : 0;
}

std::int64_t timeOf(const fs::path& file) {
    std::error_code error;
    const fs::file_time_type written = fs::last_write_time(file, error);
    if (error)
        return 0;
    return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::file_clock::to_sys(written).time_since_epoch())
        .count();
}

LeftCopy leftCopy(const CopyFile& file) {
    std::error_code error;
    LeftCopy copy{file, readInfo(file), fs::file_size(file.drawing(), error)};
    if (copy.info.title.empty())
        copy.info.title = textOf(file.drawing().filename());
    if (copy.info.time == 0)
        copy.info.time = timeOf(file.drawing());
    return copy;
}

// A drawing that was opened although something is wrong with it is copied with what is wrong with it.
Result<std::unique_ptr<db::Database>, db::FileProblem> openCopy(const fs::path& file) {
    auto opened = db::Database::open(file);
    if (opened.ok())
        return opened;
    auto recovered = db::Database::open(file, {.recover = true, .progress = {}});
    return recovered.ok() ? std::move(recovered) : std::move(opened);
}

} // namespace

Recovery::Recovery(const fs::path& folder) {
    std::error_code error;
    if (folder.empty())
        return;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
        if (std::error_code ignored; entry.is_directory(ignored) && !entry.path().filename().string().starts_with('.'))
            collect(entry.path());
    std::ranges::sort(copies_, [](const LeftCopy& a, const LeftCopy& b) { return a.info.time > b.info.time; });
}

// A folder in which there is nothing to recover goes at once.
void Recovery::collect(const fs::path& folder) {
    std::optional<CopyFolder> taken = CopyFolder::takeOver(folder);
    if (!taken)
        return;
    std::error_code error;
    const std::size_t before = copies_.size();
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
        if (const int number = copyNumber(entry.path()); number > 0)
            copies_.push_back(leftCopy({folder, number}));
    if (copies_.size() > before)
        folders_.push_back(std::move(*taken));
}

Result<Document*, db::FileProblem> Recovery::recover(Session& session, Autosave& autosave, const LeftCopy& copy) const {
    auto drawing = openCopy(copy.file.drawing());
    if (!drawing.ok())
        return fail(drawing.error());
    DocumentManager& documents = session.documents();
    const fs::path path = toUtf8(copy.info.path);
    // A file that was written after the copy holds something else: SAVE must not replace it without a word.
    const bool hasPlace =
        !path.empty() && commands::openDocument(session, path) == nullptr && timeOf(path) <= copy.info.time;
    Document& document = hasPlace ? documents.adopt(std::move(drawing).value(), path)
                                  : documents.adoptNew(std::move(drawing).value(), copy.info.title);
    document.drawing().journal().markUnsaved();
    autosave.takeOver(document, copy.file);
    return &document;
}

} // namespace quor::autosave
