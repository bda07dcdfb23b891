// The dialog in the palette: its columns, icons and texts, headings, menus and colours.
#include "tests/light/palette/palette_test.h"

#include "host/ui/input.h"
#include "host/ui/painting.h"
#include "host/ui/recording_device.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/system.h"
#include "sdk/ui/ui_service.h"

#include <gmock/gmock.h>

namespace quor::test {
namespace {

using testing::ElementsAre;

constexpr const wchar_t* selectTip = L"单击列表上的光源以在模型中选择它。使用CTRL键进行多重选择。";
constexpr const wchar_t* distantTip = L"注意：平行光和阳光在模型中不作为界面对象显示。";

class LightListDialog : public PaletteTest {
protected:
    LightListDialog() { show(); }
    explicit LightListDialog(const TestSessionOptions& options) : PaletteTest(options) { show(); }

    static const CHeaderCtrl::Item& heading(int column) { return *list().GetHeaderCtrl()->GetItem(column); }
    void makeSome() {
        make(L"B", DrawableType::kDistantLight);
        make(L"C", DrawableType::kPointLight);
        make(L"A", DrawableType::kPointLight);
        make(L"D", DrawableType::kWebLight);
    }
};

TEST_F(LightListDialog, ItHasAColumnForTheIconAndOneForTheName) {
    ASSERT_EQ(list().GetHeaderCtrl()->GetItemCount(), 2);
    EXPECT_EQ(heading(0).text, L"");
    EXPECT_EQ(heading(0).width, 50);
    EXPECT_EQ(heading(1).text, L"光源名称");
    EXPECT_EQ(heading(1).width, 120);
}

TEST_F(LightListDialog, WholeRowsAreSelected) { EXPECT_NE(list().GetExtendedStyle() & LVS_EX_FULLROWSELECT, 0U); }

TEST_F(LightListDialog, ItHasAnIconForEachTypeOfLight) {
    const CImageList* const images = list().GetImageList(LVSIL_SMALL);

    ASSERT_NE(images, nullptr);
    ASSERT_EQ(images->GetImageCount(), 4);
    EXPECT_EQ(images->GetImageSize(), (CSize{21, 21}));
    EXPECT_EQ(images->flags(), ILC_COLOR8 | ILC_MASK);
    EXPECT_EQ(images->picture(0)->id, 7514U);
    EXPECT_EQ(images->picture(1)->id, 7513U);
    EXPECT_EQ(images->picture(2)->id, 7515U);
    EXPECT_EQ(images->picture(3)->id, 7516U);
}

TEST_F(LightListDialog, TheTipsAreTwoSentencesOnTwoLines) {
    EXPECT_EQ(tips().GetWindowText(), ZrString(selectTip) + L"\n" + distantTip);
}

TEST_F(LightListDialog, TheIconColumnOfARowHasNoText) {
    make(L"Lamp");

    EXPECT_EQ(list().GetItemText(0, 0), L"");
    EXPECT_EQ(list().GetItemText(0, 1), L"Lamp");
}

TEST_F(LightListDialog, TheDataOfARowIsItsPlace) {
    makeSome();

    clickHeading(1);

    EXPECT_EQ(list().GetItemData(0), 0);
    EXPECT_EQ(list().GetItemData(1), 1);
    EXPECT_EQ(list().GetItemData(3), 3);
}

// Headings.

TEST_F(LightListDialog, AListThatWasMadeAnewIsSortedByNames) {
    makeSome();
    clickHeading(1);
    ASSERT_EQ(names(), (Names{L"D", L"C", L"B", L"A"}));

    show();

    EXPECT_EQ(names(), (Names{L"A", L"B", L"C", L"D"}));
}

TEST_F(LightListDialog, ClicksOnTheNameHeadingTurnTheOrderRound) {
    makeSome();
    show();

    clickHeading(1);
    EXPECT_EQ(names(), (Names{L"D", L"C", L"B", L"A"}));
    clickHeading(1);

    EXPECT_EQ(names(), (Names{L"A", L"B", L"C", L"D"}));
}

TEST_F(LightListDialog, AClickOnTheIconHeadingSortsByTypeThenByName) {
    makeSome();
    show();

    clickHeading(0);

    EXPECT_EQ(names(), (Names{L"B", L"A", L"C", L"D"}));
}

TEST_F(LightListDialog, AnotherClickOnTheIconHeadingTurnsTheTypesRoundAndKeepsTheNames) {
    makeSome();
    show();

    clickHeading(0);
    clickHeading(0);

    EXPECT_EQ(names(), (Names{L"D", L"A", L"C", L"B"}));
}

TEST_F(LightListDialog, AClickOnAHeadingChangesNoSelection) {
    makeSome();
    click(0);

    clickHeading(1);

    EXPECT_EQ(selectedNames(), Names{L"A"});
    EXPECT_TRUE(isSelected(3));
}

TEST_F(LightListDialog, AListThatWasMadeAnewForgetsTheDirectionOfTheIcons) {
    clickHeading(0);
    ASSERT_TRUE(light::rowOrder.ascending[0]);

    show();

    EXPECT_FALSE(light::rowOrder.ascending[0]);
    EXPECT_TRUE(light::rowOrder.ascending[1]);
}

TEST_F(LightListDialog, ANewLightGoesToItsSortedPlace) {
    makeSome();
    show();
    clickHeading(1);

    make(L"Bulb");

    EXPECT_EQ(names(), (Names{L"D", L"C", L"Bulb", L"B", L"A"}));
}

// What the list may not do.

TEST_F(LightListDialog, NamesAreNotEditedInTheList) {
    make(L"Lamp");
    list().ModifyStyle(0, LVS_EDITLABELS);

    EXPECT_FALSE(list().EditLabel(0));
    EXPECT_EQ(list().editedItem(), -1);
}

TEST_F(LightListDialog, ADoubleClickOnARowShowsItsProperties) {
    make(L"Lamp");

    doubleClick(0);
    runWaiting();

    EXPECT_TRUE(front().shows(L"_properties"));
    EXPECT_TRUE(front().shows(L"Lamp"));
}

TEST_F(LightListDialog, ADoubleClickBesideTheRowsDoesNothing) {
    make(L"Lamp");

    doubleClickBeside();
    runWaiting();

    EXPECT_FALSE(front().shows(L"_properties"));
}

TEST_F(LightListDialog, WhatOtherControlsTellMeansNothing) {
    makeSome();
    show();

    tips().notifyParent({.code = ui::Notification::Code::DoubleClick, .index = 0});
    tips().notifyParent({.code = ui::Notification::Code::ColumnClick, .column = 1});
    tips().notifyParent({.code = ui::Notification::Code::RightClick, .index = 0});
    runWaiting();

    EXPECT_EQ(tips().notifyParent({.code = ui::Notification::Code::BeginMarquee}), 0);
    EXPECT_EQ(names(), (Names{L"A", L"B", L"C", L"D"}));
    EXPECT_FALSE(front().shows(L"_properties"));
    EXPECT_TRUE(front().lastMenu().empty());
}

TEST_F(LightListDialog, ADoubleClickGivesTheKeyboardBackToTheDrawing) {
    make(L"Lamp");

    doubleClick(0);

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

// The menu of the dialog.

TEST_F(LightListDialog, ItsMenuIsShownAtTheCursor) {
    ui::rightClick(dialog(), {2, 2});

    EXPECT_EQ(front().lastMenuPlace(), dialog().ClientToScreen({2, 2}));
}

TEST_F(LightListDialog, TheResourcesInUseAreThoseOfBeforeAfterItsMenu) {
    constexpr ZwUiResources others{};
    const ZwResourceScope inUse(&others);

    ui::rightClick(dialog(), {2, 2});

    EXPECT_EQ(zwGetResourceInstance(), &others);
}

TEST_F(LightListDialog, ARightClickBesideTheControlsOffersTheTips) {
    ui::rightClick(dialog(), {2, 2});

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"[x] 显示提示"));
}

TEST_F(LightListDialog, TheTipsAreUncheckedWhileTheyAreHidden) {
    dialog().toggleTips();

    ui::rightClick(dialog(), {2, 2});

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"显示提示"));
}

