// LIGHTTABLE: the lights of the drawing as tables. -LIGHTTABLE: the same, or as a file for other programs.
#include "host/texts/light_table.h"
#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/drawing_files.h"
#include "host/commands/light_files.h"
#include "host/commands/light_tables.h"
#include "host/commands/listing.h"
#include "host/commands/ucs_math.h"
#include "host/db/file_messages.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/texts/files.h"
#include "host/texts/list.h"
#include "sdk/db/block_table.h"
#include "sdk/db/units.h"

#include <algorithm>
#include <unordered_set>

namespace quor::commands {

namespace {

namespace fs = std::filesystem;

// Tells the front end now and then how far something has come, and at last that it is over.
class Progress {
public:
    Progress(Session& session, ZrString what, std::size_t steps)
        : session_(session), what_(std::move(what)), steps_(steps) {}
    ~Progress() { session_.front().progress(what_, 1); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void step() {
        constexpr std::size_t kBetween = 1024;
        if (++done_ % kBetween == 0 && done_ < steps_)
            session_.front().progress(what_, static_cast<double>(done_) / static_cast<double>(steps_));
    }

private:
    Session& session_;
    ZrString what_;
    std::size_t steps_;
    std::size_t done_ = 0;
};

// What was asked for.
struct Wanted {
    bool all = false;
    std::unordered_set<ZrDbObjectId> ids;

