#include "host/ies/polar_curve.h"

#include "tests/host/ies/made_web.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace quor::ies {
namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kNear = 1e-9;

// The point of a curve that is furthest in a direction.
PolarPoint lowest(const PolarCurve& curve) {
    return *std::ranges::max_element(curve.points, {}, [](const PolarPoint& p) { return p.y; });
}
PolarPoint rightmost(const PolarCurve& curve) {
    return *std::ranges::max_element(curve.points, {}, [](const PolarPoint& p) { return p.x; });
}
PolarPoint leftmost(const PolarCurve& curve) {
    return *std::ranges::min_element(curve.points, {}, [](const PolarPoint& p) { return p.x; });
}

TEST(RingValues, AreRoundAndReachTheLargestIntensity) {
    EXPECT_THAT(ringValues(1000), ElementsAre(200, 400, 600, 800, 1000));
    EXPECT_THAT(ringValues(1001), ElementsAre(250, 500, 750, 1000, 1250));
    EXPECT_THAT(ringValues(3.9), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(ringValues(7600), ElementsAre(2000, 4000, 6000, 8000));
}

TEST(RingValues, OfTheSmallestAndLargestIntensitiesAreStillFew) {
    EXPECT_THAT(ringValues(1e-300).size(), testing::AllOf(testing::Ge(3U), testing::Le(5U)));
    EXPECT_THAT(ringValues(1e30).size(), testing::AllOf(testing::Ge(3U), testing::Le(5U)));
}

TEST(RingValues, OfADarkWebAreNone) { EXPECT_THAT(ringValues(0), IsEmpty()); }

TEST(PolarDiagram, OfAnAxialWebIsOneCurveTheSameOnBothSides) {
    const auto web = made(Photometry::C, steps(0, 90, 10), {0}, [](double, double v) { return 100 * cosine(v); });

    const PolarDiagram diagram = polarDiagram(web);

    ASSERT_EQ(diagram.curves.size(), 1U);
    EXPECT_EQ(diagram.curves[0].plane, PolarPlane::C0_180);
    EXPECT_NEAR(rightmost(diagram.curves[0]).x, -leftmost(diagram.curves[0]).x, kNear);
    EXPECT_FALSE(diagram.reachesUp);
}

TEST(PolarDiagram, TakesTheOutermostRingAsItsUnit) {
    const auto web = made(Photometry::C, steps(0, 90, 10), {0}, [](double, double v) { return 900 * cosine(v); });

    const PolarDiagram diagram = polarDiagram(web);

    EXPECT_THAT(diagram.rings, ElementsAre(200, 400, 600, 800, 1000));
    EXPECT_THAT(lowest(diagram.curves[0]).y, DoubleEq(0.9));
    EXPECT_NEAR(lowest(diagram.curves[0]).x, 0, kNear);
}

TEST(PolarDiagram, HasThePlane0AtTheRightAndThePlane180AtTheLeft) {
    const auto web = made(Photometry::C, {0, 90}, {0, 90, 180, 270, 360}, [](double h, double v) {
        return v < 90 ? 0.0 : h == 180 ? 40.0 : h == 90 ? 70.0 : 100.0;
    });

    const PolarDiagram diagram = polarDiagram(web);

    ASSERT_EQ(diagram.curves.size(), 2U);
    EXPECT_NEAR(rightmost(diagram.curves[0]).x, 1.0, kNear);
    EXPECT_NEAR(leftmost(diagram.curves[0]).x, -0.4, kNear);
    EXPECT_EQ(diagram.curves[1].plane, PolarPlane::C90_270);
    EXPECT_NEAR(rightmost(diagram.curves[1]).x, 0.7, kNear);
    EXPECT_NEAR(leftmost(diagram.curves[1]).x, -1.0, kNear);
}

TEST(PolarDiagram, GoesUpWhereTheLuminaireShinesUp) {
    const auto web = made(Photometry::C, steps(0, 180, 10), {0}, [](double, double) { return 100; });

    const PolarDiagram diagram = polarDiagram(web);

    EXPECT_TRUE(diagram.reachesUp);
    EXPECT_NEAR(diagram.curves[0].points.front().y, -1, kNear);
    EXPECT_NEAR(diagram.curves[0].points.back().y, -1, kNear);
}

TEST(PolarDiagram, KeepsTheGivenAnglesHoweverNarrowTheBeamIs) {
    const auto web = made(Photometry::C, {0, 0.25, 0.5, 90}, {0}, [](double, double v) { return v == 0.25 ? 50 : 10; });

    const PolarDiagram diagram = polarDiagram(web);

    const PolarPoint peak = lowest(diagram.curves[0]);
    EXPECT_THAT(diagram.rings.back(), DoubleEq(50));
    EXPECT_NEAR(peak.y, cosine(0.25), kNear);
}

TEST(PolarDiagram, OfTypesAAndBShowsBothPlanesThroughTheMiddleOfTheBeam) {
    const auto web = made(Photometry::B, steps(-90, 90, 10), steps(0, 90, 10),
                          [](double h, double v) { return 100 * cosine(h) * (v > 0 ? 0.5 : 1); });

    const PolarDiagram diagram = polarDiagram(web);

    ASSERT_EQ(diagram.curves.size(), 2U);
    EXPECT_EQ(diagram.curves[0].plane, PolarPlane::Horizontal);
    EXPECT_NEAR(rightmost(diagram.curves[0]).x, -leftmost(diagram.curves[0]).x, kNear);
    EXPECT_EQ(diagram.curves[1].plane, PolarPlane::Vertical);
    EXPECT_NEAR(leftmost(diagram.curves[1]).x, -1, kNear);
    EXPECT_NEAR(rightmost(diagram.curves[1]).x, 0.5, kNear);
}

TEST(PolarDiagram, OfADarkWebHasNothingToShow) {
    const auto web = made(Photometry::C, steps(0, 90, 10), {0}, [](double, double) { return 0; });

    const PolarDiagram diagram = polarDiagram(web);

    EXPECT_THAT(diagram.curves, IsEmpty());
    EXPECT_THAT(diagram.rings, IsEmpty());
}

} // namespace
} // namespace quor::ies
