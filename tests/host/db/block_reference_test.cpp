#include "host/db/block_reference.h"

#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

// luminaires.dxf: the block LAMP has its base point at (10,20,0), a light at (10,20,5), another at (12,20,5).
struct BlockReferences : testing::Test {
    std::optional<BlockReference> reference(std::uint64_t handle) {
        return readBlockReference(*database, *database->objects().find(handle));
    }
    // Where the point of the block is shown.
    ZrGePoint3d shown(std::uint64_t handle, const ZrGePoint3d& point) {
        return reference(handle).value().placement * point;
    }

    std::unique_ptr<Database> database = opened("own/luminaires.dxf");
    const ZrGePoint3d kBase{10, 20, 0};
    const ZrGePoint3d kSpot{12, 20, 5};
};

void expectNear(const ZrGePoint3d& actual, const ZrGePoint3d& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-12);
    EXPECT_NEAR(actual.y, expected.y, 1e-12);
    EXPECT_NEAR(actual.z, expected.z, 1e-12);
}

TEST_F(BlockReferences, NameTheirBlock) {
    EXPECT_EQ(reference(0x60)->name, L"LAMP");
    EXPECT_EQ(reference(0x60)->block, database->structure().findBlock(L"lamp"));
}

TEST_F(BlockReferences, AreNoLights) { EXPECT_FALSE(reference(0x69)); }

TEST_F(BlockReferences, PutTheBasePointWhereTheyStand) { EXPECT_EQ(shown(0x60, kBase), ZrGePoint3d(100, 0, 0)); }

TEST_F(BlockReferences, TellWhereTheyStand) {
    EXPECT_EQ(reference(0x61)->position, ZrGePoint3d(200, 50, 10));
    EXPECT_EQ(reference(0x64)->position, ZrGePoint3d(-300, 0, 0));
}

TEST_F(BlockReferences, TurnByAQuarterWithoutARoundingError) {
    EXPECT_EQ(shown(0x61, kSpot), ZrGePoint3d(200, 52, 15));
    EXPECT_EQ(reference(0x61)->placement * ZrGeVector3d::kXAxis, ZrGeVector3d::kYAxis);
}

TEST_F(BlockReferences, TurnBackwardsToo) {
    std::string bytes = fileBytes("own/luminaires.dxf");
    const std::string turn = " 50\n90.0\n";
    bytes.replace(bytes.find(turn), turn.size(), " 50\n-450.0\n");
    database = parsed(bytes);
    EXPECT_EQ(reference(0x61)->placement * ZrGeVector3d::kXAxis, -ZrGeVector3d::kYAxis);
}

TEST_F(BlockReferences, MirrorAndTurn) { expectNear(shown(0x62, kSpot), {-2 * std::sqrt(3.0), 98, 10}); }

TEST_F(BlockReferences, ScaleEachAxisByItself) { EXPECT_EQ(shown(0x63, kSpot), ZrGePoint3d(4, 200, 2.5)); }

TEST_F(BlockReferences, StandInThePlaneOfTheirNormal) {
    EXPECT_EQ(shown(0x64, kSpot), ZrGePoint3d(-302, 0, -5));
    expectNear(shown(0x6C, kBase), {2, 10, 36});
    expectNear(shown(0x6C, {10, 20, 5}), {5, 10, 40});
}

TEST_F(BlockReferences, AreArraysWithMoreThanOneColumn) {
    EXPECT_TRUE(reference(0x65)->isArray);
    EXPECT_FALSE(reference(0x60)->isArray);
}

TEST_F(BlockReferences, TellHowAnArrayGoesOn) {
    EXPECT_EQ(reference(0x65)->columns, 3);
    EXPECT_EQ(reference(0x65)->rows, 1);
    EXPECT_EQ(reference(0x60)->columns, 1);
    EXPECT_EQ(reference(0x65)->columnStep, ZrGeVector3d(50, 0, 0));
    EXPECT_EQ(reference(0x60)->columnStep, ZrGeVector3d());
}

TEST_F(BlockReferences, AreFlatWithAScaleOfZero) {
    EXPECT_FALSE(reference(0x62)->isFlat);
    std::string bytes = fileBytes("own/luminaires.dxf");
    const std::string factor = " 43\n0.5\n";
    bytes.replace(bytes.find(factor), factor.size(), " 43\n0.0\n");
    database = parsed(bytes);
    EXPECT_TRUE(reference(0x63)->isFlat);
}

TEST_F(BlockReferences, OfADrawingOfItsOwnAreExternal) {
    EXPECT_TRUE(isExternal(database->file(), *reference(0x66)->block));
    EXPECT_FALSE(isExternal(database->file(), *reference(0x60)->block));
}

} // namespace
} // namespace quor::db
