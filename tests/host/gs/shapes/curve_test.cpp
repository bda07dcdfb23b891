#include "tests/host/gs/shapes/shape_testing.h"

namespace quor::gs {
namespace {

using Kind = SnapPoint::Kind;

// Every point of the lines.
void expectAllAt(const Shape& shape, const ZrGePoint3d& center, double radius) {
    ASSERT_FALSE(shape.lines.empty());
    for (const ZrGePoint3d& at : shape.lines)
        EXPECT_NEAR(at.distanceTo(center), radius, 1e-6);
}

TEST_F(Shapes, ACircleIs64Lines) {
    const Shape shape = shapeOf(entity("CIRCLE", point(10, 1, 2, 3) + "40\n5.0\n"));
    EXPECT_EQ(lineCount(shape), 64U);
    expectAllAt(shape, {1, 2, 3}, 5);
    expectNear({shape.lines.front(), shape.lines.back()}, {{6, 2, 3}, {6, 2, 3}});
    EXPECT_NEAR(shape.lines[32].y, 2 + 5 * std::sin(16 * 2 * 3.14159265358979 / 64), 1e-6);
}

TEST_F(Shapes, ACircleHasACenterOnly) {
    const auto snaps = snapsOf(entity("CIRCLE", point(10, 1, 2, 3) + "40\n5.0\n"));
    ASSERT_EQ(snaps.size(), 1U);
    EXPECT_EQ(snaps[0].kind, Kind::Center);
    expectNear({snaps[0].at}, {{1, 2, 3}});
}

TEST_F(Shapes, ACircleStandsInThePlaneOfItsNormal) {
    const Shape shape = shapeOf(entity("CIRCLE", point(10, 1, 2, 3) + "40\n5.0\n" + point(210, 1, 0, 0)));
    expectAllAt(shape, {3, 1, 2}, 5);
    expectNear({shape.lines[0], shape.lines[32]}, {{3, 6, 2}, {3, 1, 7}});
}

TEST_F(Shapes, AnArcGoesCounterclockwise) {
    const Shape shape = shapeOf(entity("ARC", point(10, 0, 0, 0) + "40\n2.0\n50\n270.0\n51\n90.0\n"));
    EXPECT_EQ(lineCount(shape), 32U);
    expectNear({shape.lines.front(), shape.lines[32], shape.lines.back()}, {{0, -2, 0}, {2, 0, 0}, {0, 2, 0}});
}

TEST_F(Shapes, AnArcHasEndsMiddleAndCenter) {
    const auto snaps = snapsOf(entity("ARC", point(10, 0, 0, 0) + "40\n2.0\n50\n270.0\n51\n90.0\n"));
    EXPECT_EQ(snaps.size(), 4U);
    expectNear(placesOf(snaps, Kind::End), {{0, -2, 0}, {0, 2, 0}});
    expectNear(placesOf(snaps, Kind::Middle), {{2, 0, 0}});
    expectNear(placesOf(snaps, Kind::Center), {{0, 0, 0}});
}

TEST_F(Shapes, AnEllipseHasItsAxes) {
    const std::string axes = point(10, 1, 1, 0) + point(11, 0, 4, 0) + "40\n0.5\n";
    const Shape whole = shapeOf(entity("ELLIPSE", axes + "41\n0.0\n42\n6.283185307179586\n"));
    EXPECT_EQ(lineCount(whole), 64U);
    expectNear({whole.lines[0], whole.lines[32], whole.lines[64]}, {{1, 5, 0}, {-1, 1, 0}, {1, -3, 0}});
    const Shape half = shapeOf(entity("ELLIPSE", axes + "41\n0.0\n42\n3.141592653589793\n"));
    EXPECT_EQ(lineCount(half), 32U);
    expectNear({half.lines.front(), half.lines.back()}, {{1, 5, 0}, {1, -3, 0}});
}

TEST_F(Shapes, AnEllipseHasACenterAndEndsWhenItIsOpen) {
    const std::string axes = point(10, 1, 1, 0) + point(11, 0, 4, 0) + "40\n0.5\n41\n0.0\n";
    EXPECT_EQ(snapsOf(entity("ELLIPSE", axes + "42\n6.283185307179586\n")).size(), 1U);
    const auto snaps = snapsOf(entity("ELLIPSE", axes + "42\n3.141592653589793\n"));
    expectNear(placesOf(snaps, Kind::Center), {{1, 1, 0}});
    expectNear(placesOf(snaps, Kind::End), {{1, 5, 0}, {1, -3, 0}});
}

TEST_F(Shapes, ACurveWithANumberThatIsNoneIsNotDrawn) {
    EXPECT_TRUE(shapeOf(entity("CIRCLE", point(10, 1, 2, 3) + "40\ninf\n")).isEmpty());
    EXPECT_TRUE(shapeOf(entity("ARC", point(10, 1, 2, 3) + "40\n1\n50\nx\n")).isEmpty());
    EXPECT_TRUE(shapeOf(entity("ELLIPSE", point(10, 1, 2, 3) + point(11, 1, 0, 0) + "40\nx\n")).isEmpty());
}

TEST_F(Shapes, AnArcFromAnywhereEnds) {
    EXPECT_LE(lineCount(shapeOf(entity("ARC", point(10, 0, 0, 0) + "40\n2.0\n50\n-1e200\n51\n1e300\n"))), 64U);
}

} // namespace
} // namespace quor::gs
