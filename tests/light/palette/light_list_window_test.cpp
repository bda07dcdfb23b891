// The palette as a window: where it floats, its title, icon, menu and messages.
#include "tests/light/palette/palette_test.h"

#include "host/ui/input.h"
#include "host/ui/painting.h"
#include "host/ui/recording_device.h"
#include "sdk/ui/palette_set_manager.h"
#include "sdk/ui/ui_service.h"

#include <gmock/gmock.h>

namespace quor::test {
namespace {

using testing::ElementsAre;

class LightListWindow : public PaletteTest {
protected:
    LightListWindow() { show(); }
    // Whether the palette tells that the tips are shown.
    static int tipsAnswer() {
        unsigned char shown = 7;
        EXPECT_EQ(palette().SendMessage(ui::kTipsMessage, 1, reinterpret_cast<std::intptr_t>(&shown)), 0);
        return shown;
    }
    // On the title, where nothing of the dialog is.
    static void rightClickPalette() { ui::rightClick(palette(), {5, 5}); }
};

TEST(LightListPalette, ItFloatsInItsPlaceAtFirst) {
    const CZrLightList palette;
    CSize least;
    palette.GetMinSize(least);

    EXPECT_EQ(palette.GetToolID(), L"{60826FDB-D95C-4FBB-BF89-F9D6FE0FB50C}");
    EXPECT_EQ(palette.GetFloatingRect(), (CRect{6, 181, 214, 619}));
    EXPECT_EQ(least, (CSize{200, 250}));
}

TEST_F(LightListWindow, ItHasItsTitleAndItsPlace) {
    EXPECT_EQ(palette().GetName(), L"模型中的光源");
    EXPECT_EQ(palette().GetWindowText(), L"模型中的光源");
    EXPECT_EQ(palette().GetWindowRect(), (CRect{6, 181, 214, 619}));
}

TEST_F(LightListWindow, ItHasItsIcon) {
    ASSERT_NE(palette().icon(), nullptr);
    EXPECT_EQ(palette().icon()->id, 58013U);
}

TEST_F(LightListWindow, ItSetsItsIconAgainWhenItIsAsked) {
    palette().SendMessage(WM_SETICON, ICON_SMALL, 0);
    ASSERT_EQ(palette().icon(), nullptr);

    EXPECT_EQ(palette().SendMessage(ui::kIconMessage), 0);

    EXPECT_NE(palette().icon(), nullptr);
}

TEST_F(LightListWindow, ItsDialogIsShownInIt) {
    EXPECT_EQ(dialog().GetParent(), &palette());
    EXPECT_TRUE(dialog().IsWindowVisible());
    EXPECT_TRUE(dialog().tipsVisible());
}

TEST_F(LightListWindow, ItCanBeDisabledAndEnabled) {
    palette().Disable();
    EXPECT_FALSE(palette().IsWindowEnabled());

    palette().Enable();
    EXPECT_TRUE(palette().IsWindowEnabled());
}

TEST_F(LightListWindow, ARightClickOffersTheTipsAndToClose) {
    rightClickPalette();

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"[x] 显示提示", L"---", L"关闭"));
}

TEST_F(LightListWindow, ItsMenuIsShownAtTheCursor) {
    rightClickPalette();

    EXPECT_EQ(front().lastMenuPlace(), palette().ClientToScreen({5, 5}));
}

TEST_F(LightListWindow, TheResourcesInUseAreThoseOfBeforeAfterItsMenu) {
    constexpr ZwUiResources others{};
    const ZwResourceScope inUse(&others);

    rightClickPalette();

    EXPECT_EQ(zwGetResourceInstance(), &others);
}

TEST_F(LightListWindow, ADoubleClickOnItsEdgeLeavesItAsItIs) {
    ui::doubleClick(palette(), {5, 5});
    runWaiting();

    EXPECT_TRUE(palette().IsWindowVisibleEx());
    EXPECT_EQ(palette().GetWindowRect(), (CRect{6, 181, 214, 619}));
    EXPECT_FALSE(front().shows(L"_properties"));
}

