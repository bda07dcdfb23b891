// Chinese is built in, and yet the names of the lamp presets stand in a resource module too: both have to be the same.
#include "light/res/text_table.h"

#include "host/session.h"
#include "host/sys/resource_library.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor::light {
namespace {

class ChinesePack : public testing::Test {
protected:
    [[nodiscard]] sys::ResourceLibrary& resources() { return session_.resources(); }
    [[nodiscard]] ZwResourceHandle commandLibrary() { return resources().load(L"quorcmdres"); }

private:
    test::TemporaryFolder folder_;
    test::ScriptedFrontEnd front_;
    Session session_{front_,
                     {.settingsFile = folder_.path() / "settings.ini",
                      .resourceFolder = QUOR_TEST_DATA "/../../resources",
                      .moduleFolders = {},
                      .language = L"zh"}};
};

class NameInTheChinesePack : public ChinesePack, public testing::WithParamInterface<Text> {};

TEST_P(NameInTheChinesePack, IsTheBuiltInOne) {
    ASSERT_NE(commandLibrary(), nullptr);
    const ZrString* const name = commandLibrary()->find(GetParam().number);

    ASSERT_NE(name, nullptr) << GetParam().number;
    EXPECT_EQ(*name, GetParam().builtIn);
}

INSTANTIATE_TEST_SUITE_P(LampPresets, NameInTheChinesePack,
                         testing::Values(texts.lampFluorescent, texts.lampCoolWhite, texts.lampWhiteFluorescent,
                                         texts.lampDaylightFluorescent, texts.lampIncandescent, texts.lampXenon,
                                         texts.lampHalogen, texts.lampQuartz, texts.lampMetalHalide, texts.lampMercury,
                                         texts.lampPhosphorMercury, texts.lampHighPressureSodium,
                                         texts.lampLowPressureSodium),
                         [](const auto& text) { return "Text" + std::to_string(text.param.number); });

TEST_F(ChinesePack, HoldsThirteenNamesAndNothingElse) {
    ASSERT_NE(commandLibrary(), nullptr);
    EXPECT_EQ(commandLibrary()->size(), 13U);
    EXPECT_TRUE(resources().problems().empty());
}

} // namespace
} // namespace quor::light
