#include "light/palette/theme_button.h"

#include "tests/light/palette/drawn_control.h"

namespace quor::light {
namespace {

using testing::ElementsAre;

class ThemedPanel : public DrawnControl {
protected:
    ThemedPanel() { takeOver<CButton>(panel_, {188, 100}, L"Click a light.\nNote."); }

    static ZrString text(const CRect& rect) {
        return ui::lineOf({.kind = ui::DrawingCall::Kind::Text,
                           .rect = rect,
                           .color = themeColor(94),
                           .text = L"Click a light.\nNote.",
                           .format = DT_WORDBREAK | DT_VCENTER});
    }

    ThemeButton panel_;
};

TEST_F(ThemedPanel, DrawsItselfAndTellsOfClicks) { EXPECT_EQ(panel_.GetStyle() & 0x400B, 0x400BU); }

TEST_F(ThemedPanel, BreaksItsTextIntoLines) {
    EXPECT_THAT(draw(panel_), ElementsAre(fill({0, 0, 188, 100}, themeColor(92)), text({3, 0, 188, 100})));
}

TEST_F(ThemedPanel, HasAnIndentOfThreePixelsOnEveryScreen) {
    ui::setScreenDpi(192);

    EXPECT_THAT(draw(panel_), ElementsAre(fill({0, 0, 188, 100}, themeColor(92)), text({3, 0, 188, 100})));
}

TEST_F(ThemedPanel, LooksTheSameWhileItHasTheKeyboard) {
    const std::vector<ZrString> before = draw(panel_);

    panel_.SetFocus();

    EXPECT_EQ(draw(panel_), before);
}

TEST_F(ThemedPanel, FollowsTheThemeFromOnePaintingToTheNext) {
    const std::vector<ZrString> dark = draw(panel_);

    useTheme(1);

    EXPECT_NE(draw(panel_), dark);
    EXPECT_THAT(draw(panel_), ElementsAre(fill({0, 0, 188, 100}, themeColor(92)), text({3, 0, 188, 100})));
}

TEST_F(ThemedPanel, LeavesTheContextOpaque) {
    ui::RecordingDevice device;
    CDC dc(device);

    panel_.dispatchPaint(dc);

    EXPECT_EQ(dc.GetBkMode(), OPAQUE);
}

} // namespace
} // namespace quor::light
