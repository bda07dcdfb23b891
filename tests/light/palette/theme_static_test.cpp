#include "light/palette/theme_static.h"

#include "tests/light/palette/drawn_control.h"

namespace quor::light {
namespace {

using testing::ElementsAre;

class ThemedLabel : public DrawnControl {
protected:
    ThemedLabel() { takeOver<CStatic>(label_, {188, 20}, L"Lights"); }

    static ZrString text(const CRect& rect) {
        return ui::lineOf({.kind = ui::DrawingCall::Kind::Text,
                           .rect = rect,
                           .color = themeColor(64),
                           .text = L"Lights",
                           .format = DT_SINGLELINE | DT_VCENTER});
    }

    ThemeStatic label_;
};

TEST_F(ThemedLabel, DrawsItselfAndTellsOfClicks) { EXPECT_EQ(label_.GetStyle() & 0x10D, 0x10DU); }

TEST_F(ThemedLabel, KeepsTheStylesThatItHad) { EXPECT_TRUE(label_.isShown()); }

TEST_F(ThemedLabel, IsOneLineBehindThreePixels) {
    EXPECT_THAT(draw(label_), ElementsAre(fill({0, 0, 188, 20}, themeColor(63)), text({3, 0, 188, 20})));
}

TEST_F(ThemedLabel, HasItsIndentOnTheScreenInUse) {
    ui::setScreenDpi(192);

    EXPECT_THAT(draw(label_), ElementsAre(fill({0, 0, 188, 20}, themeColor(63)), text({6, 0, 188, 20})));
}

TEST_F(ThemedLabel, FollowsTheThemeFromOnePaintingToTheNext) {
    const std::vector<ZrString> dark = draw(label_);

    useTheme(1);

    EXPECT_NE(draw(label_), dark);
    EXPECT_THAT(draw(label_), ElementsAre(fill({0, 0, 188, 20}, themeColor(63)), text({3, 0, 188, 20})));
}

TEST_F(ThemedLabel, LeavesTheContextOpaque) {
    ui::RecordingDevice device;
    CDC dc(device);

    label_.dispatchPaint(dc);

    EXPECT_EQ(dc.GetBkMode(), OPAQUE);
}

} // namespace
} // namespace quor::light
