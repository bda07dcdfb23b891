#include "sdk/db/face.h"
#include "tests/host/gs/shapes/shape_testing.h"

namespace quor::gs {
namespace {

using Kind = SnapPoint::Kind;

const std::string kSquare = point(10, 0, 0, 0) + point(11, 2, 0, 0) + point(12, 2, 2, 0) + point(13, 0, 2, 0);
const std::string kTriangle = point(10, 0, 0, 0) + point(11, 2, 0, 0) + point(12, 2, 2, 0) + point(13, 2, 2, 0);

TEST_F(Shapes, AFaceIsTwoTrianglesAndFourEdges) {
    const Shape shape = shapeOf(entity("3DFACE", kSquare));
    EXPECT_EQ(lineCount(shape), 4U);
    expectNear(shape.triangles, {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 0, 0}, {2, 2, 0}, {0, 2, 0}});
}

TEST_F(Shapes, AFaceOfThreeCornersIsOneTriangle) {
    const Shape shape = shapeOf(entity("3DFACE", kTriangle));
    EXPECT_EQ(lineCount(shape), 3U);
    EXPECT_EQ(triangleCount(shape), 1U);
}

TEST_F(Shapes, InvisibleEdgesOfAFaceAreNotDrawn) {
    const Shape shape = shapeOf(entity("3DFACE", kSquare + "70\n5\n"));
    expectNear(shape.lines, {{2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {0, 0, 0}});
    EXPECT_EQ(triangleCount(shape), 2U);
}

TEST_F(Shapes, AFaceIsAsItStandsInMemoryOnceItWasOpened) {
    open(entity("3DFACE", kSquare));
    {
        const ZrDbObjectPointer<ZrDbFace> face(ZrDbObjectId(&entityAt(0)), ZrDb::kForWrite);
        face->setVertexAt(0, {0, 0, 9});
        face->setEdgeVisibleAt(1, false);
    }
    const Shape shape = shapeAt();
    EXPECT_EQ(lineCount(shape), 3U);
    expectNear({shape.lines[0], shape.triangles[0]}, {{0, 0, 9}, {0, 0, 9}});
}

TEST_F(Shapes, AFaceHasCornersAndMiddlesOfEdges) {
    const auto snaps = snapsOf(entity("3DFACE", kTriangle));
    expectNear(placesOf(snaps, Kind::Middle), {{1, 0, 0}, {2, 1, 0}, {1, 1, 0}});
    EXPECT_EQ(placesOf(snaps, Kind::End).size(), 6U);
}

TEST_F(Shapes, ASolidHasItsLastCornersCrossed) {
    const std::string corners = point(10, 0, 0, 0) + point(11, 2, 0, 0) + point(12, 0, 2, 0) + point(13, 2, 2, 0);
    const Shape shape = shapeOf(entity("SOLID", corners));
    EXPECT_EQ(lineCount(shape), 4U);
    expectNear(shape.triangles, {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 0, 0}, {2, 2, 0}, {0, 2, 0}});
}

TEST_F(Shapes, ASolidOfThreeCornersIsOneTriangle) {
    const std::string corners = point(10, 0, 0, 0) + point(11, 2, 0, 0) + point(12, 0, 2, 0) + point(13, 0, 2, 0);
    const Shape shape = shapeOf(entity("TRACE", corners));
    EXPECT_EQ(lineCount(shape), 3U);
    EXPECT_EQ(triangleCount(shape), 1U);
}

TEST_F(Shapes, ASolidStandsInThePlaneOfItsNormal) {
    const std::string corners = point(10, 0, 0, 1) + point(11, 2, 0, 1) + point(12, 0, 2, 1);
    const Shape shape = shapeOf(entity("SOLID", corners + point(210, 0, 0, -1)));
    expectNear(shape.triangles, {{0, 0, -1}, {-2, 0, -1}, {0, 2, -1}});
}

TEST_F(Shapes, AFaceOfTooFewCornersIsNotDrawn) {
    EXPECT_TRUE(shapeOf(entity("3DFACE", point(10, 0, 0, 0) + point(11, 2, 0, 0))).isEmpty());
    EXPECT_TRUE(shapeOf(entity("SOLID", point(10, 0, 0, 0) + point(11, 2, 0, 0))).isEmpty());
}

} // namespace
} // namespace quor::gs
