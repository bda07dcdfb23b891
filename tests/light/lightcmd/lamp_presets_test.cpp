#include "light/lightcmd/lamp_presets.h"

#include <gtest/gtest.h>

namespace quor::light {
namespace {

struct Row {
    std::size_t value; // in drawings, and the place in the table
    const wchar_t* keyword;
    const wchar_t* name;
    unsigned text; // the number of the name in resource modules; 0: built in only
};

constexpr Row rows[] = {
    {0, L"D65", L"D65(D)", 0},
    {1, L"Fluorescent", L"荧光灯(F)", 6873},
    {2, L"Coolwhite", L"冷白光(C)", 6874},
    {3, L"Whitefluorescent", L"白荧光(W)", 6875},
    {4, L"daylightfluorescenT", L"日光荧光灯(T)", 6876},
    {5, L"Incandescent", L"白炽灯(I)", 6877},
    {6, L"Xenon", L"氙灯(X)", 6878},
    {7, L"Halogen", L"卤素灯(H)", 6879},
    {8, L"Quartz", L"石英灯(Q)", 6880},
    {9, L"Metalhalide", L"金属卤素(M)", 6881},
    {10, L"mErcury", L"水银灯(E)", 6882},
    {11, L"Phosphormercury", L"磷光水银灯(P)", 6883},
    {12, L"highpressureSodium", L"高压钠灯(S)", 6884},
    {13, L"Lowpressuresodium", L"低压钠灯(L)", 6885},
};

class EachPreset : public testing::TestWithParam<Row> {
protected:
    static const LampPreset& preset() { return lampPresets()[GetParam().value]; }
    static LampColorPreset value() { return static_cast<LampColorPreset>(GetParam().value); }
};

TEST_P(EachPreset, StandsAtThePlaceOfItsValue) { EXPECT_EQ(preset().value, value()); }

TEST_P(EachPreset, HasItsKeyword) { EXPECT_STREQ(preset().keyword, GetParam().keyword); }

TEST_P(EachPreset, IsShownByItsName) {
    EXPECT_EQ(displayName(preset()), GetParam().name);
    EXPECT_EQ(displayName(value()), GetParam().name);
}

TEST_P(EachPreset, IsFoundByItsKeyword) { EXPECT_EQ(findPresetByKeyword(GetParam().keyword), &preset()); }

INSTANTIATE_TEST_SUITE_P(All, EachPreset, testing::ValuesIn(rows));

class EachTranslatedPreset : public EachPreset {};

TEST_P(EachTranslatedPreset, HasTheNumberOfItsName) { EXPECT_EQ(preset().name->number, GetParam().text); }

INSTANTIATE_TEST_SUITE_P(AllButD65, EachTranslatedPreset, testing::ValuesIn(rows + 1, std::end(rows)));

TEST(LampPresets, ThereAreFourteen) { EXPECT_EQ(lampPresets().size(), 14U); }

TEST(LampPresets, TheNameOfD65IsNotTranslated) { EXPECT_EQ(lampPresets()[0].name, nullptr); }

TEST(LampPresets, TheKeywordListHoldsTheirKeywordsBehindKelvin) {
    EXPECT_STREQ(texts.lampColorKeywords.builtIn,
                 L"Kelvin D65 Fluorescent Coolwhite Whitefluorescent daylightfluorescenT Incandescent Xenon Halogen "
                 L"Quartz Metalhalide mErcury Phosphormercury highpressureSodium Lowpressuresodium "
                 L"_Kelvin D65 Fluorescent Coolwhite Whitefluorescent daylightfluorescenT Incandescent Xenon Halogen "
                 L"Quartz Metalhalide mErcury Phosphormercury highpressureSodium Lowpressuresodium");
}

TEST(LampPresets, TheListingHoldsTheirNamesWithATabBeforeTheLast) {
    EXPECT_STREQ(texts.lampListBody.builtIn, L"\n\"D65(D)\""
                                             L"\n\"荧光灯(F)\""
                                             L"\n\"冷白光(C)\""
                                             L"\n\"白荧光(W)\""
                                             L"\n\"日光荧光灯(T)\""
                                             L"\n\"白炽灯(I)\""
                                             L"\n\"氙灯(X)\""
                                             L"\n\"卤素灯(H)\""
                                             L"\n\"石英灯(Q)\""
                                             L"\n\"金属卤素(M)\""
                                             L"\n\"水银灯(E)\""
                                             L"\n\"磷光水银灯(P)\""
                                             L"\n\"高压钠灯(S)\"\t"
                                             L"\n\"低压钠灯(L)\"");
}

TEST(LampPresets, AValueThatIsNoPresetHasNoName) { EXPECT_EQ(displayName(LampColorPreset::kCustom), L""); }

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
