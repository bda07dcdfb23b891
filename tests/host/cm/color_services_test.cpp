#include "sdk/cm/color_services.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "host/cm/color_names.h"

namespace {

int rounded(double v) { return static_cast<int>(std::floor(v * 255.0 + 0.5)); }

TEST(RgbName, BothEndsOfEachComponentAreAccepted) {
    ZrCmColor color;
    EXPECT_EQ(zrcmGetColorFromRGBName(color, L"0,0,0"), Quor::eOk);
    EXPECT_EQ(color, ZrCmColor::fromRGB(0, 0, 0));
    EXPECT_EQ(zrcmGetColorFromRGBName(color, L"255,255,255"), Quor::eOk);
    EXPECT_EQ(color, ZrCmColor::fromRGB(255, 255, 255));
    EXPECT_EQ(zrcmGetColorFromRGBName(color, L"255,128,0"), Quor::eOk);
    EXPECT_EQ(color, ZrCmColor::fromRGB(255, 128, 0));
}

class BadRgbName : public testing::TestWithParam<const wchar_t*> {};

TEST_P(BadRgbName, IsRefusedAndLeavesTheColourAlone) {
    ZrCmColor color = ZrCmColor::fromIndex(3);
    EXPECT_EQ(zrcmGetColorFromRGBName(color, GetParam()), Quor::eInvalidInput);
    EXPECT_EQ(color, ZrCmColor::fromIndex(3));
}

INSTANTIATE_TEST_SUITE_P(All, BadRgbName,
                         testing::Values(nullptr, L"", L"1", L"1,2", L"1,2,3,4", L"256,0,0", L"0,256,0", L"0,0,256",
                                         L"-1,0,0", L"+1,0,0", L"1.0,0,0", L" 1,0,0", L"1,0,0 ", L"1,,0", L",,",
                                         L"1,2,", L"a,0,0", L"１,0,0", L"99999999999999999999,0,0"));

TEST(AciName, NumbersAndNamesInBothLanguagesAreAccepted) {
    ZrCmColor color;
    EXPECT_EQ(zrcmGetColorFromACIName(color, L"1"), Quor::eOk);
    EXPECT_EQ(color, ZrCmColor::fromIndex(1));
    EXPECT_EQ(zrcmGetColorFromACIName(color, L"255"), Quor::eOk);
    EXPECT_EQ(color, ZrCmColor::fromIndex(255));
    EXPECT_EQ(zrcmGetColorFromACIName(color, L"mAGENTA"), Quor::eOk);
    EXPECT_EQ(color, ZrCmColor::fromIndex(6));
    EXPECT_EQ(zrcmGetColorFromACIName(color, L"洋红"), Quor::eOk);
    EXPECT_EQ(color, ZrCmColor::fromIndex(6));
    EXPECT_EQ(zrcmGetColorFromACIName(color, L"白"), Quor::eOk);
    EXPECT_EQ(color, ZrCmColor::fromIndex(7));
}

class BadAciName : public testing::TestWithParam<const wchar_t*> {};

TEST_P(BadAciName, IsRefusedAndLeavesTheColourAlone) {
    ZrCmColor color = ZrCmColor::fromIndex(3);
    EXPECT_EQ(zrcmGetColorFromACIName(color, GetParam()), Quor::eInvalidInput);
    EXPECT_EQ(color, ZrCmColor::fromIndex(3));
}

INSTANTIATE_TEST_SUITE_P(All, BadAciName,
                         testing::Values(nullptr, L"", L"0", L"256", L"-1", L"12ab", L"reddish", L"re", L"1.0"));

TEST(AciName, NamesFollowTheLanguageInUse) {
    quor::cm::setColorNameSource([](int index) { return index == 1 ? std::wstring(L"Rouge") : std::wstring(); });
    ZrCmColor color;
    EXPECT_EQ(zrcmGetColorFromACIName(color, L"rouge"), Quor::eOk);
    EXPECT_EQ(color.colorNameForDisplay(), L"Rouge");
    EXPECT_EQ(ZrCmColor::fromIndex(2).colorNameForDisplay(), L"黄");
    quor::cm::setColorNameSource(nullptr);
    EXPECT_EQ(color.colorNameForDisplay(), L"红");
}

class Grey : public testing::TestWithParam<int> {};

TEST_P(Grey, KeepsItsValueBothWaysAndHasNoSaturation) {
    const double value = GetParam() / 255.0;
    ZrGeVector3d hsl;
    ASSERT_EQ(zrdbConvertRgbToHsl({value, value, value}, hsl), Quor::eOk);
    EXPECT_EQ(hsl, ZrGeVector3d(0.0, 0.0, value));
    ZrGeVector3d rgb;
    ASSERT_EQ(zrdbConvertHslToRgb(hsl, rgb), Quor::eOk);
    EXPECT_EQ(rgb, ZrGeVector3d(value, value, value));
}

INSTANTIATE_TEST_SUITE_P(All256, Grey, testing::Range(0, 256));

struct Known {
    ZrGeVector3d rgb;
    ZrGeVector3d hsl;
};

class KnownColour : public testing::TestWithParam<Known> {};

TEST_P(KnownColour, ConvertsBothWays) {
    ZrGeVector3d hsl;
    ASSERT_EQ(zrdbConvertRgbToHsl(GetParam().rgb, hsl), Quor::eOk);
    EXPECT_TRUE(hsl.isEqualTo(GetParam().hsl)) << hsl.x << ' ' << hsl.y << ' ' << hsl.z;
    ZrGeVector3d rgb;
    ASSERT_EQ(zrdbConvertHslToRgb(GetParam().hsl, rgb), Quor::eOk);
    EXPECT_TRUE(rgb.isEqualTo(GetParam().rgb)) << rgb.x << ' ' << rgb.y << ' ' << rgb.z;
}

INSTANTIATE_TEST_SUITE_P(PrimariesAndOthers, KnownColour,
                         testing::Values(Known{{1, 0, 0}, {0, 1, 0.5}}, Known{{1, 1, 0}, {60, 1, 0.5}},
                                         Known{{0, 1, 0}, {120, 1, 0.5}}, Known{{0, 1, 1}, {180, 1, 0.5}},
                                         Known{{0, 0, 1}, {240, 1, 0.5}}, Known{{1, 0, 1}, {300, 1, 0.5}},
                                         Known{{1, 0.5, 0}, {30, 1, 0.5}}, Known{{0.75, 0.25, 0.5}, {330, 0.5, 0.5}},
                                         Known{{0.5, 1, 0.75}, {150, 1, 0.75}}, Known{{0.1, 0, 0.1}, {300, 1, 0.05}}));

TEST(Hsl, EveryColourOfACoarseGridComesBackAsTheSameBytes) {
    for (int code = 0; code < 18 * 18 * 18; ++code) {
        const ZrGeVector3d rgb(code % 18 * 15 / 255.0, code / 18 % 18 * 15 / 255.0, code / 324 * 15 / 255.0);
        ZrGeVector3d both = rgb;
        ASSERT_EQ(zrdbConvertRgbToHsl(both, both), Quor::eOk);
        ASSERT_EQ(zrdbConvertHslToRgb(both, both), Quor::eOk);
        ASSERT_EQ(rounded(both.x), rounded(rgb.x)) << code;
        ASSERT_EQ(rounded(both.y), rounded(rgb.y)) << code;
        ASSERT_EQ(rounded(both.z), rounded(rgb.z)) << code;
    }
}

TEST(Hsl, HueIsAnAngleModuloTheCircle) {
    ZrGeVector3d rgb;
    EXPECT_EQ(zrdbConvertHslToRgb({360, 1, 0.5}, rgb), Quor::eOk);
    EXPECT_TRUE(rgb.isEqualTo({1, 0, 0}));
    EXPECT_EQ(zrdbConvertHslToRgb({-120, 1, 0.5}, rgb), Quor::eOk);
    EXPECT_TRUE(rgb.isEqualTo({0, 0, 1}));
    EXPECT_EQ(zrdbConvertHslToRgb({840, 1, 0.5}, rgb), Quor::eOk);
    EXPECT_TRUE(rgb.isEqualTo({0, 1, 0}));
}

TEST(Hsl, NumbersOutsideTheRangesAreRefusedUnchanged) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    ZrGeVector3d result(7, 8, 9);
    EXPECT_EQ(zrdbConvertRgbToHsl({1.001, 0, 0}, result), Quor::eInvalidInput);
    EXPECT_EQ(zrdbConvertRgbToHsl({0, -0.001, 0}, result), Quor::eInvalidInput);
    EXPECT_EQ(zrdbConvertRgbToHsl({0, 0, nan}, result), Quor::eInvalidInput);
    EXPECT_EQ(zrdbConvertHslToRgb({infinity, 1, 1}, result), Quor::eInvalidInput);
    EXPECT_EQ(zrdbConvertHslToRgb({nan, 1, 1}, result), Quor::eInvalidInput);
    EXPECT_EQ(zrdbConvertHslToRgb({0, 1.001, 1}, result), Quor::eInvalidInput);
    EXPECT_EQ(zrdbConvertHslToRgb({0, 1, -0.001}, result), Quor::eInvalidInput);
    EXPECT_EQ(result, ZrGeVector3d(7, 8, 9));
}

} // namespace
