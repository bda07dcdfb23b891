#include "host/autosave/copy_file.h"

#include "host/commands/drawing_files.h"
#include "host/db/saver.h"
#include "host/document.h"
#include "host/dxf/file_saver.h"
#include "host/sys/path_text.h"
#include "host/sys/system_error.h"
#include "host/sys/whole_file.h"

#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace quor::autosave {

namespace fs = std::filesystem;

namespace {

const dxf::SaveOptions kWithoutBackup{.keepBackup = false};
constexpr std::size_t kLongestInfo = 1 << 20;

CopyInfo infoOf(const Document& document) {
    const ZrString path = document.path().empty() ? ZrString() : textOf(absolutePath(document.path()));
    return {path, commands::shortName(document), static_cast<std::int64_t>(std::time(nullptr))};
}

Result<void, ZrString> saved(const Result<void, dxf::SaveError>& result) {
    if (result.ok())
        return {};
    return fail(systemErrorText(result.error().systemError));
}

} // namespace

fs::path CopyFile::drawing() const { return folder / (std::to_string(number) + ".dxf"); }

fs::path CopyFile::info() const { return folder / (std::to_string(number) + ".info"); }

// The info goes first: a drawing without it would not know where it belongs.
Result<void, ZrString> write(Document& document, const CopyFile& copy) {
    db::Database& drawing = document.drawing();
    drawing.mendOnSave();
    const Result<dxf::PatchList, db::FileProblem> patches = db::collectPatches(drawing, commands::shortName(document));
    if (!patches.ok())
        return fail(patches.error().message);
    const std::string info = bytesOf(infoOf(document));
    if (Result<void, ZrString> done = saved(dxf::saveAtomically(copy.info(), {info}, kWithoutBackup)); !done)
        return done;
    return saved(dxf::saveAtomically(copy.drawing(), patches.value().segments(drawing.file().bytes()), kWithoutBackup));
}

CopyInfo readInfo(const CopyFile& copy) {
    const Result<std::string, int> bytes = readWholeFile(copy.info(), kLongestInfo);
    return bytes.ok() ? copyInfoIn(bytes.value()) : CopyInfo{};
}

void remove(const CopyFile& copy) {
    ::unlink(copy.drawing().c_str());
    ::unlink(copy.info().c_str());
}

bool move(const CopyFile& from, const CopyFile& to) {
    if (::rename(from.info().c_str(), to.info().c_str()) != 0 && errno != ENOENT)
        return false;
    if (::rename(from.drawing().c_str(), to.drawing().c_str()) == 0)
        return true;
    ::rename(to.info().c_str(), from.info().c_str());
    return false;
}

} // namespace quor::autosave
