#include "tests/host/gs/shapes/shape_testing.h"

#include <cmath>

namespace quor::gs {
namespace {

std::vector<std::string> sampleNames() {
    const auto folder = std::filesystem::path(QUOR_TEST_DATA) / "dxf";
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".dxf")
            names.push_back(entry.path().lexically_relative(folder).generic_string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string nameOf(const testing::TestParamInfo<std::string>& info) {
    std::string name = info.param;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
}

bool isFinite(const ZrGePoint3d& at) { return std::isfinite(at.x) && std::isfinite(at.y) && std::isfinite(at.z); }

void expectSound(const Shape& shape) {
    std::size_t lines = 0;
    std::size_t triangles = 0;
    for (const Part& part : shape.parts) {
        EXPECT_EQ(part.firstLine, lines);
        EXPECT_EQ(part.firstTriangle, triangles);
        EXPECT_GT(part.lineCount + part.triangleCount, 0U);
        lines += part.lineCount;
        triangles += part.triangleCount;
    }
    EXPECT_EQ(shape.lines.size(), 2 * lines);
    EXPECT_EQ(shape.triangles.size(), 3 * triangles);
    EXPECT_TRUE(std::all_of(shape.lines.begin(), shape.lines.end(), isFinite));
    EXPECT_TRUE(std::all_of(shape.triangles.begin(), shape.triangles.end(), isFinite));
}

// Every drawing of the test data, damaged ones mended as far as that goes.
struct ShapesOfSamples : testing::TestWithParam<std::string> {
    std::unique_ptr<db::Database> database = db::drawings::parsed(db::drawings::fileBytes(GetParam()), true);
};

TEST_P(ShapesOfSamples, AreSound) {
    for (const auto& block : database->structure().blocks())
        for (const db::ObjectEntry* entity : block->entities) {
            Shape shape;
            appendShape(shape, *database, *entity);
            expectSound(shape);
            (void)snapPoints(*database, *entity);
        }
}

INSTANTIATE_TEST_SUITE_P(Drawings, ShapesOfSamples, testing::ValuesIn(sampleNames()), nameOf);

// How many entities of a type show something.
std::size_t shownOf(const std::string& file, std::string_view type) {
    const auto database = db::drawings::parsed(db::drawings::fileBytes(file), true);
    std::size_t shown = 0;
    for (const auto& block : database->structure().blocks())
        for (const db::ObjectEntry* entity : block->entities) {
            Shape shape;
            if (database->file().typeName(entity->type) == type)
                appendShape(shape, *database, *entity);
            shown += shape.isEmpty() ? 0 : 1;
        }
    return shown;
}

struct Expected {
    const char* file;
    const char* type;
    std::size_t shown;
};

struct KindsOfSamples : testing::TestWithParam<Expected> {};

TEST_P(KindsOfSamples, AreShown) { EXPECT_EQ(shownOf(GetParam().file, GetParam().type), GetParam().shown); }

// All that there are and that are to be seen.
INSTANTIATE_TEST_SUITE_P(
    Drawings, KindsOfSamples,
    testing::Values(
        Expected{"as_sample_AC1009_binary.dxf", "LINE", 1324}, Expected{"as_sample_AC1009_binary.dxf", "POLYLINE", 312},
        Expected{"as_sample_AC1009_binary.dxf", "SOLID", 345}, Expected{"as_sample_AC1009_binary.dxf", "DIMENSION", 11},
        Expected{"as_sample_AC1015_binary.dxf", "3DSOLID", 2}, Expected{"as_sample_AC1015_binary.dxf", "REGION", 1},
        Expected{"as_sample_AC1015_binary.dxf", "MLINE", 3}, Expected{"as_sample_AC1015_binary.dxf", "MESH", 2},
        Expected{"as_sample_AC1032_binary.dxf", "3DSOLID", 0}, Expected{"as_sample_AC1032_binary.dxf", "XLINE", 1},
        Expected{"bn_floorplan.dxf", "INSERT", 285}, Expected{"bn_floorplan.dxf", "HATCH", 26},
        Expected{"as_sample_AC1032_binary.dxf", "ACAD_TABLE", 2}, Expected{"as_sample_AC1009_binary.dxf", "TEXT", 256},
        Expected{"bn_floorplan.dxf", "MTEXT", 144}, Expected{"bn_floorplan.dxf", "LWPOLYLINE", 402},
        Expected{"bn_supported_entities.dxf", "SPLINE", 6}, Expected{"bn_supported_entities.dxf", "ELLIPSE", 3},
        Expected{"nd_sample_binary.dxf", "3DFACE", 1}, Expected{"nd_sample_binary.dxf", "LEADER", 1},
        Expected{"nd_sample_binary.dxf", "VIEWPORT", 1}, Expected{"ix_diamond_bin.dxf", "LINE", 12}));

} // namespace
} // namespace quor::gs
