#include "host/gs/shapes/nurbs.h"
#include "tests/host/gs/shapes/shape_testing.h"

namespace quor::gs {
namespace {

std::string controls(const std::vector<ZrGePoint3d>& points, int code = 10) {
    std::string tags;
    for (const ZrGePoint3d& at : points)
        tags += point(code, at.x, at.y, at.z);
    return tags;
}

std::string knots(const std::vector<double>& values) {
    std::string tags;
    for (const double value : values)
        tags += "40\n" + std::to_string(value) + "\n";
    return tags;
}

// One curve of Bézier.
const Points kControls{{0, 0, 0}, {0, 4, 0}, {4, 4, 0}, {4, 0, 0}};
const std::vector<double> kKnots{0, 0, 0, 0, 1, 1, 1, 1};

TEST_F(Shapes, ASplineGoesFromItsFirstToItsLastControlPoint) {
    const Shape shape = shapeOf(entity("SPLINE", "70\n8\n71\n3\n" + knots(kKnots) + controls(kControls)));
    EXPECT_EQ(lineCount(shape), 16U);
    expectNear({shape.lines.front(), shape.lines[16], shape.lines.back()}, {{0, 0, 0}, {2, 3, 0}, {4, 0, 0}});
}

TEST_F(Shapes, ASplineHasTwoEnds) {
    const auto snaps = snapsOf(entity("SPLINE", "71\n3\n" + knots(kKnots) + controls(kControls)));
    EXPECT_EQ(snaps.size(), 2U);
    expectNear(placesOf(snaps, SnapPoint::Kind::End), {{0, 0, 0}, {4, 0, 0}});
}

TEST_F(Shapes, WeightsMakeAQuarterOfACircle) {
    const std::string weights = "41\n1.0\n41\n0.7071067811865476\n41\n1.0\n";
    const Shape shape = shapeOf(entity("SPLINE", "71\n2\n" + knots({0, 0, 0, 1, 1, 1}) + weights +
                                                     controls({{1, 0, 0}, {1, 1, 0}, {0, 1, 0}})));
    EXPECT_EQ(lineCount(shape), 16U);
    for (const ZrGePoint3d& at : shape.lines)
        EXPECT_NEAR(at.distanceTo({0, 0, 0}), 1, 1e-9);
}

TEST_F(Shapes, ASplineWithBadKnotsIsItsControlPolygon) {
    const Shape tooFew = shapeOf(entity("SPLINE", "71\n3\n" + knots({0, 0, 1, 1}) + controls(kControls)));
    EXPECT_EQ(lineCount(tooFew), 3U);
    const Shape falling =
        shapeOf(entity("SPLINE", "71\n3\n" + knots({0, 0, 0, 0, 1, 1, 1, 0.5}) + controls(kControls)));
    EXPECT_EQ(lineCount(falling), 3U);
    const Shape still = shapeOf(entity("SPLINE", "71\n3\n" + knots({1, 1, 1, 1, 1, 1, 1, 1}) + controls(kControls)));
    EXPECT_EQ(lineCount(still), 3U);
    const Shape steep = shapeOf(entity("SPLINE", "71\n200\n" + knots(kKnots) + controls(kControls)));
    EXPECT_EQ(lineCount(steep), 3U);
}

TEST_F(Shapes, ASplineWithoutControlPointsGoesThroughItsFitPoints) {
    const Shape shape = shapeOf(entity("SPLINE", "71\n3\n74\n3\n" + controls({{0, 0, 0}, {1, 1, 0}, {2, 0, 0}}, 11)));
    expectNear(shape.lines, {{0, 0, 0}, {1, 1, 0}, {1, 1, 0}, {2, 0, 0}});
}

TEST_F(Shapes, ASplineWithABrokenNumberOrOnePointIsNotDrawn) {
    EXPECT_TRUE(shapeOf(entity("SPLINE", "71\n3\n40\nx\n" + controls(kControls))).isEmpty());
    EXPECT_TRUE(shapeOf(entity("SPLINE", "71\n3\n" + controls({{1, 1, 1}}))).isEmpty());
    EXPECT_TRUE(shapeOf(entity("SPLINE", "71\n3\n72\n100000\n73\n100000\n")).isEmpty());
}

TEST(Nurbs, CurveBetweenTheirKnots) {
    const Nurbs curve{2, {0, 0, 0, 1, 2, 2, 2}, {}, {{0, 0, 0}, {1, 2, 0}, {3, 2, 0}, {4, 0, 0}}};
    ASSERT_TRUE(curve.isCurve());
    expectNear({curve.at(0), curve.at(1), curve.at(2)}, {{0, 0, 0}, {2, 2, 0}, {4, 0, 0}});
    expectNear({curve.at(0.5)}, {{1, 1.5, 0}});
}

} // namespace
} // namespace quor::gs
