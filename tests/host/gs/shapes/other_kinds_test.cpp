#include "tests/host/gs/shapes/shape_testing.h"

namespace quor::gs {
namespace {

using Kind = SnapPoint::Kind;

// RAY, XLINE.

std::string withExtents(const std::string& text) {
    return "0\nSECTION\n2\nHEADER\n9\n$EXTMIN\n" + point(10, 0, 0, 0) + "9\n$EXTMAX\n" + point(10, 30, 40, 0) +
           "0\nENDSEC\n" + text;
}

TEST_F(Shapes, ARayIsCutNearTheExtentsOfTheDrawing) {
    database = db::drawings::parsed(withExtents(drawingText(entity("RAY", point(10, 1, 1, 0) + point(11, 1, 0, 0)))));
    expectNear(shapeAt().lines, {{1, 1, 0}, {35, 1, 0}});
}

TEST_F(Shapes, AConstructionLineIsCutOnBothSides) {
    database = db::drawings::parsed(withExtents(drawingText(entity("XLINE", point(10, 1, 1, 0) + point(11, 0, 1, 0)))));
    expectNear(shapeAt().lines, {{1, -5, 0}, {1, 45, 0}});
}

TEST_F(Shapes, ARayFarFromTheDrawingIsNotDrawn) {
    database =
        db::drawings::parsed(withExtents(drawingText(entity("RAY", point(10, 1, 1000, 0) + point(11, 1, 0, 0)))));
    EXPECT_TRUE(shapeAt().isEmpty());
}

TEST_F(Shapes, WithoutExtentsARayReachesAThousandUnits) {
    expectNear(shapeOf(entity("RAY", point(10, 1, 1, 0) + point(11, 1, 0, 0))).lines, {{1, 1, 0}, {1001, 1, 0}});
    EXPECT_TRUE(shapeOf(entity("RAY", point(10, 1, 1, 0) + point(11, 0, 0, 0))).isEmpty());
}

// LEADER.

TEST_F(Shapes, ALeaderIsItsLine) {
    const Shape shape = shapeOf(
        entity("LEADER", "71\n1\n72\n0\n76\n3\n" + point(10, 0, 0, 0) + point(10, 1, 1, 0) + point(10, 2, 1, 0)));
    expectNear(shape.lines, {{0, 0, 0}, {1, 1, 0}, {1, 1, 0}, {2, 1, 0}});
}

// MLINE.

std::string multilineVertex(double x, double y) {
    return point(11, x, y, 0) + point(12, 1, 0, 0) + point(13, 0, 1, 0) +
           "74\n2\n41\n0.5\n41\n0.0\n75\n0\n74\n2\n41\n-0.5\n41\n0.0\n75\n0\n";
}

TEST_F(Shapes, AMultilineIsALineForEachElement) {
    const Shape shape =
        shapeOf(entity("MLINE", "2\nSTANDARD\n40\n1.0\n70\n0\n71\n1\n72\n2\n73\n2\n" + point(10, 0, 0, 0) +
                                    multilineVertex(0, 0) + multilineVertex(5, 0)));
    expectNear(shape.lines, {{0, 0.5, 0}, {5, 0.5, 0}, {0, -0.5, 0}, {5, -0.5, 0}});
}

TEST_F(Shapes, AClosedMultilineGoesBack) {
    const Shape shape =
        shapeOf(entity("MLINE", "71\n3\n" + multilineVertex(0, 0) + multilineVertex(5, 0) + multilineVertex(5, 5)));
    EXPECT_EQ(lineCount(shape), 6U);
}

// MESH.

const std::string kTwoSquares = "91\n2\n92\n6\n" + point(10, 0, 0, 0) + point(10, 1, 0, 0) + point(10, 1, 1, 0) +
                                point(10, 0, 1, 0) + point(10, 2, 0, 0) + point(10, 2, 1, 0);

TEST_F(Shapes, AMeshIsItsFacesBeforeTheyAreSmoothed) {
    const Shape shape = shapeOf(entity("MESH", kTwoSquares + "93\n10\n90\n4\n90\n0\n90\n1\n90\n2\n90\n3\n"
                                                             "90\n4\n90\n1\n90\n4\n90\n5\n90\n2\n"
                                                             "94\n1\n90\n0\n90\n5\n"));
    EXPECT_EQ(triangleCount(shape), 4U);
    EXPECT_EQ(lineCount(shape), 7U);
}

TEST_F(Shapes, FacesOfAMeshThatMakeNoSenseAreLeftOut) {
    const auto faces = [&](const std::string& tags) { return shapeOf(entity("MESH", kTwoSquares + "93\n9\n" + tags)); };
    EXPECT_TRUE(faces("90\n3\n90\n0\n90\n1\n90\n6\n").isEmpty());
    EXPECT_TRUE(faces("90\n3\n90\n0\n90\n1\n90\n-1\n").isEmpty());
    EXPECT_TRUE(faces("90\n2000000000\n90\n0\n90\n1\n").isEmpty());
    EXPECT_TRUE(faces("90\n-3\n90\n0\n90\n1\n").isEmpty());
    EXPECT_TRUE(faces("90\n2\n90\n0\n90\n1\n").isEmpty());
    EXPECT_EQ(triangleCount(faces("90\n3\n90\n0\n90\n1\n90\n9\n90\n3\n90\n0\n90\n1\n90\n2\n")), 1U);
}

// VIEWPORT.

TEST_F(Shapes, AViewportIsItsFrame) {
    const Shape shape = shapeOf(entity("VIEWPORT", point(10, 10, 10, 0) + "40\n4.0\n41\n2.0\n68\n2\n69\n2\n"));
    EXPECT_EQ(lineCount(shape), 4U);
    expectNear({shape.lines[0], shape.lines[3]}, {{8, 9, 0}, {12, 11, 0}});
}

TEST_F(Shapes, TheSheetItselfIsNoFrame) {
    EXPECT_TRUE(shapeOf(entity("VIEWPORT", point(10, 10, 10, 0) + "40\n4.0\n41\n2.0\n69\n1\n")).isEmpty());
}

// IMAGE.

TEST_F(Shapes, AnImageIsItsFrame) {
    const Shape shape = shapeOf(entity("IMAGE", "90\n0\n" + point(10, 1, 1, 0) + point(11, 0.5, 0, 0) +
                                                    point(12, 0, 0.5, 0) + "13\n8.0\n23\n4.0\n340\n0\n"));
    expectNear(shape.lines, {{1, 1, 0}, {5, 1, 0}, {5, 1, 0}, {5, 3, 0}, {5, 3, 0}, {1, 3, 0}, {1, 3, 0}, {1, 1, 0}});
}

// ACAD_TABLE.

TEST_F(Shapes, ATableShowsItsBlockFromItsCornerAlongItsRows) {
    const Shape shape = shapeOf(entity("ACAD_TABLE", "2\n*T1\n" + point(10, 5, 5, 0) + point(11, 0, 2, 0)),
                                block("*T1", line(0, 0, 0, 3, -1, 0)));
    expectNear(shape.lines, {{5, 5, 0}, {6, 8, 0}});
}

} // namespace
} // namespace quor::gs
