#include "tests/host/gs/shapes/shape_testing.h"

namespace quor::gs {
namespace {

const PartColor kByLayer{PartColor::From::Layer, 0xFFFFFF};
const PartColor kRed{PartColor::From::Fixed, 0xFF0000};
const PartColor kGreen{PartColor::From::Fixed, 0x00FF00};

std::string at(double x, double y, double z) { return point(10, x, y, z); }

TEST_F(Shapes, AReferenceShowsItsBlockWhereItStands) {
    const Shape shape = shapeOf(insert("B", at(10, 0, 0) + "41\n2.0\n42\n3.0\n43\n4.0\n50\n90.0\n"),
                                block("B", line(1, 1, 0, 2, 1, 1), point(10, 1, 1, 0)));
    expectNear(shape.lines, {{10, 0, 0}, {10, 2, 4}});
}

TEST_F(Shapes, NestedReferencesAddUp) {
    const std::string blocks =
        block("INNER", line(0, 0, 0, 1, 0, 0)) + block("OUTER", insert("INNER", at(5, 0, 0)) + line(0, 0, 0, 0, 1, 0));
    const Shape shape = shapeOf(insert("OUTER", at(100, 0, 0) + "50\n90.0\n"), blocks);
    expectNear(shape.lines, {{100, 0, 0}, {99, 0, 0}, {100, 5, 0}, {100, 6, 0}});
}

TEST_F(Shapes, AnArrayShowsItsBlockInRowsAndColumns) {
    const Shape shape = shapeOf(insert("B", at(0, 0, 0) + "41\n2.0\n50\n90.0\n44\n10.0\n45\n20.0\n70\n2\n71\n3\n"),
                                block("B", line(0, 0, 0, 1, 0, 0)));
    ASSERT_EQ(lineCount(shape), 6U);
    expectNear({shape.lines[0], shape.lines[1]}, {{0, 0, 0}, {0, 2, 0}});
    expectNear({shape.lines[2], shape.lines[3]}, {{0, 10, 0}, {0, 12, 0}});
    expectNear({shape.lines[10], shape.lines[11]}, {{-40, 10, 0}, {-40, 12, 0}});
}

TEST_F(Shapes, WhatStandsOnLayerZeroInABlockTakesTheLayerOfTheReference) {
    const Shape shape =
        shapeOf(insert("B", at(0, 0, 0), "A"), block("B", line(0, 0, 0, 1, 0, 0) + line(0, 0, 0, 2, 0, 0, "", "B")));
    ASSERT_EQ(shape.parts.size(), 2U);
    EXPECT_EQ(shape.parts[0].layer, layer(L"A"));
    EXPECT_EQ(shape.parts[1].layer, layer(L"B"));
    EXPECT_EQ(shape.parts[0].color, kByLayer);
}

TEST_F(Shapes, LayerZeroGoesThroughNestedBlocks) {
    const std::string blocks = block("INNER", line(0, 0, 0, 1, 0, 0)) + block("OUTER", insert("INNER", at(5, 0, 0)));
    open(insert("OUTER", at(0, 0, 0), "B"), blocks);
    EXPECT_EQ(shapeAt().parts.at(0).layer, layer(L"B"));
}

TEST_F(Shapes, WhatIsColoredByBlockTakesTheColorOfTheReference) {
    const std::string blocks = block("B", line(0, 0, 0, 1, 0, 0, "62\n0\n"));
    EXPECT_EQ(shapeOf(insert("B", "62\n1\n" + at(0, 0, 0)), blocks).parts.at(0).color, kRed);
    EXPECT_EQ(shapeOf(insert("B", "62\n0\n" + at(0, 0, 0)), blocks).parts.at(0).color.rgb, 0xFFFFFFU);
}

TEST_F(Shapes, ByBlockGoesThroughNestedBlocks) {
    const std::string blocks =
        block("INNER", line(0, 0, 0, 1, 0, 0, "62\n0\n")) + block("OUTER", insert("INNER", "62\n0\n" + at(0, 0, 0)));
    EXPECT_EQ(shapeOf(insert("OUTER", "62\n3\n" + at(0, 0, 0)), blocks).parts.at(0).color, kGreen);
}

TEST_F(Shapes, ByBlockOfAReferenceByLayerIsTheColorOfThatLayer) {
    const Shape shape = shapeOf(insert("B", at(0, 0, 0), "A"), block("B", line(0, 0, 0, 1, 0, 0, "62\n0\n", "B")));
    EXPECT_EQ(shape.parts.at(0).color, kByLayer);
    EXPECT_EQ(shape.parts[0].layer, layer(L"B"));
    EXPECT_EQ(shape.parts[0].colorLayer, layer(L"A"));
}

TEST_F(Shapes, PartsOfOneLookAreOne) {
    const Shape shape = shapeOf(insert("B", at(0, 0, 0)), block("B", line(0, 0, 0, 1, 0, 0) + line(0, 0, 0, 2, 0, 0)));
    ASSERT_EQ(shape.parts.size(), 1U);
    EXPECT_EQ(shape.parts[0].lineCount, 2U);
}

TEST_F(Shapes, WhatIsErasedOrInvisibleInABlockIsNotShown) {
    open(insert("B", at(0, 0, 0)), block("B", line(0, 0, 0, 1, 0, 0) + line(0, 0, 0, 2, 0, 0, "60\n1\n")));
    EXPECT_EQ(lineCount(shapeAt()), 1U);
    db::drawings::erase(ZrDbObjectId(database->structure().findBlock(L"B")->entities.front()));
    EXPECT_TRUE(shapeAt().isEmpty());
}

TEST_F(Shapes, AReferenceToAMissingBlockIsNotDrawn) { EXPECT_TRUE(shapeOf(insert("NONE", at(0, 0, 0))).isEmpty()); }

TEST_F(Shapes, AReferenceWithABrokenNumberIsNotDrawn) {
    const std::string blocks = block("B", line(0, 0, 0, 1, 0, 0));
    EXPECT_TRUE(shapeOf(insert("B", at(0, 0, 0) + "41\ninf\n"), blocks).isEmpty());
}

TEST_F(Shapes, ABlockThatShowsItselfIsLeftOutThere) {
    const std::string blocks = block("A", line(0, 0, 0, 1, 0, 0) + insert("B", at(1, 0, 0))) +
                               block("B", line(0, 0, 0, 1, 0, 0) + insert("A", at(1, 0, 0)));
    EXPECT_EQ(lineCount(shapeOf(insert("A", at(0, 0, 0)), blocks)), 2U);
}

// Each block shows the one before ten times.
std::string nestedBlocks(int depth, const std::string& innermost) {
    std::string blocks = block("B0", innermost);
    for (int i = 1; i <= depth; ++i) {
        std::string uses;
        for (int use = 0; use < 10; ++use)
            uses += insert("B" + std::to_string(i - 1), at(use, 0, 0));
        blocks += block("B" + std::to_string(i), uses);
    }
    return blocks;
}

TEST_F(Shapes, NestingEndsAtTheMostPrimitives) {
    const Shape shape =
        shapeOf(insert("B20", at(0, 0, 0)), nestedBlocks(20, entity("CIRCLE", at(0, 0, 0) + "40\n1\n")));
    EXPECT_EQ(lineCount(shape), kMostPrimitives);
}

TEST_F(Shapes, NestingOfNothingEndsToo) {
    EXPECT_TRUE(shapeOf(insert("B20", at(0, 0, 0)), nestedBlocks(20, "")).isEmpty());
    EXPECT_TRUE(snapPoints(*database, entityAt(0)).empty());
}

TEST_F(Shapes, AChainOfBlocksEnds) {
    std::string blocks = block("B0", line(0, 0, 0, 1, 0, 0));
    for (int i = 1; i <= 1000; ++i)
        blocks += block("B" + std::to_string(i), insert("B" + std::to_string(i - 1), at(1, 0, 0)));
    open(insert("B10", at(0, 0, 0)) + insert("B1000", at(0, 0, 0)), blocks);
    EXPECT_EQ(lineCount(shapeAt(0)), 1U);
    EXPECT_TRUE(shapeAt(1).isEmpty());
}

TEST_F(Shapes, AVastArrayEnds) {
    const std::string array = at(0, 0, 0) + "44\n1.0\n45\n1.0\n70\n32767\n71\n32767\n";
    EXPECT_EQ(lineCount(shapeOf(insert("B", array), block("B", line(0, 0, 0, 1, 0, 0)))), 1'000'000U);
    EXPECT_TRUE(shapeOf(insert("B", array), block("B", "")).isEmpty());
}

TEST_F(Shapes, AReferenceHasTheSnapPointsOfWhatItShows) {
    const std::string blocks = block("INNER", line(0, 0, 0, 2, 0, 0)) + block("OUTER", insert("INNER", at(5, 0, 0)));
    const auto snaps = snapsOf(insert("OUTER", at(0, 0, 7)), blocks);
    ASSERT_EQ(snaps.size(), 3U);
    expectNear(placesOf(snaps, SnapPoint::Kind::Middle), {{6, 0, 7}});
}

TEST_F(Shapes, SnapPointsHaveAnEnd) {
    EXPECT_EQ(snapsOf(insert("B20", at(0, 0, 0)), nestedBlocks(20, line(0, 0, 0, 2, 0, 0))).size(), kMostSnapPoints);
}

TEST_F(Shapes, AReaderShowsChangedBlocksOnceItWasTold) {
    open(insert("B", at(0, 0, 0)), block("B", line(0, 0, 0, 1, 0, 0)));
    ShapeReader reader(*database);
    Shape before;
    reader.append(before, entityAt(0));
    {
        const ZrDbObjectId inBlock(database->structure().findBlock(L"B")->entities.front());
        const ZrDbObjectPointer<ZrDbLine> changed(inBlock, ZrDb::kForWrite);
        changed->setEndPoint({9, 0, 0});
    }
    reader.forget();
    Shape after;
    reader.append(after, entityAt(0));
    expectNear(before.lines, {{0, 0, 0}, {1, 0, 0}});
    expectNear(after.lines, {{0, 0, 0}, {9, 0, 0}});
}

TEST_F(Shapes, ADimensionShowsItsBlock) {
    const Shape shape =
        shapeOf(entity("DIMENSION", "2\n*D1\n62\n1\n" + at(5, 5, 0)), block("*D1", line(0, 0, 0, 1, 0, 0, "62\n0\n")));
    expectNear(shape.lines, {{0, 0, 0}, {1, 0, 0}});
    EXPECT_EQ(shape.parts.at(0).color, kRed);
}

TEST_F(Shapes, ADimensionWithoutABlockIsNotDrawn) {
    EXPECT_TRUE(shapeOf(entity("DIMENSION", at(5, 5, 0))).isEmpty());
    EXPECT_TRUE(shapeOf(entity("DIMENSION", "2\n*D9\n" + at(5, 5, 0))).isEmpty());
}

} // namespace
} // namespace quor::gs
