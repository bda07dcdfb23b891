#include "tests/host/gs/shapes/shape_testing.h"

namespace quor::gs {
namespace {

using Kind = SnapPoint::Kind;

std::string vertex(double x, double y, double z, const std::string& tags = {}) {
    return entity("VERTEX", point(10, x, y, z) + tags);
}

std::string polyline(const std::string& tags, const std::string& vertices) {
    return entity("POLYLINE", "66\n1\n" + tags) + vertices + entity("SEQEND", "");
}

TEST_F(Shapes, ALightPolylineIsLinesFromVertexToVertex) {
    const std::string tags = "90\n3\n70\n0\n38\n5.0\n10\n0.0\n20\n0.0\n10\n1.0\n20\n0.0\n10\n1.0\n20\n2.0\n";
    expectNear(shapeOf(entity("LWPOLYLINE", tags)).lines, {{0, 0, 5}, {1, 0, 5}, {1, 0, 5}, {1, 2, 5}});
}

TEST_F(Shapes, AClosedOneGoesBackToItsStart) {
    const std::string tags = "90\n3\n70\n1\n10\n0.0\n20\n0.0\n10\n1.0\n20\n0.0\n10\n1.0\n20\n2.0\n";
    const Shape shape = shapeOf(entity("LWPOLYLINE", tags));
    EXPECT_EQ(lineCount(shape), 3U);
    expectNear({shape.lines.back()}, {{0, 0, 0}});
}

TEST_F(Shapes, ABulgeIsAnArcToTheRightOfItsChord) {
    const std::string tags = "90\n2\n70\n0\n10\n0.0\n20\n0.0\n42\n1.0\n10\n2.0\n20\n0.0\n";
    const Shape shape = shapeOf(entity("LWPOLYLINE", tags));
    EXPECT_EQ(lineCount(shape), 32U);
    expectNear({shape.lines.front(), shape.lines[32], shape.lines.back()}, {{0, 0, 0}, {1, -1, 0}, {2, 0, 0}});
}

TEST_F(Shapes, ANegativeBulgeIsAnArcToTheLeft) {
    const std::string tags = "70\n0\n10\n0.0\n20\n0.0\n42\n-0.4142135623730951\n10\n2.0\n20\n0.0\n";
    const auto snaps = snapsOf(entity("LWPOLYLINE", tags));
    expectNear(placesOf(snaps, Kind::Center), {{1, -1, 0}});
    expectNear(placesOf(snaps, Kind::Middle), {{1, std::sqrt(2.0) - 1, 0}});
    expectNear(placesOf(snaps, Kind::End), {{0, 0, 0}, {2, 0, 0}});
}

TEST_F(Shapes, AClosedTwoVertexPolylineOfArcsIsACircle) {
    const std::string tags = "70\n1\n10\n-1.0\n20\n0.0\n42\n1.0\n10\n1.0\n20\n0.0\n42\n1.0\n";
    const Shape shape = shapeOf(entity("LWPOLYLINE", tags));
    EXPECT_EQ(lineCount(shape), 64U);
    for (const ZrGePoint3d& at : shape.lines)
        EXPECT_NEAR(at.distanceTo({0, 0, 0}), 1, 1e-9);
}

TEST_F(Shapes, ALightPolylineStandsInThePlaneOfItsNormal) {
    const std::string tags = "38\n5.0\n10\n0.0\n20\n0.0\n10\n1.0\n20\n2.0\n" + point(210, 0, 0, -1);
    expectNear(shapeOf(entity("LWPOLYLINE", tags)).lines, {{0, 0, -5}, {-1, 2, -5}});
}

TEST_F(Shapes, ALightPolylineWithoutAPointOrWithABrokenOneIsNotDrawn) {
    EXPECT_TRUE(shapeOf(entity("LWPOLYLINE", "90\n1000000\n70\n1\n")).isEmpty());
    EXPECT_TRUE(shapeOf(entity("LWPOLYLINE", "70\n1\n10\n0\n20\n0\n")).isEmpty());
    EXPECT_TRUE(shapeOf(entity("LWPOLYLINE", "10\n0.0\n20\n0.0\n10\nx\n20\n2.0\n")).isEmpty());
}

TEST_F(Shapes, APolylineInAPlaneHasItsElevationAndBulges) {
    const Shape shape =
        shapeOf(polyline("70\n1\n" + point(10, 0, 0, 7), vertex(0, 0, 0, "42\n1.0\n") + vertex(2, 0, 0)));
    EXPECT_EQ(lineCount(shape), 33U);
    expectNear({shape.lines[32], shape.lines[64], shape.lines[65]}, {{1, -1, 7}, {2, 0, 7}, {0, 0, 7}});
}

TEST_F(Shapes, TheFrameOfASplineIsNotDrawn) {
    const Shape shape = shapeOf(
        polyline("70\n4\n", vertex(0, 0, 0, "70\n8\n") + vertex(9, 9, 0, "70\n16\n") + vertex(1, 0, 0, "70\n8\n")));
    expectNear(shape.lines, {{0, 0, 0}, {1, 0, 0}});
}

TEST_F(Shapes, APolylineInSpaceGoesThroughItsVertices) {
    const std::string text =
        polyline("70\n9\n", vertex(0, 0, 0, "70\n32\n") + vertex(1, 0, 2, "70\n32\n") + vertex(1, 3, 4, "70\n32\n"));
    expectNear(shapeOf(text).lines, {{0, 0, 0}, {1, 0, 2}, {1, 0, 2}, {1, 3, 4}, {1, 3, 4}, {0, 0, 0}});
    EXPECT_EQ(snapsOf(text).size(), 9U);
}

std::string gridVertices() {
    return vertex(0, 0, 0, "70\n64\n") + vertex(1, 0, 0, "70\n64\n") + vertex(2, 0, 0, "70\n64\n") +
           vertex(0, 1, 0, "70\n64\n") + vertex(1, 1, 0, "70\n64\n") + vertex(2, 1, 0, "70\n64\n");
}

TEST_F(Shapes, AMeshIsLinesAlongRowsAndColumnsWithFacesBetween) {
    const Shape shape = shapeOf(polyline("70\n16\n71\n2\n72\n3\n", gridVertices()));
    EXPECT_EQ(lineCount(shape), 7U);
    EXPECT_EQ(triangleCount(shape), 4U);
    expectNear({shape.triangles[0], shape.triangles[1], shape.triangles[2]}, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});
}

TEST_F(Shapes, AMeshCanBeClosedBothWays) {
    const Shape shape = shapeOf(polyline("70\n49\n71\n2\n72\n3\n", gridVertices()));
    EXPECT_EQ(lineCount(shape), 12U);
    EXPECT_EQ(triangleCount(shape), 12U);
}

TEST_F(Shapes, ASmoothedMeshIsDrawnWithoutItsFrame) {
    const std::string frame = vertex(9, 9, 9, "70\n80\n") + vertex(8, 8, 8, "70\n80\n");
    const Shape shape = shapeOf(polyline("70\n20\n71\n1\n72\n2\n73\n2\n74\n3\n75\n6\n", frame + gridVertices()));
    EXPECT_EQ(lineCount(shape), 7U);
}

TEST_F(Shapes, AMeshWithFewerVerticesThanItSaysIsNotDrawn) {
    EXPECT_TRUE(shapeOf(polyline("70\n16\n71\n32767\n72\n32767\n", gridVertices())).isEmpty());
    EXPECT_TRUE(shapeOf(polyline("70\n16\n71\n-2\n72\n-3\n", gridVertices())).isEmpty());
}

TEST_F(Shapes, AMeshOfFacesHasTheirVisibleEdges) {
    const std::string corners = vertex(0, 0, 0, "70\n192\n") + vertex(1, 0, 0, "70\n192\n") +
                                vertex(1, 1, 0, "70\n192\n") + vertex(0, 1, 0, "70\n192\n");
    const auto face = [](const std::string& tags) { return vertex(0, 0, 0, "70\n128\n" + tags); };
    const Shape shape = shapeOf(polyline("70\n64\n71\n4\n72\n2\n", corners + face("71\n1\n72\n2\n73\n-3\n") +
                                                                       face("71\n1\n72\n3\n73\n4\n74\n0\n")));
    EXPECT_EQ(triangleCount(shape), 2U);
    expectNear(
        shape.lines,
        {{0, 0, 0}, {1, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 0, 0}, {1, 1, 0}, {1, 1, 0}, {0, 1, 0}, {0, 1, 0}, {0, 0, 0}});
}

TEST_F(Shapes, AFaceOfCornersThatAreNotThereIsLeftOut) {
    const std::string corners = vertex(0, 0, 0, "70\n192\n") + vertex(1, 0, 0, "70\n192\n");
    EXPECT_TRUE(shapeOf(polyline("70\n64\n", corners + vertex(0, 0, 0, "70\n128\n71\n1\n72\n2\n73\n3\n"))).isEmpty());
}

TEST_F(Shapes, APolylineWithoutVerticesIsNotDrawn) {
    EXPECT_TRUE(shapeOf(polyline("70\n1\n", "")).isEmpty());
    EXPECT_TRUE(shapeOf(entity("POLYLINE", "66\n1\n70\n64\n")).isEmpty());
}

} // namespace
} // namespace quor::gs
