// A drawing in memory: the file it came from, the table of its objects, its settings, its journal.
#pragma once

#include "host/db/header_store.h"
#include "host/db/journal.h"
#include "host/db/layers.h"
#include "host/db/object_table.h"
#include "host/db/structure.h"
#include "host/db/variable_dictionary.h"
#include "host/sys/result.h"
#include "sdk/db/database.h"
#include "sdk/ge/matrix3d.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

struct ZrDbLightData;

namespace quor::db {

class RefEdit;

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

class Database {
public:
    // A new drawing: AC1032, millimetres.
    [[nodiscard]] static std::unique_ptr<Database> makeNew();
    [[nodiscard]] static Result<std::unique_ptr<Database>, FileProblem> open(const std::filesystem::path& path,
                                                                             const OpenOptions& options = {});
    // The same from bytes in memory.
    [[nodiscard]] static Result<std::unique_ptr<Database>, FileProblem> fromBytes(std::string_view bytes,
                                                                                  const OpenOptions& options = {});
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // From now on a save gives a file that breaks off its end, also when nothing else changed; without it, a drawing
    // without changes is saved as it came.
    void mendOnSave() { mendsOnSave_ = true; }
    [[nodiscard]] bool mendsOnSave() const { return mendsOnSave_; }
    // Writes the drawing to `path`, keeping the previous version as .bak; `progress` is told a share from 0 to 1.
    Result<void, FileProblem> save(const std::filesystem::path& path, std::function<void(double)> progress = {});
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
    [[nodiscard]] std::optional<HeaderValue> header(std::wstring_view name) const;
    void setHeader(const ZrString& name, int code, const HeaderValue& value);
    // Values of the variable dictionary (LIGHTINGUNITS); text as in the file. Setting one is undoable.
    [[nodiscard]] std::optional<ZrString> dictionaryVariable(std::wstring_view name) const;
    void setDictionaryVariable(const ZrString& name, const ZrString& value);
    // DEFAULTLIGHTING: 292 of the active viewport from AC1021 on, else kept for the session. Undoable.
    [[nodiscard]] bool defaultLighting();
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
    // Whether CVPORT can be that number: 2 in the model tab; in a layout 1 for its sheet, or a viewport on it.
    [[nodiscard]] bool hasViewport(int number);

    // The UCS of the current space. Setting it is undoable.
    [[nodiscard]] Ucs ucs() const;
    void setUcs(const Ucs& ucs);

    // The editing of a block in place, of which a drawing has one at a time. It cannot be saved meanwhile.
    [[nodiscard]] RefEdit& refEdit() const { return *refEdit_; }

    // Every entity of a space that is not erased, in drawing order.
    [[nodiscard]] std::vector<ZrDbObjectId> entities(ZrDbObjectId space) const;
    // The last of them; null when there is none.
    [[nodiscard]] ZrDbObjectId lastEntity(ZrDbObjectId space);
    // Layers in drawing order; hidden ones too.
    [[nodiscard]] std::vector<ZrDbObjectId> layerIds() const;
    // Nothing happens for an id that is no layer's of this drawing.
    void setCurrentLayer(ZrDbObjectId layer);
    // Makes a layer, undoable; the id of the existing one when there is one of that name.
    ZrDbObjectId makeLayer(const ZrString& name);
    // The name of the object's type in drawing files ("LINE", "LIGHT", "LWPOLYLINE").
    [[nodiscard]] ZrString typeName(ZrDbObjectId id) const;
    // Group codes and values of an object as they would be saved, for LIST of types that the host knows no more of.
    [[nodiscard]] std::vector<std::pair<int, ZrString>> tags(ZrDbObjectId id);

    // For the rest of host/db.
    [[nodiscard]] DrawingFile& file() { return file_; }
    [[nodiscard]] const DrawingFile& file() const { return file_; }
    [[nodiscard]] ObjectTable& objects() { return objects_; }
    [[nodiscard]] Structure& structure() { return structure_; }
    [[nodiscard]] Layers& layers() { return layers_; }
    [[nodiscard]] HeaderStore& headers() { return headers_; }
    [[nodiscard]] VariableDictionary& variableDictionary() { return variables_; }
    // Opens as zrdbOpenObject does, and closes again.
    Quor::ErrorStatus openObject(ZrDbObject*& object, ObjectEntry& entry, ZrDb::OpenMode mode, bool openErased);
    void closeObject(ObjectEntry& entry);
    // Reads the object from the file when that was not done yet.
    void materialise(ObjectEntry& entry);
    // The block that commands draw in, and the layer.
    [[nodiscard]] Block& currentSpace() const;
    [[nodiscard]] ObjectEntry* currentLayer();
    // Takes an object in; it is open for write from then on.
    ObjectEntry& appendEntity(Block& block, std::unique_ptr<ZrDbEntity> entity);
    ObjectEntry& addLayer(std::unique_ptr<ZrDbLayerTableRecord> layer);
    // To the table of that type; found there by its place, not by name.
    ObjectEntry& addTableRecord(std::string_view type, std::unique_ptr<ZrDbSymbolTableRecord> record);
    // Handles for photometric data that a light has none of; a save writes them when they are needed.
    void reservePhotometry(ZrDbLightData& light);
    // Whether DEFAULTLIGHTING differs from the file, which has a place for it.
    [[nodiscard]] std::optional<bool> defaultLightingToSave();

private:
    // Where the header keeps a coordinate system.
    struct UcsPlaces {
        const HeaderStore::Place& origin;
        const HeaderStore::Place& xAxis;
        const HeaderStore::Place& yAxis;
        const HeaderStore::Place& name;
    };
    [[nodiscard]] UcsPlaces ucsPlaces(bool ofModel) const;
    [[nodiscard]] bool isModelUcs() const;

    Database(dxf::Image image, dxf::Layout layout, bool isNew);
    static Result<std::unique_ptr<Database>, FileProblem> make(dxf::Image image, const OpenOptions& options,
                                                               const ZrString& what);
    [[nodiscard]] Block& currentSheet() const;
    ObjectEntry& adopt(std::unique_ptr<ZrDbObject> object, ObjectEntry& entry);
    [[nodiscard]] bool defaultLightingInFile();
    template <class T>
    void changeSetting(const ZrString& name, T& place, T value);

    DrawingFile file_;
    ObjectTable objects_;
    Structure structure_;
    Layers layers_;
    HeaderStore headers_;
    const HeaderStore::Place& tileMode_;
    const HeaderStore::Place& currentLayerName_;
    UcsPlaces modelUcs_;
    UcsPlaces paperUcs_;
    VariableDictionary variables_;
    Journal journal_;
    std::unique_ptr<RefEdit> refEdit_;
    std::unique_ptr<ZrDbDatabase> interface_;
    std::vector<ZrString> problems_;
    std::optional<bool> defaultLighting_;     // as it was set
    std::optional<bool> defaultLightingRead_; // as the file has it, once somebody asked
    ZrString currentLayout_;
    int currentViewport_ = 2;
    bool isNew_;
    bool mendsOnSave_ = false;
};

} // namespace quor::db
