#include "light/palette/theme_header_ctrl.h"

#include "tests/light/palette/drawn_control.h"

namespace quor::light {
namespace {

using testing::ElementsAre;

// 200 pixels wide and 24 high.
class ThemedHeader : public DrawnControl {
protected:
    ThemedHeader() { header_.Create({.parent = &parent_, .id = 2, .style = WS_VISIBLE, .rect = {0, 0, 200, 24}}); }

    static ZrString background(const CRect& rect) { return fill(rect, themeColor(30)); }
    static ZrString separator(const CRect& rect) { return fill(rect, themeColor(55)); }
    static ZrString text(const ZrString& text, const CRect& rect) {
        return ui::lineOf({.kind = ui::DrawingCall::Kind::Text,
                           .rect = rect,
                           .color = themeColor(31),
                           .text = text,
                           .format = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS,
                           .font = ui::Font::DefaultGui});
    }

    ThemeHeaderCtrl header_;
};

TEST_F(ThemedHeader, WithoutItemsIsItsBackground) {
    EXPECT_THAT(draw(header_), ElementsAre(background({0, 0, 200, 24})));
}

TEST_F(ThemedHeader, DrawsEachItemWithASeparatorAtItsRight) {
    header_.InsertItem(0, {.text = L"", .width = 50});
    header_.InsertItem(1, {.text = L"Name", .width = 120});

    EXPECT_THAT(draw(header_),
                ElementsAre(background({0, 0, 200, 24}),                                                       //
                            background({0, 0, 50, 24}), separator({49, 0, 50, 24}), text(L"", {5, 0, 50, 24}), //
                            background({50, 0, 170, 24}), separator({169, 0, 170, 24}),
                            text(L"Name", {55, 0, 170, 24})));
}

TEST_F(ThemedHeader, DrawsAnItemWhereItsOrderPutsIt) {
    header_.InsertItem(0, {.text = L"A", .width = 50});
    header_.InsertItem(1, {.text = L"B", .width = 120});
    header_.SetItem(0, {.text = L"A", .width = 50, .order = 1});

    EXPECT_THAT(draw(header_), testing::IsSupersetOf({text(L"B", {5, 0, 120, 24}), text(L"A", {125, 0, 170, 24})}));
}

TEST_F(ThemedHeader, HasTheSameIndentOnEveryScreen) {
    header_.InsertItem(0, {.text = L"Name", .width = 120});
    ui::setScreenDpi(144);

    EXPECT_THAT(draw(header_), testing::Contains(text(L"Name", {5, 0, 120, 24})));
}

TEST_F(ThemedHeader, ShortensATextThatDoesNotFitWithAnEllipsisAndReadsNoMoreThan255Characters) {
    header_.InsertItem(0, {.text = ZrString(300, L'x'), .width = 120});

    EXPECT_THAT(draw(header_), testing::Contains(text(ZrString(255, L'x'), {5, 0, 120, 24})));
}

TEST_F(ThemedHeader, FollowsTheThemeFromOnePaintingToTheNext) {
    header_.InsertItem(0, {.text = L"Name", .width = 120});
    const std::vector<ZrString> dark = draw(header_);

    useTheme(1);

    EXPECT_NE(draw(header_), dark);
    EXPECT_THAT(draw(header_), ElementsAre(background({0, 0, 200, 24}), background({0, 0, 120, 24}),
                                           separator({119, 0, 120, 24}), text(L"Name", {5, 0, 120, 24})));
}

TEST_F(ThemedHeader, LeavesItsColorsInTheContext) {
    header_.InsertItem(0, {.text = L"Name", .width = 120});
    ui::RecordingDevice device;
    CDC dc(device);

    header_.dispatchPaint(dc);

    EXPECT_EQ(dc.GetTextColor(), themeColor(31));
    EXPECT_EQ(dc.GetBkColor(), themeColor(30));
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
}

TEST_F(ThemedHeader, GivesTheFontBack) {
    header_.InsertItem(0, {.text = L"Name", .width = 120});
    ui::RecordingDevice device;
    CDC dc(device);

    header_.dispatchPaint(dc);

    EXPECT_EQ(dc.SelectFont(ui::Font::Window), ui::Font::Window);
}

// "Name" is 28 pixels wide and 16 high.
class ImageInTheHeader : public ThemedHeader {
protected:
    TwoImages images_;
};

TEST_F(ImageInTheHeader, StandsBehindTheText) {
    header_.SetImageList(images_.get());
    header_.InsertItem(0, {.text = L"Name", .width = 120, .format = HDF_IMAGE, .image = 1});

    EXPECT_EQ(draw(header_).back(), picture(7513, {33, 4, 54, 25}, ILD_TRANSPARENT));
}

TEST_F(ImageInTheHeader, IsNotDrawnForAnItemWithoutTheFlag) {
    header_.SetImageList(images_.get());
    header_.InsertItem(0, {.text = L"Name", .width = 120, .format = HDF_LEFT, .image = 1});

    EXPECT_EQ(draw(header_).back(), text(L"Name", {5, 0, 120, 24}));
}

TEST_F(ImageInTheHeader, IsNotDrawnWithoutAnImageList) {
    header_.InsertItem(0, {.text = L"Name", .width = 120, .format = HDF_IMAGE, .image = 1});

    EXPECT_EQ(draw(header_).back(), text(L"Name", {5, 0, 120, 24}));
}

TEST_F(ImageInTheHeader, IsNotDrawnWhenTheListHasNone) {
    header_.SetImageList(images_.get());
    header_.InsertItem(0, {.text = L"Name", .width = 120, .format = HDF_IMAGE, .image = 2});

    EXPECT_EQ(draw(header_).back(), text(L"Name", {5, 0, 120, 24}));
}

} // namespace
} // namespace quor::light