TEST_F(LightListDialog, ItsMenuShowsAndHidesTheTips) {
    front().chooseMenu(7512);
    ui::rightClick(dialog(), {2, 2});
    EXPECT_FALSE(dialog().tipsVisible());

    front().chooseMenu(7512);
    ui::rightClick(dialog(), {2, 2});

    EXPECT_TRUE(dialog().tipsVisible());
}

TEST_F(LightListDialog, ARightClickOverTheTipsOffersNothing) {
    ui::rightClick(tips(), {10, 10});

    EXPECT_TRUE(front().lastMenu().empty());
}

TEST_F(LightListDialog, ARightClickOfTheDialogOverTheTipsOffersNothing) {
    const CRect place = tips().GetRectInParent();

    ui::rightClick(dialog(), {place.left + 5, place.top + 5});

    EXPECT_TRUE(front().lastMenu().empty());
}

// The hidden tips reach into the lower edge.
TEST_F(LightListDialog, ARightClickWhereTheTipsAreHiddenOffersThem) {
    dialog().toggleTips();
    const CPoint lowest = {50, dialog().GetClientRect().bottom - 1};
    ASSERT_TRUE(tips().GetRectInParent().PtInRect(lowest));

    ui::rightClick(dialog(), lowest);

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"显示提示"));
}

