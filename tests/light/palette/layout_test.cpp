// Where the controls of the dialog stand, on screens of several resolutions, with and without the tips.
#include "light/palette/dialog_layout.h"

#include "host/ui/dpi.h"
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

// The resolution of the screen, for the length of a test.
class DialogLayout : public testing::Test {
protected:
    ~DialogLayout() override { ui::setScreenDpi(ui::kReferenceDpi); }
};

TEST_F(DialogLayout, TheControlsStandOneBelowTheOther) {
    const light::DialogLayout layout = light::layOutDialog({0, 0, 208, 438}, true);

    EXPECT_EQ(layout.label, (CRect{10, 4, 198, 24}));
    EXPECT_EQ(layout.list, (CRect{10, 25, 198, 320}));
    EXPECT_EQ(layout.tips, (CRect{10, 328, 198, 428}));
}

TEST_F(DialogLayout, WithoutTheTipsTheListReachesDown) {
    const light::DialogLayout layout = light::layOutDialog({0, 0, 208, 438}, false);

    EXPECT_EQ(layout.list, (CRect{10, 25, 198, 428}));
    EXPECT_EQ(layout.tips, (CRect{10, 436, 198, 536}));
}

TEST_F(DialogLayout, AFrameElsewhereMovesAllControls) {
    const light::DialogLayout layout = light::layOutDialog({100, 50, 308, 488}, true);

    EXPECT_EQ(layout.label, (CRect{110, 54, 298, 74}));
    EXPECT_EQ(layout.list, (CRect{110, 75, 298, 370}));
    EXPECT_EQ(layout.tips, (CRect{110, 378, 298, 478}));
}

TEST_F(DialogLayout, LengthsGrowWithTheResolution) {
    ui::setScreenDpi(192);

    const light::DialogLayout layout = light::layOutDialog({0, 0, 416, 876}, true);

    EXPECT_EQ(layout.label, (CRect{20, 8, 396, 48}));
    EXPECT_EQ(layout.list, (CRect{20, 50, 396, 640}));
    EXPECT_EQ(layout.tips, (CRect{20, 656, 396, 856}));
}

// Each length is rounded for itself: 4, 20 and 1 make 4, 22 and 1 pixels, 25 would make 28.
TEST_F(DialogLayout, OnAFinerScreenTheListBeginsRightBelowTheLabel) {
    ui::setScreenDpi(106);

    const light::DialogLayout layout = light::layOutDialog({0, 0, 260, 600}, true);

    EXPECT_EQ(layout.label.bottom, 26);
    EXPECT_EQ(layout.list.top, 27);
}

TEST_F(DialogLayout, AFrameThatIsTooSmallLeavesTheListEmpty) {
    const light::DialogLayout layout = light::layOutDialog({0, 0, 15, 60}, true);

    EXPECT_TRUE(layout.list.IsRectEmpty());
    EXPECT_EQ(layout.list.Height(), 0);
    EXPECT_EQ(layout.list.Width(), 0);
}

class PaletteLayout : public PaletteTest {
protected:
    PaletteLayout() { show(); }
    ~PaletteLayout() override { ui::setScreenDpi(ui::kReferenceDpi); }
    static void resize(int width, int height) { palette().SetFloatingRect({6, 181, 6 + width, 181 + height}); }
};

TEST_F(PaletteLayout, TheDialogFillsThePalette) {
    EXPECT_EQ(dialog().GetRectInParent(), palette().GetClientRect());
    EXPECT_EQ(list().GetRectInParent(), (CRect{10, 25, 198, 320}));
}

TEST_F(PaletteLayout, TheControlsFollowTheSizeOfThePalette) {
    resize(300, 500);

    EXPECT_EQ(dialog().GetRectInParent(), (CRect{0, 0, 300, 500}));
    EXPECT_EQ(label().GetRectInParent(), (CRect{10, 4, 290, 24}));
    EXPECT_EQ(list().GetRectInParent(), (CRect{10, 25, 290, 382}));
    EXPECT_EQ(tips().GetRectInParent(), (CRect{10, 390, 290, 490}));
}

TEST_F(PaletteLayout, ItCannotBeMadeSmallerThanItsSmallestSize) {
    resize(10, 10);

    EXPECT_EQ(palette().GetClientRect(), (CRect{0, 0, 200, 250}));
}

TEST_F(PaletteLayout, TheListTakesThePlaceOfTheTipsWhileTheyAreHidden) {
    dialog().toggleTips();
    EXPECT_EQ(list().GetRectInParent(), (CRect{10, 25, 198, 428}));
    EXPECT_FALSE(tips().isShown());

    dialog().toggleTips();
    EXPECT_EQ(list().GetRectInParent(), (CRect{10, 25, 198, 320}));
    EXPECT_TRUE(tips().isShown());
}

TEST_F(PaletteLayout, HiddenTipsStayHiddenWhenTheSizeChanges) {
    dialog().toggleTips();

    resize(300, 500);

    EXPECT_EQ(list().GetRectInParent(), (CRect{10, 25, 290, 490}));
    EXPECT_FALSE(tips().isShown());
}

TEST_F(PaletteLayout, HiddenTipsStayHiddenWhenThePaletteIsShownAgain) {
    dialog().toggleTips();

    hide();
    show();

    EXPECT_FALSE(dialog().tipsVisible());
}

TEST_F(PaletteLayout, TipsThatAreHiddenOtherwiseAreShown) {
    tips().ShowWindow(false);

    dialog().toggleTips();

    EXPECT_TRUE(tips().isShown());
    EXPECT_EQ(list().GetRectInParent(), (CRect{10, 25, 198, 320}));
}

// Nobody sees them then.
TEST_F(PaletteLayout, WhileThePaletteIsHiddenItsTipsAreShownRatherThanHidden) {
    hide();
    EXPECT_FALSE(dialog().tipsVisible());

    dialog().toggleTips();
    show();

    EXPECT_TRUE(dialog().tipsVisible());
}

TEST_F(PaletteLayout, WithoutTheLabelNothingIsMoved) {
    label().DestroyWindow();

    resize(300, 500);

    EXPECT_EQ(list().GetRectInParent(), (CRect{10, 25, 198, 320}));
    EXPECT_EQ(tips().GetRectInParent(), (CRect{10, 328, 198, 428}));
}

TEST_F(PaletteLayout, OnTheUsualScreenTheLabelKeepsAnyText) {
    label().SetWindowText(L"Another");

    resize(300, 500);

    EXPECT_EQ(label().GetWindowText(), L"Another");
}

TEST_F(PaletteLayout, OnAFinerScreenTheLabelGetsItsTextAgain) {
    ui::setScreenDpi(144);
    label().SetWindowText(L"Another");

    resize(312, 657);

    EXPECT_EQ(label().GetWindowText(), L"模型空间中的光源");
    EXPECT_EQ(label().GetRectInParent(), (CRect{15, 6, 297, 36}));
}

TEST(PaletteOnAFinerScreen, ItIsAsMuchLarger) {
    ui::setScreenDpi(192);
    {
        const CZrLightList palette;
        CSize least;
        palette.GetMinSize(least);

        EXPECT_EQ(palette.GetFloatingRect(), (CRect{12, 362, 428, 1238}));
        EXPECT_EQ(least, (CSize{400, 500}));
    }
    ui::setScreenDpi(ui::kReferenceDpi);
}

} // namespace
} // namespace quor::test
