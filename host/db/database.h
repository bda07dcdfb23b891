// A drawing in memory: the file it came from, the table of its objects, its settings, its journal.
#pragma once

#include "host/db/journal.h"
#include "host/db/object_entry.h"
#include "host/sys/result.h"
#include "sdk/db/database.h"
#include "sdk/ge/matrix3d.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace quor::db {

class DrawingFile;

// Why a drawing could not be read or saved, in words for a person.
struct FileProblem {
    ZrString message;
};

struct OpenOptions {
    bool recover = false;
    std::function<void(double)> progress;
};

struct LayoutInfo {
    ZrString name;
    int tabOrder = 0;
    ZrDbObjectId blockId;
};

struct Ucs {
    ZrGePoint3d origin;
    ZrGeVector3d xAxis = ZrGeVector3d::kXAxis;
    ZrGeVector3d yAxis = ZrGeVector3d::kYAxis;
    ZrString name;
};

// The value of a header variable.
using HeaderValue = std::variant<long long, double, ZrString, ZrGePoint3d>;

class Database {
public:
    // A new drawing: AC1032, millimetres.
    [[nodiscard]] static std::unique_ptr<Database> makeNew();
    [[nodiscard]] static Result<std::unique_ptr<Database>, FileProblem> open(const std::filesystem::path& path,
                                                                            const OpenOptions& options = {});
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Writes the drawing to `path`, keeping the previous version as .bak.
    Result<void, FileProblem> save(const std::filesystem::path& path);
    // The bytes that save() would write.
    Result<std::string, FileProblem> toBytes();
    // What was wrong with a recovered drawing, a line each.
    [[nodiscard]] const std::vector<ZrString>& problems() const;
    // "AC1032"; "AC1009" for a file that names none.
    [[nodiscard]] const ZrString& version() const;
    [[nodiscard]] bool isNew() const;

    [[nodiscard]] ZrDbDatabase& interface() { return *interface_; }
    [[nodiscard]] Journal& journal() { return journal_; }

    // Header variables by name with the "$". Setting one is undoable.
    [[nodiscard]] std::optional<HeaderValue> header(const ZrString& name) const;
    void setHeader(const ZrString& name, int code, const HeaderValue& value);
    // Values of the variable dictionary (LIGHTINGUNITS); text as in the file. Setting one is undoable.
    [[nodiscard]] std::optional<ZrString> dictionaryVariable(const ZrString& name) const;
    void setDictionaryVariable(const ZrString& name, const ZrString& value);
    // DEFAULTLIGHTING: 292 of the active viewport from AC1021 on, else kept for the session. Undoable.
    [[nodiscard]] bool defaultLighting() const;
    void setDefaultLighting(bool on);

    // The layouts in tab order, without the model tab; the one whose paper space is in use.
    [[nodiscard]] std::vector<LayoutInfo> layouts() const;
    [[nodiscard]] ZrString currentLayout() const;
    // Undoable. False when there is none of that name.
    bool setCurrentLayout(const ZrString& name);
    // Whether model space is current ($TILEMODE 1), or in a layout a viewport of it (CVPORT above 1). Undoable.
    [[nodiscard]] bool isModelTab() const;
    void setModelTab(bool model);
    [[nodiscard]] int currentViewport() const;
    void setCurrentViewport(int number);

    // The UCS of the current space. Setting it is undoable.
    [[nodiscard]] Ucs ucs() const;
    void setUcs(const Ucs& ucs);

    // Every entity of a space that is not erased, in drawing order.
    [[nodiscard]] std::vector<ZrDbObjectId> entities(ZrDbObjectId space) const;
    // Layers in drawing order; hidden ones too.
    [[nodiscard]] std::vector<ZrDbObjectId> layerIds() const;
    void setCurrentLayer(ZrDbObjectId layer);
    // Makes a layer, undoable; the id of the existing one when there is one of that name.
    ZrDbObjectId makeLayer(const ZrString& name);
    // The name of the object's type in drawing files ("LINE", "LIGHT", "LWPOLYLINE").
    [[nodiscard]] ZrString typeName(ZrDbObjectId id) const;
    // Group codes and values of an object as they would be saved, for LIST of types that the host knows no more of.
    [[nodiscard]] std::vector<std::pair<int, ZrString>> tags(ZrDbObjectId id) const;

    // For host/db and sdk/db implementations.
    [[nodiscard]] DrawingFile& file() { return *file_; }
    [[nodiscard]] const DrawingFile& file() const { return *file_; }
    // Opens as zrdbOpenObject does; reads the object from the file when that was not done yet.
    Quor::ErrorStatus openObject(ZrDbObject*& object, ObjectEntry& entry, ZrDb::OpenMode mode, bool openErased);
    void closeObject(ObjectEntry& entry);

private:
    Database();

    std::unique_ptr<ZrDbDatabase> interface_;
    std::unique_ptr<DrawingFile> file_;
    Journal journal_;
};

} // namespace quor::db
