// Chinese is built in, and yet two things stand in resource modules: the names of the lamp presets, which have to be
// the built-in ones, and what the commands are called.
#include "tests/light/res/language_pack.h"

#include "host/sys/case_fold.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace quor::light {
namespace {

const LanguagePack& chinese() { return LanguagePack::chinese(); }

class NameInTheChinesePack : public testing::TestWithParam<Text> {};

TEST_P(NameInTheChinesePack, IsTheBuiltInOne) {
    const ZrString* const name = chinese().find(GetParam());

    ASSERT_NE(name, nullptr) << GetParam().number;
    EXPECT_EQ(*name, GetParam().builtIn);
}

INSTANTIATE_TEST_SUITE_P(LampPresets, NameInTheChinesePack,
                         testing::Values(texts.lampFluorescent, texts.lampCoolWhite, texts.lampWhiteFluorescent,
                                         texts.lampDaylightFluorescent, texts.lampIncandescent, texts.lampXenon,
                                         texts.lampHalogen, texts.lampQuartz, texts.lampMetalHalide, texts.lampMercury,
                                         texts.lampPhosphorMercury, texts.lampHighPressureSodium,
                                         texts.lampLowPressureSodium),
                         nameOfText<testing::TestParamInfo<Text>>);

const Text commandNames[] = {
    texts.pointLightCommand, texts.spotLightCommand,      texts.targetPointCommand,  texts.webLightCommand,
    texts.freeSpotCommand,   texts.freeWebCommand,        texts.distantLightCommand, texts.lightCommand,
    texts.lightListCommand,  texts.lightListCloseCommand,
};

class CommandInTheChinesePack : public testing::TestWithParam<Text> {};

TEST_P(CommandInTheChinesePack, HasANameInChinese) {
    const ZrString* const name = chinese().find(GetParam());

    ASSERT_NE(name, nullptr);
    ASSERT_FALSE(name->empty());
    EXPECT_TRUE(std::ranges::all_of(*name, [](wchar_t c) { return c >= 0x4E00 && c <= 0x9FFF; }));
}

INSTANTIATE_TEST_SUITE_P(All, CommandInTheChinesePack, testing::ValuesIn(commandNames),
                         nameOfText<testing::TestParamInfo<Text>>);

TEST(ChinesePack, NoTwoCommandsHaveTheSameName) {
    std::set<ZrString> names;
    for (const Text& text : commandNames)
        names.insert(foldCase(chinese().shown(text)));
    EXPECT_EQ(names.size(), std::size(commandNames));
}

TEST(ChinesePack, HoldsTheseNamesAndNothingElse) {
    EXPECT_EQ(chinese().size(TextSource::CommandLibrary), 13U);
    EXPECT_EQ(chinese().size(TextSource::Keywords), std::size(commandNames));
    EXPECT_TRUE(chinese().problems().empty());
}

} // namespace
} // namespace quor::light
