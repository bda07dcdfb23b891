#include "light/lightcmd/lamp_presets.h"

#include <gtest/gtest.h>
#include <sstream>

namespace quor::light {
namespace {

TEST(LampPresets, TheyStandInTheOrderOfTheirValues) {
    ASSERT_EQ(lampPresets().size(), 14U);
    for (std::size_t i = 0; i < lampPresets().size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(lampPresets()[i].value), i);
}

TEST(LampPresets, TheirKeywordsAreThoseOfTheKeywordListBehindKelvin) {
    std::wistringstream words(texts.lampColorKeywords.builtIn);
    ZrString word;
    words >> word;
    EXPECT_EQ(word, L"Kelvin");
    for (const LampPreset& preset : lampPresets()) {
        words >> word;
        EXPECT_EQ(preset.keyword, word);
    }
}

TEST(LampPresets, TheListingHoldsTheirNamesInOrder) {
    ZrString expected;
    for (const LampPreset& preset : lampPresets()) {
        expected += preset.value == LampColorPreset::kLowPressureSodium ? L"\t\n\"" : L"\n\"";
        expected += displayName(preset) + L"\"";
    }

    EXPECT_EQ(texts.lampListBody.builtIn, expected);
}

TEST(LampPresets, AValueThatIsNoPresetHasNoName) {
    EXPECT_EQ(displayName(LampColorPreset::kD65White), L"D65(D)");
    EXPECT_EQ(displayName(LampColorPreset::kLowPressureSodium), L"低压钠灯(L)");
    EXPECT_EQ(displayName(LampColorPreset::kCustom), L"");
}

TEST(FindPresetByKeyword, CaseMakesNoDifference) {
    ASSERT_NE(findPresetByKeyword(L"MERCURY"), nullptr);
    EXPECT_EQ(findPresetByKeyword(L"MERCURY")->value, LampColorPreset::kMercury);
    ASSERT_NE(findPresetByKeyword(L"d65"), nullptr);
    EXPECT_EQ(findPresetByKeyword(L"d65")->value, LampColorPreset::kD65White);
}

TEST(FindPresetByKeyword, ItIsTheWholeWord) {
    EXPECT_EQ(findPresetByKeyword(L"F"), nullptr);
    EXPECT_EQ(findPresetByKeyword(L"Fluorescentx"), nullptr);
    EXPECT_EQ(findPresetByKeyword(L"荧光灯"), nullptr);
    EXPECT_EQ(findPresetByKeyword(L""), nullptr);
}

TEST(FindPresetByName, D65IsFoundAsItIsWritten) {
    ASSERT_NE(findPresetByName(L"D65"), nullptr);
    EXPECT_EQ(findPresetByName(L"D65")->value, LampColorPreset::kD65White);
    EXPECT_EQ(findPresetByName(L"d65"), nullptr);
    EXPECT_EQ(findPresetByName(L"D65(D)"), nullptr);
}

// Without a session there is no resource module.
TEST(FindPresetByName, WithoutAResourceModuleBuiltInNamesAreNotFound) {
    EXPECT_EQ(findPresetByName(L"荧光灯"), nullptr);
    EXPECT_EQ(findPresetByName(L"低压钠灯"), nullptr);
}

TEST(FindPresetByName, WithoutAResourceModuleTheFirstOfThosePresetsIsCalledError) {
    ASSERT_NE(findPresetByName(L"error"), nullptr);
    EXPECT_EQ(findPresetByName(L"error")->value, LampColorPreset::kFluorescent);
    EXPECT_EQ(findPresetByName(L"Error"), nullptr);
}

} // namespace
} // namespace quor::light
