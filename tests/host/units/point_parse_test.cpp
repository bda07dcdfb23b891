// Points as people type them.
#include "host/db/point_parse.h"

#include <cmath>
#include <numbers>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace quor::units;

PointContext atTenTwentyThirty() {
    PointContext context;
    context.lastPoint = ZrGePoint3d(10, 20, 30);
    context.lastPointWorld = ZrGePoint3d(110, 120, 130);
    return context;
}

struct Typed {
    std::wstring text;
    ZrGePoint3d point;
    bool world = false;
};

class PointText : public testing::TestWithParam<Typed> {};

TEST_P(PointText, IsRead) {
    const auto parsed = parsePoint(GetParam().text, atTenTwentyThirty());
    ASSERT_TRUE(parsed.has_value());
    EXPECT_NEAR(parsed->point.distanceTo(GetParam().point), 0, 1e-12);
    EXPECT_EQ(parsed->world, GetParam().world);
}

const double kHalfRoot = std::sqrt(0.5);

INSTANTIATE_TEST_SUITE_P(Absolute, PointText,
                         testing::Values(Typed{L"1,2", {1, 2, 0}}, Typed{L"1,2,3", {1, 2, 3}},
                                         Typed{L"-1.5,.5,1e1", {-1.5, 0.5, 10}}, Typed{L"*1,2,3", {1, 2, 3}, true},
                                         Typed{L"*1,2", {1, 2, 0}, true}, Typed{L"0,0", {0, 0, 0}}));

INSTANTIATE_TEST_SUITE_P(Relative, PointText,
                         testing::Values(Typed{L"@", {10, 20, 30}}, Typed{L"@1,2", {11, 22, 30}},
                                         Typed{L"@1,2,3", {11, 22, 33}}, Typed{L"@-1,-2", {9, 18, 30}},
                                         Typed{L"@*1,0", {111, 120, 130}, true},
                                         Typed{L"@*1,0,5", {111, 120, 135}, true}));

INSTANTIATE_TEST_SUITE_P(Polar, PointText,
                         testing::Values(Typed{L"2<90", {0, 2, 0}}, Typed{L"@2<90", {10, 22, 30}},
                                         Typed{L"-2<0", {-2, 0, 0}}, Typed{L"2<-90", {0, -2, 0}},
                                         Typed{L"*2<180", {-2, 0, 0}, true}, Typed{L"@*2<180", {108, 120, 130}, true},
                                         Typed{L"2<N45dE", {2 * kHalfRoot, 2 * kHalfRoot, 0}},
                                         Typed{L"2<100g", {0, 2, 0}}));

INSTANTIATE_TEST_SUITE_P(CylindricalAndSpherical, PointText,
                         testing::Values(Typed{L"2<90,5", {0, 2, 5}}, Typed{L"@2<90,5", {10, 22, 35}},
                                         Typed{L"2<0<90", {0, 0, 2}},
                                         Typed{L"2<90<45", {0, 2 * kHalfRoot, 2 * kHalfRoot}},
                                         Typed{L"@2<0<-90", {10, 20, 28}}, Typed{L"*2<0<0", {2, 0, 0}, true}));

class NoPoint : public testing::TestWithParam<std::wstring> {};

TEST_P(NoPoint, IsRefused) { EXPECT_FALSE(parsePoint(GetParam(), atTenTwentyThirty()).has_value()); }

INSTANTIATE_TEST_SUITE_P(Texts, NoPoint,
                         testing::Values(L"", L"1", L"*", L"@*", L"@@1,2", L"**1,2", L"*@1,2", L"1,", L",1", L"1,2,",
                                         L"1,,3", L",", L",,", L"1,2,3,4", L"1,2,3,4,5,6", L"@1", L"1 ,2", L"1, 2",
                                         L" 1,2", L"1,2 ", L"1,\t2", L"nan,1", L"1,inf", L"0x1,2", L"1,2x", L"1e309,0",
                                         L"<", L"1<", L"<45", L"1<45,", L"1<45,2,3", L"1<45<", L"1<45<30,2",
                                         L"1<45<30<15", L"1,2<45", L"1<45,2<3", L"@<45", L"1<x", L"1;2", L"1'3\",2",
                                         L"1/2,2"));

TEST(ParsePoint, RefusesTheThirdCoordinateWhenThePlaneIsAskedFor) {
    PointContext context = atTenTwentyThirty();
    context.allowZ = false;
    EXPECT_FALSE(parsePoint(L"1,2,3", context).has_value());
    EXPECT_FALSE(parsePoint(L"1<45,3", context).has_value());
    EXPECT_FALSE(parsePoint(L"1<45<30", context).has_value());
    EXPECT_TRUE(parsePoint(L"1,2", context).has_value());
    EXPECT_TRUE(parsePoint(L"1<45", context).has_value());
    EXPECT_EQ(parsePoint(L"@1,2", context)->point, ZrGePoint3d(11, 22, 30));
}

TEST(ParsePoint, RefusesRelativePointsWithoutALastPoint) {
    EXPECT_FALSE(parsePoint(L"@", {}).has_value());
    EXPECT_FALSE(parsePoint(L"@1,2", {}).has_value());
    EXPECT_FALSE(parsePoint(L"@*1,2", {}).has_value());
    EXPECT_TRUE(parsePoint(L"1,2", {}).has_value());
}

TEST(ParsePoint, TakesTheLastPointAsWorldWhenNoOtherIsGiven) {
    PointContext context;
    context.lastPoint = ZrGePoint3d(10, 20, 30);
    const auto parsed = parsePoint(L"@*1,0", context);
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(parsed->point, ZrGePoint3d(11, 20, 30));
    EXPECT_TRUE(parsed->world);
}

TEST(ParsePoint, HonoursAngleBaseAndDirectionButNotForTheElevation) {
    PointContext context;
    context.settings.angleBase = std::numbers::pi / 2;
    context.settings.clockwise = true;
    EXPECT_TRUE(parsePoint(L"2<0", context)->point.isEqualTo({0, 2, 0}));
    EXPECT_TRUE(parsePoint(L"2<90", context)->point.isEqualTo({2, 0, 0}));
    EXPECT_TRUE(parsePoint(L"2<90<90", context)->point.isEqualTo({0, 0, 2}));
}

TEST(ParsePoint, ReadsNumbersAndAnglesInTheUnitsOfTheSettings) {
    PointContext context;
    context.settings.lengthFormat = kArchitectural;
    context.settings.angleFormat = kGrads;
    EXPECT_EQ(parsePoint(L"1'3-1/2\",5',1/2", context)->point, ZrGePoint3d(15.5, 60, 0.5));
    EXPECT_TRUE(parsePoint(L"1'<100", context)->point.isEqualTo({0, 12, 0}));
    EXPECT_FALSE(parsePoint(L"1'3 1/2\",5'", context).has_value());
}

TEST(ParsePoint, RefusesARelativePointThatGrowsBeyondAllNumbers) {
    PointContext context;
    context.lastPoint = ZrGePoint3d(1.7e308, 0, 0);
    EXPECT_TRUE(parsePoint(L"@0,0", context).has_value());
    EXPECT_FALSE(parsePoint(L"@1.7e308,0", context).has_value());
}

} // namespace
