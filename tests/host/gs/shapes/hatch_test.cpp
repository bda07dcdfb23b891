#include "host/gs/shapes/fill.h"
#include "tests/host/gs/shapes/shape_testing.h"

namespace quor::gs {
namespace {

std::string polylinePath(const std::vector<ZrGePoint3d>& points) {
    std::string tags = "92\n2\n72\n0\n73\n1\n93\n" + std::to_string(points.size()) + "\n";
    for (const ZrGePoint3d& at : points)
        tags += "10\n" + std::to_string(at.x) + "\n20\n" + std::to_string(at.y) + "\n";
    return tags + "97\n0\n";
}

std::string hatch(bool isSolid, const std::string& paths, double elevation = 0, const std::string& plane = {}) {
    return entity("HATCH", point(10, 0, 0, elevation) + plane + "2\nSOLID\n70\n" + (isSolid ? "1" : "0") +
                               "\n71\n0\n91\n1\n" + paths + "75\n1\n76\n1\n98\n1\n10\n99.0\n20\n99.0\n");
}

double areaOf(const Points& triangles) {
    double area = 0;
    for (std::size_t i = 2; i < triangles.size(); i += 3)
        area += (triangles[i - 1] - triangles[i - 2]).crossProduct(triangles[i] - triangles[i - 2]).length() / 2;
    return area;
}

const Points kSquare{{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}};
const Points kHole{{1, 1, 0}, {1, 2, 0}, {2, 2, 0}, {2, 1, 0}};

TEST_F(Shapes, AHatchIsItsBoundary) {
    const Shape shape = shapeOf(hatch(false, polylinePath(kSquare), 3));
    EXPECT_EQ(lineCount(shape), 4U);
    EXPECT_TRUE(shape.triangles.empty());
    expectNear({shape.lines[0], shape.lines[1], shape.lines[7]}, {{0, 0, 3}, {4, 0, 3}, {0, 0, 3}});
}

TEST_F(Shapes, ASolidHatchIsFilled) {
    const Shape shape = shapeOf(hatch(true, polylinePath(kSquare), 3));
    EXPECT_NEAR(areaOf(shape.triangles), 16, 1e-9);
    for (const ZrGePoint3d& at : shape.triangles)
        EXPECT_EQ(at.z, 3);
}

TEST_F(Shapes, ASolidHatchHasHoles) {
    const Shape shape = shapeOf(hatch(true, polylinePath(kSquare) + polylinePath(kHole)));
    EXPECT_EQ(lineCount(shape), 8U);
    EXPECT_NEAR(areaOf(shape.triangles), 15, 1e-9);
}

TEST_F(Shapes, AHatchStandsInThePlaneOfItsNormal) {
    const Shape shape = shapeOf(hatch(true, polylinePath(kSquare), 3, point(210, 0, 0, -1)));
    expectNear({shape.lines[0], shape.lines[1]}, {{0, 0, -3}, {-4, 0, -3}});
}

TEST_F(Shapes, ABoundaryOfLinesAndArcsIsDrawnEdgeByEdge) {
    const std::string line = "72\n1\n10\n0.0\n20\n0.0\n11\n2.0\n21\n0.0\n";
    const std::string arc = "72\n2\n10\n1.0\n20\n0.0\n40\n1.0\n50\n0.0\n51\n180.0\n73\n1\n";
    const Shape shape = shapeOf(hatch(true, "92\n1\n93\n2\n" + line + arc + "97\n0\n"));
    EXPECT_EQ(lineCount(shape), 33U);
    expectNear({shape.lines[2], shape.lines[34], shape.lines.back()}, {{2, 0, 0}, {1, 1, 0}, {0, 0, 0}});
    EXPECT_NEAR(areaOf(shape.triangles), 3.14159 / 2, 0.01);
}

TEST_F(Shapes, AClockwiseArcOfABoundaryHasItsAnglesMirrored) {
    const std::string arc = "72\n2\n10\n0.0\n20\n0.0\n40\n1.0\n50\n0.0\n51\n90.0\n73\n0\n";
    const Shape shape = shapeOf(hatch(false, "92\n1\n93\n1\n" + arc));
    expectNear({shape.lines.front(), shape.lines.back()}, {{1, 0, 0}, {0, -1, 0}});
}

TEST_F(Shapes, AnEllipseOfABoundaryHasItsMajorAxisFromTheCenter) {
    const std::string ellipse = "72\n3\n10\n1.0\n20\n1.0\n11\n0.0\n21\n2.0\n40\n0.5\n50\n0.0\n51\n360.0\n73\n1\n";
    const Shape shape = shapeOf(hatch(false, "92\n1\n93\n1\n" + ellipse));
    EXPECT_EQ(lineCount(shape), 64U);
    expectNear({shape.lines.front(), shape.lines[32]}, {{1, 3, 0}, {0, 1, 0}});
}

TEST_F(Shapes, ASplineOfABoundaryIsACurve) {
    const std::string spline = "72\n4\n94\n1\n73\n0\n74\n0\n95\n5\n96\n3\n40\n0\n40\n0\n40\n1\n40\n2\n40\n2\n"
                               "10\n0\n20\n0\n10\n1\n20\n1\n10\n2\n20\n0\n";
    const Shape shape = shapeOf(hatch(false, "92\n1\n93\n1\n" + spline));
    expectNear(shape.lines, {{0, 0, 0}, {1, 1, 0}, {1, 1, 0}, {2, 0, 0}});
}

TEST_F(Shapes, AHatchThatClaimsTooMuchIsWhatIsThere) {
    EXPECT_TRUE(shapeOf(hatch(true, "92\n2\n93\n2000000000\n")).isEmpty());
    EXPECT_TRUE(shapeOf(hatch(true, "92\n1\n93\n2000000000\n72\n99\n72\n2\n72\n1\n10\n1\n")).isEmpty());
    EXPECT_TRUE(shapeOf(hatch(true, "92\n2\n10\nx\n20\n0\n10\n1\n20\n1\n")).isEmpty());
}

TEST_F(Shapes, AHatchHasNoSnapPoints) { EXPECT_TRUE(snapsOf(hatch(true, polylinePath(kSquare))).empty()); }

TEST(Fill, TakesPiecesInAnyOrder) {
    const std::vector<Piece> pieces{{{0, 0, 0}, {4, 0, 0}}, {{0, 4, 0}, {4, 4, 0}, {4, 0, 0}}, {{0, 4, 0}, {0, 0, 0}}};
    EXPECT_NEAR(areaOf(filled(pieces).value()), 16, 1e-9);
}

TEST(Fill, IsNotDoneOfPointsBeyondAllDrawings) {
    const std::vector<Piece> pieces{{{0, 0, 0}, {1e200, 1e-200, 0}, {std::nan(""), 5, 0}, {0, 0, 0}}};
    EXPECT_FALSE(filled(pieces));
}

TEST(Fill, IsNotDoneOfTooManyPoints) {
    Piece piece;
    for (int i = 0; i < 3000; ++i)
        piece.push_back({std::cos(i), std::sin(i), 0});
    EXPECT_FALSE(filled(std::vector<Piece>{piece}));
}

} // namespace
} // namespace quor::gs
