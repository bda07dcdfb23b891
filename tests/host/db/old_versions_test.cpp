#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace quor::db {
namespace {

using namespace drawings;

// Drawings that are too old to hold a light.
struct OldVersions : testing::TestWithParam<const char*> {
    std::unique_ptr<Database> database = opened(GetParam());
};

TEST_P(OldVersions, RefuseALightWithTheVersionInTheMessage) {
    addLight(*database);
    const auto bytes = database->toBytes();
    ASSERT_FALSE(bytes.ok());
    EXPECT_NE(bytes.error().message.find(database->version()), ZrString::npos);
}

TEST_P(OldVersions, RefusedSaveLeavesTheFileAndStaysUnsaved) {
    const auto path = std::filesystem::path(testing::TempDir()) / "old_version.dxf";
    std::ofstream(path, std::ios::binary) << fileBytes(GetParam());
    addLight(*database);
    EXPECT_FALSE(database->save(path).ok());
    std::ifstream file(path, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), fileBytes(GetParam()));
    EXPECT_TRUE(database->journal().isModified());
    std::filesystem::remove(path);
}

TEST_P(OldVersions, AreSavedAgainOnceTheLightIsGone) {
    const ZrDbObjectId light = addLight(*database);
    erase(light);
    EXPECT_EQ(bytesOf(*database), fileBytes(GetParam()));
}

TEST_P(OldVersions, TakeLinesAndLayers) {
    const auto count = database->entities(database->interface().modelSpaceId()).size();
    const ZrDbObjectId layer = database->makeLayer(L"WALLS");
    const ZrDbObjectId line = addLine(*database);
    ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForWrite)->setLayer(layer);
    const auto again = reopened(*database);
    const auto entities = again->entities(again->interface().modelSpaceId());
    ASSERT_EQ(entities.size(), count + 1);
    const ZrDbObjectPointer<ZrDbLine> read(entities.back(), ZrDb::kForRead);
    EXPECT_EQ(read->layer(), L"WALLS");
    EXPECT_EQ(read->layerId(), ZrDbObjectId(again->layers().find(L"WALLS")));
    EXPECT_EQ(read->startPoint(), ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(read->endPoint(), ZrGePoint3d(4, 5, 6));
}

INSTANTIATE_TEST_SUITE_P(Drawings, OldVersions,
                         testing::Values("ez_ASCII_R12.dxf", "ez_bin_dxf_r12.dxf", "ez_bin_dxf_r13.dxf",
                                         "ez_Minimal_DXF_AC1009.dxf", "as_sample_AC1009_binary.dxf"));

TEST(OldVersionWithoutHandles, GivesNewEntitiesNone) {
    const std::string bytes = "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n";
    const auto database = parsed(bytes);
    addLine(*database);
    EXPECT_EQ(database->version(), L"AC1009");
    EXPECT_EQ(bytesOf(*database),
              "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n1.0\n20\n2.0\n30\n3.0\n11\n4.0\n21\n5.0\n31\n6.0\n"
              "0\nENDSEC\n0\nEOF\n");
}

} // namespace
} // namespace quor::db
