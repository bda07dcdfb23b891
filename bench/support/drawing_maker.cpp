#include "bench/support/drawing_maker.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace quor::bench {
namespace {

constexpr unsigned modelSpace = 0x1F;
constexpr unsigned firstEntity = 0x100;
constexpr int layerCount = 10;

// Appends tags to a drawing file.
class TagWriter {
public:
    void text(int code, const char* value) { line("%3d\r\n%s\r\n", code, value); }
    void whole(int code, long value) { line("%3d\r\n%6ld\r\n", code, value); }
    void handle(int code, unsigned value) { line("%3d\r\n%X\r\n", code, value); }
    void real(int code, double value) { line("%3d\r\n%.10f\r\n", code, value); }
    [[nodiscard]] std::string take() { return std::move(bytes_); }

private:
    template <class Value>
    void line(const char* format, int code, Value value) {
        char buffer[96];
        bytes_.append(buffer, static_cast<std::size_t>(std::snprintf(buffer, sizeof buffer, format, code, value)));
    }

    std::string bytes_;
};

// Numbers that look like measurements, the same in every run.
class Coordinates {
public:
    double next() {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<double>(state_ >> 40) / 167.77216 - 50000;
    }

private:
    std::uint64_t state_ = 12345;
};

void writeLayers(TagWriter& out) {
    out.text(0, "TABLE");
    out.text(2, "LAYER");
    out.handle(5, 2);
    out.text(100, "AcDbSymbolTable");
    out.whole(70, layerCount + 1);
    for (int i = -1; i < layerCount; ++i) {
        char name[8];
        std::snprintf(name, sizeof name, i < 0 ? "0" : "L%d", i);
        out.text(0, "LAYER");
        out.handle(5, 0x40 + static_cast<unsigned>(i));
        out.text(100, "AcDbSymbolTableRecord");
        out.text(100, "AcDbLayerTableRecord");
        out.text(2, name);
        out.whole(70, 0);
        out.whole(62, 7);
        out.text(6, "Continuous");
    }
    out.text(0, "ENDTAB");
}

void writeBlockRecords(TagWriter& out) {
    out.text(0, "TABLE");
    out.text(2, "BLOCK_RECORD");
    out.handle(5, 1);
    out.text(100, "AcDbSymbolTable");
    out.whole(70, 2);
    for (const auto& [name, handle] : {std::pair{"*Model_Space", modelSpace}, std::pair{"*Paper_Space", 0x1BU}}) {
        out.text(0, "BLOCK_RECORD");
        out.handle(5, handle);
        out.text(100, "AcDbSymbolTableRecord");
        out.text(100, "AcDbBlockTableRecord");
        out.text(2, name);
    }
    out.text(0, "ENDTAB");
}

void writeBlocks(TagWriter& out) {
    struct Block {
        const char* name;
        unsigned record, begin, end;
    };
    for (const Block& block :
         {Block{"*Model_Space", modelSpace, 0x20, 0x21}, Block{"*Paper_Space", 0x1B, 0x1C, 0x1D}}) {
        out.text(0, "BLOCK");
        out.handle(5, block.begin);
        out.handle(330, block.record);
        out.text(100, "AcDbEntity");
        out.text(8, "0");
        out.text(100, "AcDbBlockBegin");
        out.text(2, block.name);
        out.whole(70, 0);
        out.text(0, "ENDBLK");
        out.handle(5, block.end);
        out.handle(330, block.record);
        out.text(100, "AcDbEntity");
        out.text(8, "0");
        out.text(100, "AcDbBlockEnd");
    }
}

void writeCorners(TagWriter& out, Coordinates& coordinates, int count) {
    for (int corner = 0; corner < count; ++corner)
        for (const int axis : {10, 20, 30})
            out.real(axis + corner, coordinates.next());
}

void writePolyline(TagWriter& out, Coordinates& coordinates) {
    out.whole(90, 6);
    out.whole(70, 1);
    for (int vertex = 0; vertex < 6; ++vertex) {
        out.real(10, coordinates.next());
        out.real(20, coordinates.next());
    }
}

void writeEntity(TagWriter& out, Coordinates& coordinates, std::size_t index, Entities entities) {
    struct Kind {
        const char* name;
        const char* marker;
    };
    static constexpr Kind kinds[] = {
        {"LINE", "AcDbLine"}, {"LWPOLYLINE", "AcDbPolyline"}, {"3DFACE", "AcDbFace"}, {"CIRCLE", "AcDbCircle"}};
    const std::size_t kind = entities == Entities::Mixed ? index % std::size(kinds) : 0;
    char layer[8];
    std::snprintf(layer, sizeof layer, "L%d", static_cast<int>(index % layerCount));
    out.text(0, kinds[kind].name);
    out.handle(5, firstEntity + static_cast<unsigned>(index));
    out.handle(330, modelSpace);
    out.text(100, "AcDbEntity");
    out.text(8, layer);
    out.text(100, kinds[kind].marker);
    if (kind == 1)
        return writePolyline(out, coordinates);
    static constexpr int corners[] = {2, 0, 4, 1};
    writeCorners(out, coordinates, corners[kind]);
    if (kind == 3)
        out.real(40, 12.5);
}

void writeObjects(TagWriter& out) {
    out.text(0, "DICTIONARY");
    out.handle(5, 0xC);
    out.handle(330, 0);
    out.text(100, "AcDbDictionary");
    out.whole(281, 1);
    out.text(3, "ACAD_GROUP");
    out.handle(350, 0xD);
    out.text(0, "DICTIONARY");
    out.handle(5, 0xD);
    out.handle(330, 0xC);
    out.text(100, "AcDbDictionary");
    out.whole(281, 1);
}

void beginSection(TagWriter& out, const char* name) {
    out.text(0, "SECTION");
    out.text(2, name);
}

} // namespace

std::string makeDrawing(std::size_t count, Entities entities) {
    TagWriter out;
    beginSection(out, "HEADER");
    out.text(9, "$ACADVER");
    out.text(1, "AC1027");
    out.text(9, "$HANDSEED");
    out.handle(5, firstEntity + static_cast<unsigned>(count));
    out.text(0, "ENDSEC");
    beginSection(out, "TABLES");
    writeLayers(out);
    writeBlockRecords(out);
    out.text(0, "ENDSEC");
    beginSection(out, "BLOCKS");
    writeBlocks(out);
    out.text(0, "ENDSEC");
    beginSection(out, "ENTITIES");
    Coordinates coordinates;
    for (std::size_t i = 0; i < count; ++i)
        writeEntity(out, coordinates, i, entities);
    out.text(0, "ENDSEC");
    beginSection(out, "OBJECTS");
    writeObjects(out);
    out.text(0, "ENDSEC");
    out.text(0, "EOF");
    return out.take();
}

ScratchFolder::ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "quor-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        std::abort(); // nothing can be measured without a place for files
    path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path ScratchFolder::write(const std::string& name, const std::string& bytes) const {
    std::filesystem::path file = path_ / name;
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return file;
}

} // namespace quor::bench
