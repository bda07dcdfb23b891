// Factors between units of length.
#include "host/db/units_conversion.h"

#include <gtest/gtest.h>

namespace {

using quor::units::unitsConversion;

struct Factor {
    int from;
    int to;
    double factor;
};

class UnitFactor : public testing::TestWithParam<Factor> {};

TEST_P(UnitFactor, IsTheDefinedOne) {
    const auto [from, to, factor] = GetParam();
    const auto forth = unitsConversion(from, to);
    const auto back = unitsConversion(to, from);
    ASSERT_TRUE(forth && back);
    EXPECT_DOUBLE_EQ(*forth, factor);
    EXPECT_DOUBLE_EQ(*forth * *back, 1.0);
}

INSTANTIATE_TEST_SUITE_P(EachUnitInMetres, UnitFactor,
                         testing::Values(Factor{1, 6, 0.0254}, Factor{2, 6, 0.3048}, Factor{3, 6, 1609.344},
                                         Factor{4, 6, 1e-3}, Factor{5, 6, 1e-2}, Factor{6, 6, 1}, Factor{7, 6, 1e3},
                                         Factor{8, 6, 2.54e-8}, Factor{9, 6, 2.54e-5}, Factor{10, 6, 0.9144},
                                         Factor{11, 6, 1e-10}, Factor{12, 6, 1e-9}, Factor{13, 6, 1e-6},
                                         Factor{14, 6, 0.1}, Factor{15, 6, 10}, Factor{16, 6, 100}, Factor{17, 6, 1e9},
                                         Factor{18, 6, 149597870700.0}, Factor{19, 6, 9460730472580800.0},
                                         Factor{20, 6, 3.0856775814913673e16}, Factor{21, 6, 1200.0 / 3937.0},
                                         Factor{22, 6, 100.0 / 3937.0}, Factor{23, 6, 3600.0 / 3937.0},
                                         Factor{24, 6, 5280.0 * 1200.0 / 3937.0}));

INSTANTIATE_TEST_SUITE_P(BetweenUnits, UnitFactor,
                         testing::Values(Factor{2, 1, 12}, Factor{10, 2, 3}, Factor{3, 2, 5280}, Factor{1, 4, 25.4},
                                         Factor{4, 5, 0.1}, Factor{20, 18, 206264.80624709636}, Factor{24, 21, 5280},
                                         Factor{1, 9, 1000}, Factor{1, 8, 1e6}));

TEST(UnitsConversion, GivesExactWholeNumbersBetweenRelatedUnits) {
    EXPECT_EQ(unitsConversion(2, 1), 12.0);
    EXPECT_EQ(unitsConversion(6, 4), 1000.0);
    EXPECT_EQ(unitsConversion(3, 2), 5280.0);
    EXPECT_EQ(unitsConversion(23, 22), 36.0);
}

TEST(UnitsConversion, GivesOneBetweenUnitlessAndAnything) {
    EXPECT_EQ(unitsConversion(0, 0), 1.0);
    EXPECT_EQ(unitsConversion(0, 1), 1.0);
    EXPECT_EQ(unitsConversion(24, 0), 1.0);
}

TEST(UnitsConversion, RefusesUnknownUnits) {
    EXPECT_FALSE(unitsConversion(-1, 4));
    EXPECT_FALSE(unitsConversion(4, -1));
    EXPECT_FALSE(unitsConversion(25, 4));
    EXPECT_FALSE(unitsConversion(4, 25));
    EXPECT_FALSE(unitsConversion(25, 25));
    EXPECT_FALSE(unitsConversion(0, 25));
}

} // namespace
