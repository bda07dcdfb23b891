#include "tests/host/gs/shapes/shape_testing.h"

namespace quor::gs {
namespace {

using Kind = SnapPoint::Kind;

TEST_F(Shapes, ALineIsALine) {
    const Shape shape = shapeOf(line(1, 2, 3, 4, 5, 6));
    expectNear(shape.lines, {{1, 2, 3}, {4, 5, 6}});
    EXPECT_TRUE(shape.triangles.empty());
    ASSERT_EQ(shape.parts.size(), 1U);
    EXPECT_EQ(shape.parts[0].lineCount, 1U);
    EXPECT_EQ(shape.parts[0].color.from, PartColor::From::Layer);
    EXPECT_EQ(shape.parts[0].layer, layer(L"0"));
}

TEST_F(Shapes, ALineIsAsItStandsInMemoryOnceItWasOpened) {
    open(line(1, 2, 3, 4, 5, 6));
    {
        const ZrDbObjectPointer<ZrDbLine> opened(ZrDbObjectId(&entityAt(0)), ZrDb::kForWrite);
        opened->setEndPoint({7, 8, 9});
        opened->setColor(ZrCmColor::fromIndex(3));
        opened->setLayer(L"A");
    }
    const Shape shape = shapeAt();
    expectNear(shape.lines, {{1, 2, 3}, {7, 8, 9}});
    EXPECT_EQ(shape.parts.at(0).color, (PartColor{PartColor::From::Fixed, 0x00FF00}));
    EXPECT_EQ(shape.parts[0].layer, layer(L"A"));
}

TEST_F(Shapes, ANewLineWithoutARecordIsDrawn) {
    open("");
    db::drawings::addLine(*database);
    expectNear(shapeAt().lines, {{1, 2, 3}, {4, 5, 6}});
}

TEST_F(Shapes, WhatIsErasedOrInvisibleIsNotDrawn) {
    EXPECT_TRUE(shapeOf(line(0, 0, 0, 1, 0, 0, "60\n1\n")).isEmpty());
    open(line(0, 0, 0, 1, 0, 0));
    db::drawings::erase(ZrDbObjectId(&entityAt(0)));
    EXPECT_TRUE(shapeAt().isEmpty());
}

TEST_F(Shapes, WhatWasMadeInvisibleInMemoryIsNotDrawn) {
    open(line(0, 0, 0, 1, 0, 0));
    ZrDbObjectPointer<ZrDbLine>(ZrDbObjectId(&entityAt(0)), ZrDb::kForWrite)->setVisibility(ZrDb::kInvisible);
    EXPECT_TRUE(shapeAt().isEmpty());
}

TEST_F(Shapes, ColorsAreByLayerNumberedOrTrue) {
    const auto color = [&](const std::string& tags) { return shapeOf(line(0, 0, 0, 1, 0, 0, tags)).parts.at(0).color; };
    EXPECT_EQ(color("").from, PartColor::From::Layer);
    EXPECT_EQ(color("62\n256\n").from, PartColor::From::Layer);
    EXPECT_EQ(color("62\n1\n"), (PartColor{PartColor::From::Fixed, 0xFF0000}));
    EXPECT_EQ(color("62\n7\n"), (PartColor{PartColor::From::Fixed, 0xFFFFFF}));
    EXPECT_EQ(color("62\n0\n"), (PartColor{PartColor::From::Fixed, 0xFFFFFF}));
    EXPECT_EQ(color("62\n1\n420\n1193046\n"), (PartColor{PartColor::From::Fixed, 0x123456}));
    EXPECT_EQ(color("420\n1193046\n62\n1\n"), (PartColor{PartColor::From::Fixed, 0x123456}));
    EXPECT_EQ(color("62\n-5\n").from, PartColor::From::Layer);
}

TEST_F(Shapes, StandOnTheirLayerOrOnNone) {
    open(line(0, 0, 0, 1, 0, 0, "", "a") + line(0, 0, 0, 1, 0, 0, "", "MISSING"));
    EXPECT_EQ(shapeAt(0).parts.at(0).layer, layer(L"A"));
    EXPECT_EQ(shapeAt(1).parts.at(0).layer, nullptr);
}

TEST_F(Shapes, AreAppended) {
    open(line(0, 0, 0, 1, 0, 0) + line(0, 0, 0, 2, 0, 0));
    Shape shape;
    appendShape(shape, *database, entityAt(0));
    appendShape(shape, *database, entityAt(1));
    ASSERT_EQ(shape.parts.size(), 2U);
    EXPECT_EQ(shape.parts[1].firstLine, 1U);
    EXPECT_EQ(shape.parts[1].lineCount, 1U);
    expectNear(shape.lines, {{0, 0, 0}, {1, 0, 0}, {0, 0, 0}, {2, 0, 0}});
}

TEST_F(Shapes, ALineWithANumberThatIsNoneIsNotDrawn) {
    EXPECT_TRUE(shapeOf(entity("LINE", "10\nnan\n20\n0\n11\n1\n21\n1\n")).isEmpty());
    EXPECT_TRUE(shapeOf(entity("LINE", "10\n1e999\n20\n0\n11\n1\n21\n1\n")).isEmpty());
    EXPECT_TRUE(shapeOf(entity("LINE", "10\n1e300\n20\n0\n11\n1\n21\n1\n")).isEmpty());
    EXPECT_TRUE(snapsOf(entity("LINE", "10\nx\n20\n0\n11\n1\n21\n1\n")).empty());
}

TEST_F(Shapes, ExtendedDataAreNoPartOfALine) {
    const Shape shape = shapeOf(line(0, 0, 0, 1, 0, 0, "62\n1\n") + "1001\nAPP\n1010\n9.0\n1020\n9.0\n1030\n9.0\n");
    expectNear(shape.lines, {{0, 0, 0}, {1, 0, 0}});
}

TEST_F(Shapes, TagsWithCodesBelowZeroDoNotCount) {
    expectNear(shapeOf(line(0, 0, 0, 1, 0, 0, "-5\n9\n-1\nx\n")).lines, {{0, 0, 0}, {1, 0, 0}});
}

TEST_F(Shapes, APointIsALineWithoutLength) {
    expectNear(shapeOf(entity("POINT", point(10, 1, 2, 3))).lines, {{1, 2, 3}, {1, 2, 3}});
}

TEST_F(Shapes, ALineHasTwoEndsAndAMiddle) {
    const auto snaps = snapsOf(line(0, 0, 0, 4, 2, 6));
    EXPECT_EQ(snaps.size(), 3U);
    expectNear(placesOf(snaps, Kind::End), {{0, 0, 0}, {4, 2, 6}});
    expectNear(placesOf(snaps, Kind::Middle), {{2, 1, 3}});
}

TEST_F(Shapes, OfKindsThatShowNothingAreEmpty) {
    EXPECT_TRUE(shapeOf(entity("LIGHT", point(10, 1, 2, 3))).isEmpty());
    EXPECT_TRUE(shapeOf(entity("SOMETHING", point(10, 1, 2, 3))).isEmpty());
}

} // namespace
} // namespace quor::gs