    [[nodiscard]] bool has(ZrDbObjectId id) const { return all || ids.contains(id); }
};

struct Found {
    std::vector<LightFacts> lights; // in drawing order, model space first
    std::size_t others = 0;         // selected objects that are no lights
    bool all = false;
};

// The pick-first selection, or what is selected now; Enter alone: all lights. RTNORM, or RTCAN.
int askWanted(Wanted& wanted) {
    ZrDbObjectIdArray ids;
    const int result = zredSelect(texts::kAskLights.get(), ids);
    wanted.all = result == RTNONE;
    wanted.ids.insert(ids.begin(), ids.end());
    return wanted.all ? RTNORM : result;
}

struct Space {
    ZrDbObjectId block;
    ZrString layout; // empty: model space
};

std::vector<Space> spacesOf(Document& document) {
    std::vector<Space> spaces{{document.database()->modelSpaceId(), {}}};
    for (const db::LayoutInfo& layout : document.drawing().layouts())
        spaces.push_back({layout.blockId, layout.name});
    return spaces;
}

PhotometricUnits photometricUnits(Session& session) {
    constexpr int kMillimetres = 4; // as in INSUNITS
    PhotometricUnits units;
    units.lightingUnits = session.variables().number(L"LIGHTINGUNITS");
    zredGetUnitsConversion(kMillimetres, session.variables().number(L"INSUNITS"), units.unitsPerMillimetre);
    return units;
}

std::vector<ZrDbObjectId> lightsOf(ZrDbObjectId block, const Wanted& wanted) {
    std::vector<ZrDbObjectId> ids;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> record(block, ZrDb::kForRead);
    if (!record)
        return ids;
    for (const auto at = record->newIterator(ZrDbLight::desc()); !at->done(); at->step())
        if (wanted.has(at->entityId()))
            ids.push_back(at->entityId());
    return ids;
}

// Reads the lights of one space.
void collect(Session& session, const Space& space, const std::vector<ZrDbObjectId>& ids, Found& found) {
    Progress progress(session, texts::kTableReading.get(), ids.size());
    const PhotometricUnits units = photometricUnits(session);
    for (const ZrDbObjectId id : ids) {
        const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
        if (const auto* light = entity ? zrrxCast<ZrDbLight>(entity.object()) : nullptr)
            found.lights.push_back(factsOf(*light, space.layout, units));
        else
            say(texts::kListUnreadable, zrFormat(L"%X", {id.handle().value()}));
        progress.step();
    }
}

int findLights(Session& session, Found& found) {
    Wanted wanted;
    if (const int result = askWanted(wanted); result != RTNORM)
        return result;
    std::size_t lights = 0;
    for (const Space& space : spacesOf(*session.documents().current())) {
        const std::vector<ZrDbObjectId> ids = lightsOf(space.block, wanted);
        lights += ids.size();
        collect(session, space, ids, found);
    }
    found.all = wanted.all;
    found.others = wanted.all ? 0 : wanted.ids.size() - lights;
    return RTNORM;
}

void sayOthers(const Found& found) {
    if (found.others > 0)
        say(texts::kTableOthers, found.others);
}

void show(Session& session, const Found& found) {
    if (found.lights.empty()) {
        say(found.all ? texts::kTableNoLights : texts::kTableNoneSelected);
        return;
    }
    if (!sameUcs(session.documents().current()->drawing().ucs(), db::Ucs()))
        say(texts::kListUcs);
    {
        Progress progress(session, texts::kTableShowing.get(), kLightTables * found.lights.size());
        printLightTables(found.lights, [&] { progress.step(); });
    }
    say(texts::kTableTotal, found.lights.size(), kindCounts(found.lights));
    sayOthers(found);
}

// Beside the drawing, with its name.
fs::path usualPath(const Document& document, const LightFileFormat& format) {
    const fs::path drawing = document.path().empty() ? pathFromText(document.fileName()) : document.path();
    return absolutePath(fs::path(drawing).replace_extension(format.extension));
}

// Says why nothing can be written there; true when it can.
bool isPlaceToWrite(Session& session, const fs::path& path) {
    std::error_code error;
    const fs::path folder = path.parent_path();
    const Text* problem = nullptr;
    if (fs::is_directory(path, error))
        problem = &texts::kTableIsFolder;
    else if (fs::exists(path, error) && !fs::is_regular_file(path, error))
        problem = &texts::kTableNoRegularFile;
    else if (openDocument(session, path) != nullptr)
        problem = &texts::kTableIsDrawing;
    if (problem == nullptr && !folder.empty() && !fs::is_directory(folder, error)) {
        sayShown(texts::kTableNoSuchFolder, textOf(folder));
        return false;
    }
    if (problem != nullptr)
        sayShown(*problem, textOf(path));
    return problem == nullptr;
}

// RTNORM with a path, RTCAN, or RTERROR after a message.
int askTablePath(Session& session, const LightFileFormat& format, fs::path& path) {
    path = usualPath(*session.documents().current(), format);
    const std::optional<ZrString> answer = askLine(fillShown(texts::kAskTableFile, textOf(path)));
    if (!answer)
        return RTCAN;
    if (!answer->empty())
        path = absolutePath(pathFromText(*answer));
    std::error_code error;
    if (!path.has_extension() && !fs::exists(path, error))
        path += format.extension;
    if (!isPlaceToWrite(session, path))
        return RTERROR;
    if (!fs::exists(path, error))
        return RTNORM;
    const std::optional<bool> replace = askYesNo(fillShown(texts::kAskReplace, textOf(path)), false);
    if (!replace)
        return RTCAN;
    return *replace ? RTNORM : failWith(texts::kTableNotReplaced, textOf(path));
}

DrawingFacts drawingFacts(Session& session) {
    const Document& document = *session.documents().current();
    DrawingFacts facts;
    facts.name = document.path().empty() ? document.fileName() : textOf(document.path());
    facts.lengthUnit = drawingUnit();
    facts.insertionUnits = session.variables().number(L"INSUNITS");
    facts.lightingUnits = session.variables().number(L"LIGHTINGUNITS");
    return facts;
}

// In pieces, so that a long file is not copied again and again while it grows.
std::vector<std::string> fileOf(Session& session, const Found& found, const LightFileFormat& format,
                                const fs::path& path) {
    constexpr std::size_t kPiece = 1 << 20;
    Progress progress(session, fillShown(texts::kTableWriting, textOf(path.filename())), found.lights.size());
    std::vector<std::string> pieces{format.begin(drawingFacts(session))};
    bool isFirst = true;
    for (const LightFacts& light : found.lights) {
        format.append(pieces.back(), light, isFirst);
        isFirst = false;
        if (pieces.back().size() > kPiece)
            pieces.emplace_back();
        progress.step();
    }
    pieces.back() += format.end;
    return pieces;
}

int write(Session& session, const Found& found, const LightFileFormat& format, const fs::path& path) {
    const std::vector<std::string> file = fileOf(session, found, format, path);
    const dxf::Segments segments(file.begin(), file.end());
    if (const auto saved = dxf::saveAtomically(path, segments, {.keepBackup = false}); !saved) {
        printText(L"\n" + visibleText(db::describe(saved.error(), textOf(path))) + L"\n");
        return RTERROR;
    }
    sayShown(texts::kTableWritten, textOf(path), found.lights.size());
    sayOthers(found);
    const auto formulas = std::count_if(found.lights.begin(), found.lights.end(), looksLikeFormula);
    if (format.isForSpreadsheets && formulas > 0)
        say(texts::kTableFormulas, formulas);
    return RTNORM;
}

int writeLights(Session& session, const LightFileFormat& format) {
    fs::path path;
    if (const int result = askTablePath(session, format, path); result != RTNORM)
        return result;
    Found found;
    const int result = findLights(session, found);
    return result == RTNORM ? write(session, found, format, path) : result;
}

} // namespace

int lightTable(Session& session) {
    Found found;
    const int result = findLights(session, found);
    if (result == RTNORM)
        show(session, found);
    return result;
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
