#include "host/ui/theme.h"

#include "host/sys/system_variables.h"
#include "host/ui/host_resources.h"
#include "sdk/sys/system.h"
#include "sdk/ui/ui_service.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quor::test {

namespace {

double linear(unsigned channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(COLORREF color) {
    return 0.2126 * linear(GetRValue(color)) + 0.7152 * linear(GetGValue(color)) + 0.0722 * linear(GetBValue(color));
}

// From 1 (alike) to 21 (black on white).
double contrast(COLORREF a, COLORREF b) {
    const double low = std::min(luminance(a), luminance(b));
    const double high = std::max(luminance(a), luminance(b));
    return (high + 0.05) / (low + 0.05);
}

class TheTheme : public testing::TestWithParam<short> {
protected:
    TheTheme() { test_.session().variables().set(L"COLORTHEME", GetParam()); }
    static COLORREF color(int element) { return CZwSystem::instance().ui().theme().color(element); }

    TestSession test_;
};

constexpr double kReadable = 4.5;
constexpr double kVisible = 1.4;

TEST_P(TheTheme, HasReadableTexts) {
    EXPECT_GE(contrast(color(kThemeHeaderText), color(kThemeHeaderBackground)), kReadable);
    EXPECT_GE(contrast(color(kThemeListText), color(kThemeListBackground)), kReadable);
    EXPECT_GE(contrast(color(kThemeLabelText), color(kThemeLabelBackground)), kReadable);
    EXPECT_GE(contrast(color(kThemePanelText), color(kThemePanelBackground)), kReadable);
    EXPECT_GE(contrast(color(kThemePanelText), color(kThemeListBackground)), kReadable);
    EXPECT_GE(contrast(GetSysColor(COLOR_WINDOWTEXT), GetSysColor(COLOR_WINDOW)), kReadable);
    EXPECT_GE(contrast(GetSysColor(COLOR_HIGHLIGHTTEXT), GetSysColor(COLOR_HIGHLIGHT)), kReadable);
}

TEST_P(TheTheme, HasReadableTextsInSelectedRowsWhichKeepTheirColor) {
    EXPECT_GE(contrast(color(kThemeListText), color(kThemeUnfocusedSelection)), kReadable);
    EXPECT_GE(contrast(color(kThemeListText), GetSysColor(COLOR_HIGHLIGHT)), kReadable);
}

TEST_P(TheTheme, ShowsSelectionsAndSeparators) {
    EXPECT_GE(contrast(color(kThemeUnfocusedSelection), color(kThemeListBackground)), kVisible);
    EXPECT_GE(contrast(GetSysColor(COLOR_HIGHLIGHT), color(kThemeListBackground)), kVisible);
    EXPECT_NE(GetSysColor(COLOR_HIGHLIGHT), color(kThemeUnfocusedSelection));
    EXPECT_GE(contrast(color(kThemeHeaderSeparator), color(kThemeHeaderBackground)), kVisible);
}

TEST_P(TheTheme, ShowsWhatHasNoColorInMagenta) {
    EXPECT_EQ(color(0), RGB(255, 0, 255));
    EXPECT_EQ(GetSysColor(0), RGB(255, 0, 255));
    EXPECT_NE(color(kThemeDialogBackground), RGB(255, 0, 255));
}

INSTANTIATE_TEST_SUITE_P(Dark, TheTheme, testing::Values(short{0}));
INSTANTIATE_TEST_SUITE_P(Light, TheTheme, testing::Values(short{1}));

TEST(AThemeInUse, ChangesWithItsVariable) {
    TestSession test;
    const ZwTheme& theme = CZwSystem::instance().ui().theme();
    EXPECT_TRUE(theme.isDark());
    const COLORREF dark = theme.color(kThemeListBackground);
    test.session().variables().set(L"COLORTHEME", short{1});
    EXPECT_FALSE(theme.isDark());
    EXPECT_GT(luminance(theme.color(kThemeListBackground)), luminance(dark));
}

TEST(AThemeInUse, IsDarkWhileNoHostIsRunning) {
    EXPECT_TRUE(ui::Theme().isDark());
    EXPECT_LT(luminance(GetSysColor(COLOR_WINDOW)), luminance(GetSysColor(COLOR_WINDOWTEXT)));
}

TEST(TheUiEvent, GivesTheHostsPicturesAndNothingElse) {
    TestSession test;
    EXPECT_EQ(zrrxUiEvent()->GetResourceModule(1), &ui::hostResources());
    EXPECT_EQ(zrrxUiEvent()->GetResourceModule(0), nullptr);
    EXPECT_EQ(zrrxUiEvent()->GetResourceModule(2), nullptr);
}

} // namespace

} // namespace quor::test