TEST_F(LightListDialog, AContextMenuMessageIsIgnored) {
    dialog().dispatchContextMenu(&dialog(), {2, 2});

    EXPECT_TRUE(front().lastMenu().empty());
}

TEST_F(LightListDialog, ACommandThatItDoesNotKnowIsNotItsOwn) { EXPECT_EQ(dialog().SendMessage(WM_COMMAND, 4711), 0); }

// Colours.

class LightListColors : public LightListDialog, public testing::WithParamInterface<int> {
protected:
    static COLORREF color(int element) { return CZwSystem::instance().ui().theme().color(element); }
};

TEST_P(LightListColors, TheBackgroundAndTheListHaveThoseOfTheTheme) {
    zwutads::setVar(L"COLORTHEME", static_cast<short>(GetParam()));
    ui::RecordingDevice device;

    ui::paint(dialog(), device);

    ASSERT_FALSE(device.calls().empty());
    EXPECT_EQ(device.calls().front().kind, ui::DrawingCall::Kind::Fill);
    EXPECT_EQ(device.calls().front().rect, dialog().GetClientRect());
    EXPECT_EQ(device.calls().front().color, color(84));
    EXPECT_EQ(list().GetBkColor(), color(34));
    EXPECT_EQ(list().GetTextColor(), color(94));
}

INSTANTIATE_TEST_SUITE_P(Themes, LightListColors, testing::Values(0, 1));

TEST_F(LightListDialog, AnotherThemeIsShownWithTheNextPainting) {
    ui::RecordingDevice device;
    ui::paint(palette(), device);
    ASSERT_FALSE(dialog().needsPaint());
    short theme = 0;
    ASSERT_TRUE(zwutads::getVar(L"COLORTHEME", theme));

    zwutads::setVar(L"COLORTHEME", theme == 1 ? 0 : 1);

    EXPECT_TRUE(dialog().needsPaint());
    EXPECT_TRUE(list().needsPaint());
}

TEST_F(LightListDialog, OncePaintedItNeedsNoPaint) {
    makeSome();
    ui::RecordingDevice device;

    ui::paint(palette(), device);

    EXPECT_FALSE(dialog().needsPaint());
    EXPECT_FALSE(list().needsPaint());
}

class LightListDialogInEnglish : public LightListDialog {
protected:
    LightListDialogInEnglish() : LightListDialog({.language = L"en"}) {}
};

TEST_F(LightListDialogInEnglish, ItsTextsAreEnglish) {
    EXPECT_EQ(palette().GetName(), L"Lights in Model");
    EXPECT_EQ(heading(1).text, L"Light Name");
    EXPECT_EQ(label().GetWindowText(), L"Lights in model space");
    EXPECT_EQ(tips().GetWindowText(), L"Click a light in the list to select it in the model. Hold down the CTRL key to "
                                      L"select more than one. \nNote: distant lights and the sun are not shown as "
                                      L"objects in the model.");
}

} // namespace
} // namespace quor::test
