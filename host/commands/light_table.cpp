// LIGHTTABLE: the lights of the drawing as tables. -LIGHTTABLE: the same, or as a file for other programs.
#include "host/texts/light_table.h"
#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/drawing_files.h"
#include "host/commands/light_file_writer.h"
#include "host/commands/light_selection.h"
#include "host/commands/light_tables.h"
#include "host/commands/progress.h"
#include "host/commands/save_place.h"
#include "host/commands/ucs_math.h"
#include "host/db/file_messages.h"
#include "host/db/ref_edit.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/system_variables.h"
#include "host/texts/list.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quor::commands {

namespace {

namespace fs = std::filesystem;

constexpr PlaceTexts kPlaceOfATable{.isFolder = texts::kTableIsFolder,
                                    .noRegularFile = texts::kTableNoRegularFile,
                                    .noSuchFolder = texts::kTableNoSuchFolder,
                                    .isOpenDrawing = texts::kTableIsDrawing,
                                    .notReplaced = texts::kTableNotReplaced};

// What the number of lights alone does not tell.
void sayWhichLights(Session& session, const LightSelection& selection) {
    if (const db::RefEdit& editing = session.documents().current()->drawing().refEdit(); editing.isActive())
        sayShown(selection.inWorkset == 1 ? texts::kTableOneInWorkset : texts::kTableInWorkset, editing.blockName(),
                 selection.inWorkset);
    if (selection.others > 0)
        say(selection.others == 1 ? texts::kTableOneOther : texts::kTableOthers, selection.others);
}

void sayNoLights(const LightSelection& selection) {
    say(selection.all ? texts::kTableNoLights : texts::kTableNoneSelected);
}

LightTables read(Session& session, const LightSelection& selection) {
    Progress progress(session.front(), texts::kTableReading.get(), selection.count);
    LightTables tables(session.variables().number(L"LIGHTINGUNITS"), session.front().columns());
    LightReader lights(selection);
    while (const std::optional<LightFacts> light = lights.next()) {
        tables.add(*light);
        progress.step();
    }
    return tables;
}

void show(Session& session, const LightSelection& selection) {
    const LightTables tables = read(session, selection);
    if (!sameUcs(session.documents().current()->drawing().ucs(), db::Ucs()))
        say(texts::kListUcs);
    {
        Progress progress(session.front(), texts::kTableShowing.get(), tables.lines());
        tables.print([&] { progress.step(); });
    }
    say(texts::kTableTotal, tables.count(), tables.kindCounts());
    sayWhichLights(session, selection);
}

// Beside the drawing, with its name.
fs::path usualPath(const Document& document, const LightFileFormat& format) {
    const fs::path drawing = document.path().empty() ? pathFromText(document.fileName()) : document.path();
    return absolutePath(fs::path(drawing).replace_extension(format.extension));
}

const LightFileFormat* formatOf(const fs::path& extension) {
    const auto formats = lightFileFormats();
    const auto format = std::find_if(formats.begin(), formats.end(), [&](const LightFileFormat& f) {
        return equalFolded(textOf(extension), textOf(f.extension));
    });
    return format == formats.end() ? nullptr : &*format;
}

// The place that was typed. Of a name that is an extension and no more (".json") the rest is the drawing's.
fs::path typedPath(const ZrString& typed, const fs::path& usual, const LightFileFormat& format) {
    fs::path path = absolutePath(pathFromText(typed));
    if (formatOf(path.filename()) != nullptr)
        return path.replace_filename(usual.stem() += path.filename());
    return withExtension(path, format.extension);
}

// What keeps files from being written there. What is not there, and what is no file, is told elsewhere.
std::optional<dxf::SaveError> obstacleAt(const fs::path& path) {
    const auto isForbidden = [](const fs::path& place) {
        return ::faccessat(AT_FDCWD, place.c_str(), W_OK, AT_EACCESS) != 0 && errno != ENOENT && errno != ENOTDIR;
    };
    std::error_code error;
    if (fs::exists(path, error) && !fs::is_regular_file(path, error))
        return std::nullopt;
    const fs::path target = fs::weakly_canonical(path, error);
    if (error)
        return dxf::SaveError{dxf::SaveStep::Target, error.value(), path};
    if (isForbidden(target))
        return dxf::SaveError{dxf::SaveStep::Target, errno, target};
    if (isForbidden(target.parent_path()))
        return dxf::SaveError{dxf::SaveStep::CreateTemp, errno, target.parent_path()};
    return std::nullopt;
}

int failToSave(const dxf::SaveError& error, const fs::path& path) {
    printText(L"\n" + visibleText(db::describe(error, textOf(path))) + L"\n");
    return RTERROR;
}

// Before anybody picks lights for a file that cannot be written. RTNORM, RTCAN, or RTERROR after a message.
int checkTablePath(Session& session, const LightFileFormat& format, const fs::path& path) {
    if (const auto obstacle = obstacleAt(path))
        return failToSave(*obstacle, path);
    const LightFileFormat* said = formatOf(path.extension());
    if (said != nullptr && said != &format)
        sayShown(texts::kTableOtherFormat, textOf(path), format.name);
    return checkPlace(session, path, nullptr, kPlaceOfATable);
}

// RTNORM with a path, RTCAN, or RTERROR after a message.
int askTablePath(Session& session, const LightFileFormat& format, fs::path& path) {
    path = usualPath(*session.documents().current(), format);
    const std::optional<ZrString> answer = askLine(fillShown(texts::kAskTableFile, textOf(path)));
    if (!answer)
        return RTCAN;
    if (!answer->empty())
        path = typedPath(*answer, path, format);
    return checkTablePath(session, format, path);
}

int write(Session& session, const LightSelection& selection, const LightFileFormat& format, const fs::path& path) {
    const auto written = writeLightFile(session, selection, format, path);
    if (!written)
        return failToSave(written.error(), path);
    sayShown(written.value().count == 1 ? texts::kTableOneWritten : texts::kTableWritten, written.value().count,
             textOf(path));
    sayWhichLights(session, selection);
    if (format.isForSpreadsheets && written.value().formulas > 0)
        say(written.value().formulas == 1 ? texts::kTableOneFormula : texts::kTableFormulas, written.value().formulas);
    return RTNORM;
}

int writeLights(Session& session, const LightFileFormat& format) {
    fs::path path;
    if (const int result = askTablePath(session, format, path); result != RTNORM)
        return result;
    LightSelection selection;
    if (const int result = selectLights(session, selection); result != RTNORM)
        return result;
    if (selection.count > 0)
        return write(session, selection, format, path);
    sayNoLights(selection);
    return failWith(texts::kTableNotWritten, textOf(path));
}

} // namespace

int lightTable(Session& session) {
    LightSelection selection;
    if (const int result = selectLights(session, selection); result != RTNORM)
        return result;
    if (selection.count > 0)
        show(session, selection);
    else
        sayNoLights(selection);
    return RTNORM;
}

int lightTableAsFile(Session& session) {
    armKeywords(0, L"Table Csv Json");
    ZrString answer;
    const int result = zredGetKword(texts::kAskTableFormat.get(), answer);
    if (result != RTNORM && result != RTNONE)
        return result;
    if (answer == L"Table")
        return lightTable(session);
    const auto formats = lightFileFormats();
    const auto format =
        std::find_if(formats.begin(), formats.end(), [&](const LightFileFormat& f) { return answer == f.keyword; });
    return writeLights(session, format == formats.end() ? formats.front() : *format);
}

} // namespace quor::commands