TEST_F(LightListWindow, ItPaintsNothingAroundItsDialog) {
    dialog().ShowWindow(false);
    ui::RecordingDevice device;

    ui::paint(palette(), device);

    EXPECT_TRUE(device.calls().empty());
    EXPECT_FALSE(palette().needsPaint());
}

TEST_F(LightListWindow, ItsMenuHidesAndShowsTheTips) {
    front().chooseMenu(7502);
    rightClickPalette();
    EXPECT_FALSE(dialog().tipsVisible());

    front().chooseMenu(7502);
    rightClickPalette();

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"显示提示", L"---", L"关闭"));
    EXPECT_TRUE(dialog().tipsVisible());
}

TEST_F(LightListWindow, ItsMenuClosesIt) {
    front().chooseMenu(7501);

    rightClickPalette();

    EXPECT_FALSE(palette().IsWindowVisibleEx());
}

TEST_F(LightListWindow, TheHostsCloseCommandClosesIt) {
    EXPECT_NE(palette().SendMessage(WM_COMMAND, 10001), 0);

    EXPECT_FALSE(palette().IsWindowVisibleEx());
}

TEST_F(LightListWindow, ACommandThatItDoesNotKnowIsNotItsOwn) {
    EXPECT_EQ(palette().SendMessage(WM_COMMAND, 4711), 0);
    EXPECT_TRUE(palette().IsWindowVisibleEx());
}

TEST_F(LightListWindow, AContextMenuMessageShowsNoMenu) {
    palette().dispatchContextMenu(&palette(), {5, 5});

    EXPECT_TRUE(front().lastMenu().empty());
}

TEST_F(LightListWindow, TheTipsMessageShowsHidesAndTells) {
    EXPECT_EQ(tipsAnswer(), 1);

    EXPECT_EQ(palette().SendMessage(ui::kTipsMessage, 0), 0);
    EXPECT_FALSE(dialog().tipsVisible());
    EXPECT_EQ(tipsAnswer(), 0);

    palette().SendMessage(ui::kTipsMessage, 0);
    EXPECT_EQ(tipsAnswer(), 1);
}

TEST_F(LightListWindow, AQuestionForTheTipsWithoutAPlaceForTheAnswerIsHarmless) {
    EXPECT_EQ(palette().SendMessage(ui::kTipsMessage, 1, 0), 0);
}

TEST_F(LightListWindow, AnotherValueWithTheTipsMessageMeansNothing) {
    unsigned char answer = 7;

    EXPECT_EQ(palette().SendMessage(ui::kTipsMessage, 2, reinterpret_cast<std::intptr_t>(&answer)), 0);

    EXPECT_EQ(answer, 7);
    EXPECT_TRUE(dialog().tipsVisible());
}

TEST_F(LightListWindow, TheTipsOfAHiddenPaletteAreNotShown) {
    hide();

    EXPECT_EQ(tipsAnswer(), 0);
}

TEST_F(LightListWindow, OtherMessagesMeanNothingToIt) { EXPECT_EQ(palette().SendMessage(WM_APP + 0x1C, 1, 0), 0); }

TEST_F(LightListWindow, NothingIsPaintedAnewWhenItIsActivatedDockedOrRolledUp) {
    ui::RecordingDevice device;
    ui::paint(palette(), device);

    palette().onActivated();
    palette().onDeactivated();
    palette().onDocked();
    palette().onFloated();
    palette().onRolledUp();
    palette().onUnrolled();

    EXPECT_FALSE(palette().needsPaint());
}

TEST_F(LightListWindow, ItIsTheOnlyPaletteOfTheModule) {
    EXPECT_EQ(Singleton<CZrRxPaletteSetManager>::instancePtr(false)->palettes(),
              std::vector<CZrRxPaletteSet*>{&palette()});
}

} // namespace
} // namespace quor::test
