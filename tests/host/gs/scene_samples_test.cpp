// Scenes of real drawings, sound and broken ones.
#include "tests/host/gs/scene_testing.h"

#include <filesystem>

namespace quor::gs {
namespace {

std::vector<std::string> sampleNames() {
    const std::filesystem::path folder = std::filesystem::path(QUOR_TEST_DATA) / "dxf";
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".dxf")
            names.push_back(entry.path().lexically_relative(folder).string());
    std::sort(names.begin(), names.end());
    return names;
}

bool isFinite(const Coordinates& c) {
    return std::all_of(c.begin(), c.end(), [](float x) { return std::isfinite(x); });
}

struct SceneOfSample : testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Samples, SceneOfSample, testing::ValuesIn(sampleNames()));

TEST_P(SceneOfSample, IsWhole) {
    auto drawing = db::Database::fromBytes(db::drawings::fileBytes(GetParam()), {true, {}});
    if (!drawing.ok())
        GTEST_SKIP() << "cannot be read at all";
    Scene scene(drawing.value()->interface());
    scene.update();
    const SceneData data = scene.data();
    EXPECT_TRUE(chunksHoldTheirItems(data));
    EXPECT_TRUE(std::all_of(data.lines.begin(), data.lines.end(),
                            [](const SceneLine& line) { return isFinite(line.a) && isFinite(line.b); }));
    EXPECT_EQ(data.entities.size(), data.emphasis.size());
    EXPECT_TRUE(std::isfinite(scene.extents().diagonal()));
}

} // namespace
} // namespace quor::gs
