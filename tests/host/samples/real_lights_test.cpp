// Lights of real drawings. More drawings than those of tests/data are looked at when QUOR_SAMPLES names a folder of
// them.
#include "host/db/database.h"
#include "sdk/db/light.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

namespace quor {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> drawings() {
    std::vector<fs::path> found;
    const auto collect = [&](const fs::path& folder) {
        for (const fs::directory_entry& file : fs::recursive_directory_iterator(folder))
            if (file.path().extension() == ".dxf")
                found.push_back(file.path());
    };
    collect(fs::path(QUOR_TEST_DATA) / "dxf");
    if (const char* more = std::getenv("QUOR_SAMPLES"))
        collect(more);
    std::sort(found.begin(), found.end());
    return found;
}

std::string bytesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

std::vector<ZrDbObjectId> lightsOf(db::Database& drawing) {
    std::vector<ZrDbObjectId> lights;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(drawing.interface().modelSpaceId(), ZrDb::kForRead);
    for (auto at = space->newIterator(ZrDbLight::desc()); !at->done(); at->step())
        lights.push_back(at->entityId());
    return lights;
}

// How many bytes have to go between the common beginning and the common end of two texts.
std::size_t differingBytes(const std::string& before, const std::string& after) {
    const auto [a, b] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto begin = static_cast<std::size_t>(a - before.begin());
    const auto [c, d] = std::mismatch(before.rbegin(), before.rend() - static_cast<std::ptrdiff_t>(begin),
                                      after.rbegin(), after.rend() - static_cast<std::ptrdiff_t>(begin));
    return before.size() - begin - static_cast<std::size_t>(c - before.rbegin());
}

// A drawing with a light in it; drawings without one, and those that need recovery, are skipped.
class RealLights : public testing::TestWithParam<fs::path> {
protected:
    void SetUp() override {
        auto opened = db::Database::open(GetParam());
        if (!opened.ok())
            GTEST_SKIP() << "not to be opened without recovery";
        drawing = std::move(opened).value();
        const std::vector<ZrDbObjectId> lights = lightsOf(*drawing);
        if (lights.empty())
            GTEST_SKIP() << "no lights";
        first = lights.front();
    }

    std::unique_ptr<db::Database> drawing;
    ZrDbObjectId first;
};

TEST_P(RealLights, ChangingTheIntensityOfOneChangesThatValueAndNothingElse) {
    {
        const ZrDbObjectPointer<ZrDbLight> light(first, ZrDb::kForWrite);
        ASSERT_EQ(light->setIntensity(light->intensity() + 0.5), Quor::eOk);
    }

    const std::string before = bytesOf(GetParam());
    const std::string after = drawing->toBytes().value();

    EXPECT_NE(before, after);
    EXPECT_LE(differingBytes(before, after), 24U) << "more than one number of the file";
}

TEST_P(RealLights, UndoOfAnIntensityGivesTheSameBytesAsTheFile) {
    {
        const ZrDbObjectPointer<ZrDbLight> light(first, ZrDb::kForWrite);
        ASSERT_EQ(light->setIntensity(7.25), Quor::eOk);
    }
    drawing->journal().undo();

    EXPECT_EQ(drawing->toBytes().value(), bytesOf(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Drawings, RealLights, testing::ValuesIn(drawings()), [](const auto& test) {
    std::string name = test.param.stem().string() + "_" + std::to_string(test.index);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; }, '_');
    return name;
});

} // namespace
} // namespace quor
