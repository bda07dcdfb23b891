#include "sdk/cm/color.h"

#include <gtest/gtest.h>

#include "host/cm/palette.h"

namespace {

TEST(Color, ANewColourIsByLayerAndShowsAsWhite) {
    const ZrCmColor color;
    EXPECT_TRUE(color.isByLayer());
    EXPECT_FALSE(color.isByACI());
    EXPECT_FALSE(color.isByColor());
    EXPECT_EQ(color.colorIndex(), 256);
    EXPECT_EQ(color.rgb(), 0xFFFFFFU);
    EXPECT_EQ(color.colorNameForDisplay(), L"ByLayer");
}

TEST(Color, IndexRangeEndsAreAcceptedAndBeyondIsRefusedUnchanged) {
    ZrCmColor color = ZrCmColor::fromIndex(42);
    EXPECT_EQ(color.setColorIndex(-1), Quor::eInvalidInput);
    EXPECT_EQ(color.setColorIndex(257), Quor::eInvalidInput);
    EXPECT_EQ(color, ZrCmColor::fromIndex(42));
    EXPECT_EQ(color.setColorIndex(1), Quor::eOk);
    EXPECT_TRUE(color.isByACI());
    EXPECT_EQ(color.setColorIndex(255), Quor::eOk);
    EXPECT_EQ(color.colorIndex(), 255);
    EXPECT_EQ(color.setColorIndex(0), Quor::eOk);
    EXPECT_TRUE(color.isByBlock());
    EXPECT_EQ(color.setColorIndex(256), Quor::eOk);
    EXPECT_TRUE(color.isByLayer());
}

TEST(Color, ANumberedColourHasThePalettesComponents) {
    const ZrCmColor color = ZrCmColor::fromIndex(30);
    EXPECT_EQ(color.red(), 255);
    EXPECT_EQ(color.green(), 127);
    EXPECT_EQ(color.blue(), 0);
}

TEST(Color, ATrueColourKeepsItsComponentsAndKnowsTheNearestNumber) {
    const ZrCmColor color = ZrCmColor::fromRGB(44, 136, 27);
    EXPECT_TRUE(color.isByColor());
    EXPECT_EQ(color.red(), 44);
    EXPECT_EQ(color.green(), 136);
    EXPECT_EQ(color.blue(), 27);
    EXPECT_EQ(color.colorIndex(), 86);
    EXPECT_EQ(color.colorNameForDisplay(), L"44,136,27");
}

TEST(Color, TheSevenNamedColoursShowTheirLocalNamesAndOthersTheirNumber) {
    EXPECT_EQ(ZrCmColor::fromIndex(1).colorNameForDisplay(), L"红");
    EXPECT_EQ(ZrCmColor::fromIndex(6).colorNameForDisplay(), L"洋红");
    EXPECT_EQ(ZrCmColor::fromIndex(7).colorNameForDisplay(), L"白");
    EXPECT_EQ(ZrCmColor::fromIndex(8).colorNameForDisplay(), L"8");
    EXPECT_EQ(ZrCmColor::fromIndex(255).colorNameForDisplay(), L"255");
    EXPECT_EQ(ZrCmColor::fromIndex(0).colorNameForDisplay(), L"ByBlock");
}

TEST(Color, ABookColourShowsBookAndNameAndLosesThemWithANewValue) {
    ZrCmColor color = ZrCmColor::fromRGB(255, 99, 71);
    EXPECT_EQ(color.setNames(L"tomato", L"Web Colors"), Quor::eOk);
    EXPECT_TRUE(color.hasColorName());
    EXPECT_TRUE(color.isByColor());
    EXPECT_EQ(color.bookName(), L"Web Colors");
    EXPECT_EQ(color.colorName(), L"tomato");
    EXPECT_EQ(color.colorNameForDisplay(), L"Web Colors$tomato");
    color.setRGB(255, 99, 71);
    EXPECT_FALSE(color.hasColorName());
    EXPECT_EQ(color.bookName(), L"");
}

TEST(Color, NamesNeedATrueColourAndABookNeedsAColour) {
    ZrCmColor numbered = ZrCmColor::fromIndex(3);
    EXPECT_EQ(numbered.setNames(L"tomato", L"Web Colors"), Quor::eInvalidInput);
    ZrCmColor color = ZrCmColor::fromRGB(1, 2, 3);
    EXPECT_EQ(color.setNames(L"", L"Web Colors"), Quor::eInvalidInput);
    EXPECT_FALSE(color.hasColorName());
    EXPECT_EQ(color.setNames(L"tomato", L"Web Colors"), Quor::eOk);
    EXPECT_EQ(color.setNames(L"", L""), Quor::eOk);
    EXPECT_FALSE(color.hasColorName());
}

TEST(Color, ANameWithoutABookIsShownAlone) {
    ZrCmColor color = ZrCmColor::fromRGB(1, 2, 3);
    EXPECT_EQ(color.setNames(L"tomato", L""), Quor::eOk);
    EXPECT_TRUE(color.hasColorName());
    EXPECT_EQ(color.bookName(), L"");
    EXPECT_EQ(color.colorNameForDisplay(), L"tomato");
}

TEST(Color, EqualMeansSameMethodValueAndNames) {
    ZrCmColor named = ZrCmColor::fromRGB(255, 0, 0);
    ASSERT_EQ(named.setNames(L"red", L"Web Colors"), Quor::eOk);
    ZrCmColor sameName = ZrCmColor::fromRGB(255, 0, 0);
    ASSERT_EQ(sameName.setNames(L"red", L"Web Colors"), Quor::eOk);
    EXPECT_EQ(named, sameName);
    EXPECT_NE(named, ZrCmColor::fromRGB(255, 0, 0));
    EXPECT_NE(ZrCmColor::fromIndex(1), ZrCmColor::fromRGB(255, 0, 0));
    EXPECT_NE(ZrCmColor::fromIndex(0), ZrCmColor());
}

TEST(Color, RawWordsOfDrawingFilesAreReadAndWritten) {
    ZrCmColor color;
    EXPECT_EQ(color.setRawColor(0xC3000005), Quor::eOk);
    EXPECT_EQ(color, ZrCmColor::fromIndex(5));
    EXPECT_EQ(color.rawColor(), 0xC3000005U);
    EXPECT_EQ(color.setRawColor(static_cast<std::uint32_t>(-1026700341)), Quor::eOk);
    EXPECT_TRUE(color.isByColor());
    EXPECT_EQ(color.rawColor(), static_cast<std::uint32_t>(-1026700341));
    EXPECT_EQ(color.setRawColor(0xC0000000), Quor::eOk);
    EXPECT_TRUE(color.isByLayer());
    EXPECT_EQ(color.setRawColor(0xC1000000), Quor::eOk);
    EXPECT_TRUE(color.isByBlock());
    EXPECT_EQ(color.rawColor(), 0xC1000000U);
}

TEST(Color, ABadRawWordIsRefusedUnchanged) {
    ZrCmColor color = ZrCmColor::fromIndex(9);
    EXPECT_EQ(color.setRawColor(0), Quor::eInvalidInput);
    EXPECT_EQ(color.setRawColor(0xC3000101), Quor::eInvalidInput);
    EXPECT_EQ(color.setRawColor(0xC4000001), Quor::eInvalidInput);
    EXPECT_EQ(color, ZrCmColor::fromIndex(9));
}

TEST(Palette, HoldsTheWellKnownColours) {
    using quor::cm::paletteRgb;
    EXPECT_EQ(paletteRgb(1), 0xFF0000U);
    EXPECT_EQ(paletteRgb(7), 0xFFFFFFU);
    EXPECT_EQ(paletteRgb(8), 0x808080U);
    EXPECT_EQ(paletteRgb(9), 0xC0C0C0U);
    EXPECT_EQ(paletteRgb(10), 0xFF0000U);
    EXPECT_EQ(paletteRgb(11), 0xFF7F7FU);
    EXPECT_EQ(paletteRgb(21), 0xFF9F7FU);
    EXPECT_EQ(paletteRgb(40), 0xFFBF00U);
    EXPECT_EQ(paletteRgb(52), 0xCCCC00U);
    EXPECT_EQ(paletteRgb(70), 0x7FFF00U);
    EXPECT_EQ(paletteRgb(130), 0x00FFFFU);
    EXPECT_EQ(paletteRgb(178), 0x00004CU);
    EXPECT_EQ(paletteRgb(210), 0xFF00FFU);
    EXPECT_EQ(paletteRgb(249), 0x4C262FU);
    EXPECT_EQ(paletteRgb(250), 0x333333U);
    EXPECT_EQ(paletteRgb(255), 0xFFFFFFU);
}

TEST(Palette, OfEqualColoursTheLowestNumberIsNearest) {
    EXPECT_EQ(quor::cm::nearestPaletteIndex(0xFF0000), 1);
    EXPECT_EQ(quor::cm::nearestPaletteIndex(0xFFFFFF), 7);
    EXPECT_EQ(quor::cm::nearestPaletteIndex(0x787878), 8);
    EXPECT_EQ(quor::cm::nearestPaletteIndex(0x000000), 18);
}

} // namespace
