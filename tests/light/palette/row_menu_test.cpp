// The menu of the rows: what it offers, and what its commands do.
#include "tests/light/palette/palette_test.h"

#include "light/palette/row_menu.h"
#include "light/res/ui_resources.h"
#include "sdk/ui/menu.h"

#include <gmock/gmock.h>

namespace quor::test {
namespace {

using Ids = std::vector<ZrDbObjectId>;
using testing::ElementsAre;

class RowMenu : public PaletteTest {
protected:
    RowMenu() {
        show();
        sun_ = make(L"A sun", DrawableType::kDistantLight);
        lamp_ = make(L"B lamp");
        spot_ = make(L"C spot", DrawableType::kSpotLight);
    }
    void choose(unsigned command, int row) {
        front().chooseMenu(command);
        rightClick(row);
    }

    ZrDbObjectId sun_, lamp_, spot_;
};

TEST_F(RowMenu, ItOffersToEraseToShowPropertiesAndTheGlyphDisplay) {
    rightClick(1);

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"删除", L"特性", L"轮廓显示", L"  [x] 自动", L"  开", L"  关"));
}

TEST_F(RowMenu, TheGlyphDisplayOfTheLightIsChecked) {
    asCommand([&] { ZrDbObjectPointer<ZrDbLight>(lamp_, ZrDb::kForWrite)->setGlyphDisplay(GlyphDisplay::kOff); });

    rightClick(1);

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"删除", L"特性", L"轮廓显示", L"  自动", L"  开", L"  [x] 关"));
}

TEST_F(RowMenu, ADistantLightHasNoGlyphDisplay) {
    rightClick(0);

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"删除", L"特性"));
}

TEST_F(RowMenu, SeveralLightsHaveNoGlyphDisplay) {
    click(1);
    click(2, MK_CONTROL);

    rightClick(2);

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"删除", L"特性"));
}

TEST_F(RowMenu, ALightThatCannotBeOpenedKeepsTheGlyphDisplayUnchecked) {
    const ZrDbObjectPointer<ZrDbLight> writer(lamp_, ZrDb::kForWrite);

    rightClick(1);

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"删除", L"特性", L"轮廓显示", L"  自动", L"  开", L"  关"));
}

TEST_F(RowMenu, ARightClickBesideTheRowsShowsNone) {
    click(1);

    rightClickBeside();

    EXPECT_TRUE(front().lastMenu().empty());
    EXPECT_EQ(selectedInDrawing(), Ids{lamp_});
}

TEST_F(RowMenu, ARightClickSelectsTheLightInTheDrawing) {
    rightClick(1);

    EXPECT_EQ(selectedInDrawing(), Ids{lamp_});
    EXPECT_EQ(selectedNames(), Names{L"B lamp"});
    EXPECT_EQ(list().GetSelectionMark(), 1);
}

TEST_F(RowMenu, ARightClickOnOneOfSeveralSelectsThemFromTheLastToTheFirst) {
    click(0);
    click(2, MK_SHIFT);

    rightClick(1);

    EXPECT_EQ(selectedInDrawing(), (Ids{spot_, lamp_, sun_}));
    EXPECT_EQ(list().GetSelectionMark(), 1);
}

TEST_F(RowMenu, TheMarkGoesToTheRowThatTheListTells) {
    list().SetSelectionMark(0);

    list().notifyParent({.code = ui::Notification::Code::RightClick, .index = 1});

    EXPECT_EQ(list().GetSelectionMark(), 1);
}

TEST_F(RowMenu, ARightClickOnARowThatIsNotSelectedSelectsItAlone) {
    click(0);
    click(1, MK_CONTROL);

    rightClick(2);

    EXPECT_EQ(selectedInDrawing(), Ids{spot_});
}

TEST_F(RowMenu, NothingHappensWhenNothingIsChosen) {
    rightClick(1);
    runWaiting();

    EXPECT_EQ(names(), (Names{L"A sun", L"B lamp", L"C spot"}));
    EXPECT_EQ(glyphDisplay(lamp_), GlyphDisplay::kAutomatic);
}

TEST_F(RowMenu, DeleteErasesTheSelectedLights) {
    click(0);
    click(1, MK_CONTROL);
    choose(7507, 1);

    runWaiting();

    EXPECT_EQ(names(), Names{L"C spot"});
    EXPECT_TRUE(front().shows(L"ERASE"));
}

TEST_F(RowMenu, PropertiesRunsTheHostsCommandOnTheSelectedLights) {
    choose(7508, 1);

    runWaiting();

    EXPECT_TRUE(front().shows(L"_properties"));
    EXPECT_TRUE(front().shows(L"B lamp"));
}

TEST_F(RowMenu, TheResourcesInUseAreThoseOfBeforeAfterwards) {
    constexpr ZwUiResources others{};
    const ZwResourceScope inUse(&others);

    rightClick(1);

    EXPECT_EQ(zwGetResourceInstance(), &others);
}

TEST_F(RowMenu, ItIsShownAtTheCursor) {
    rightClick(1);

    EXPECT_EQ(front().lastMenuPlace(), GetCursorPos());
    EXPECT_NE(front().lastMenuPlace(), CPoint());
}

TEST_F(RowMenu, TheLightsAreSelectedInTheDrawingBeforeItIsShown) {
    Ids during;
    front().whenMenuShown([&] { during = selectedInDrawing(); });

    rightClick(1);

    EXPECT_EQ(during, Ids{lamp_});
}

// The row that the menu is for has the mark, selected or not.

TEST_F(RowMenu, TheGlyphDisplayThatIsCheckedIsThatOfTheMarkedRow) {
    asCommand([&] { ZrDbObjectPointer<ZrDbLight>(lamp_, ZrDb::kForWrite)->setGlyphDisplay(GlyphDisplay::kOff); });
    click(2);

    list().notifyParent({.code = ui::Notification::Code::RightClick, .index = 1});

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"删除", L"特性", L"轮廓显示", L"  自动", L"  开", L"  [x] 关"));
}

TEST_F(RowMenu, WhetherThereIsAGlyphIsAskedOfTheMarkedRow) {
    click(2);
    list().notifyParent({.code = ui::Notification::Code::RightClick, .index = 0});
    EXPECT_THAT(front().lastMenu(), ElementsAre(L"删除", L"特性"));

    click(0);
    list().notifyParent({.code = ui::Notification::Code::RightClick, .index = 2});

    EXPECT_EQ(front().lastMenu().size(), 6U);
}

TEST_F(RowMenu, AGlyphCommandReachesTheMarkedRow) {
    click(2);
    list().SetSelectionMark(1);

    dialog().SendMessage(WM_COMMAND, 7510);

    EXPECT_EQ(glyphDisplay(lamp_), GlyphDisplay::kOn);
    EXPECT_EQ(glyphDisplay(spot_), GlyphDisplay::kAutomatic);
}

// Its name stands for no light any more.
TEST_F(RowMenu, ARowWhoseTwinIsGoneStandsForNoLight) {
    const ZrDbObjectId second = make(L"B lamp");
    erase(second);
    ASSERT_EQ(names(), (Names{L"A sun", L"B lamp", L"C spot"}));

    click(1);
    EXPECT_TRUE(selectedInDrawing().empty());
    choose(7510, 1);

    EXPECT_THAT(front().lastMenu(), ElementsAre(L"删除", L"特性", L"轮廓显示", L"  自动", L"  开", L"  关"));
    EXPECT_TRUE(selectedInDrawing().empty());
    EXPECT_EQ(glyphDisplay(lamp_), GlyphDisplay::kAutomatic);
    EXPECT_EQ(glyphDisplay(spot_), GlyphDisplay::kAutomatic);
}

TEST_F(RowMenu, WithoutResourcesThereIsNoMenu) {
    CMenu menu;

    EXPECT_FALSE(light::loadRowMenu(menu, lamp_, 1));
}

struct GlyphCommand {
    unsigned command;
    GlyphDisplay before;
    GlyphDisplay after;
};

class RowMenuGlyph : public RowMenu, public testing::WithParamInterface<GlyphCommand> {
protected:
    RowMenuGlyph() {
        asCommand([&] { ZrDbObjectPointer<ZrDbLight>(lamp_, ZrDb::kForWrite)->setGlyphDisplay(GetParam().before); });
    }
};

TEST_P(RowMenuGlyph, ItsCommandSetsTheGlyphDisplayOfTheMarkedLight) {
    choose(GetParam().command, 1);

    EXPECT_EQ(glyphDisplay(lamp_), GetParam().after);
    EXPECT_EQ(glyphDisplay(spot_), GlyphDisplay::kAutomatic);
}

TEST_P(RowMenuGlyph, ItIsOneStepOfUndo) {
    choose(GetParam().command, 1);

    type({L"U"});

    EXPECT_EQ(glyphDisplay(lamp_), GetParam().before);
}

TEST_P(RowMenuGlyph, NothingChangesWhileTheDrawingIsLocked) {
    ZrApDocument& document = *zrapDocManager()->curDocument();
    ASSERT_EQ(zrapDocManager()->lockDocument(document), Quor::eOk);

    choose(GetParam().command, 1);

    EXPECT_EQ(glyphDisplay(lamp_), GetParam().before);
    zrapDocManager()->unlockDocument(document);
}

TEST_P(RowMenuGlyph, TheDrawingIsNotLockedAfterwards) {
    choose(GetParam().command, 1);

    EXPECT_EQ(zrapDocManager()->lockDocument(*zrapDocManager()->curDocument()), Quor::eOk);
    zrapDocManager()->unlockDocument(*zrapDocManager()->curDocument());
}

INSTANTIATE_TEST_SUITE_P(All, RowMenuGlyph,
                         testing::Values(GlyphCommand{7509, GlyphDisplay::kOn, GlyphDisplay::kAutomatic},
                                         GlyphCommand{7510, GlyphDisplay::kOff, GlyphDisplay::kOn},
                                         GlyphCommand{7511, GlyphDisplay::kAutomatic, GlyphDisplay::kOff}),
                         [](const auto& info) { return "Command" + std::to_string(info.param.command); });

TEST_F(RowMenu, ALightThatIsOpenKeepsItsGlyphDisplay) {
    {
        const ZrDbObjectPointer<ZrDbLight> reader(lamp_, ZrDb::kForRead);
        choose(7510, 1);
    }

    EXPECT_EQ(glyphDisplay(lamp_), GlyphDisplay::kAutomatic);
}

TEST_F(RowMenu, AGlyphCommandWithoutAMarkedRowChangesNothing) {
    list().SetSelectionMark(-1);

    dialog().SendMessage(WM_COMMAND, 7510);

    EXPECT_EQ(glyphDisplay(lamp_), GlyphDisplay::kAutomatic);
}

TEST_F(RowMenu, AGlyphCommandOfTwoLightsOfOneNameReachesTheOneOfTheName) {
    const ZrDbObjectId second = make(L"B lamp");

    choose(7510, 1);

    EXPECT_EQ(glyphDisplay(lamp_), GlyphDisplay::kAutomatic);
    EXPECT_EQ(glyphDisplay(second), GlyphDisplay::kOn);
}

// Listens to what is announced beside the commands, and looks at the light then.
class Announcements : public ZrApDocumentReactor {
public:
    explicit Announcements(std::function<ZrString()> state) : state_(std::move(state)) {
        zrapDocManager()->addReactor(this);
    }
    ~Announcements() override { zrapDocManager()->removeReactor(this); }
    void modelessOperationWillStart(const ZrString&) override { heard.push_back(L"start " + state_()); }
    void modelessOperationEnded(const ZrString&) override { heard.push_back(L"end " + state_()); }

    Names heard;

private:
    std::function<ZrString()> state_;
};

TEST_F(RowMenu, TheChangeOfAGlyphDisplayIsAnnouncedAroundIt) {
    Announcements announcements([&] { return glyphDisplay(lamp_) == GlyphDisplay::kOn ? L"on" : L"automatic"; });

    choose(7510, 1);

    EXPECT_THAT(announcements.heard, ElementsAre(L"start automatic", L"end on"));
}

TEST_F(RowMenu, TheChangeOfAGlyphDisplayIsShownBeforeItsEndIsAnnounced) {
    std::vector<int> redraws;
    const Announcements announcements([&] {
        redraws.push_back(front().redraws());
        return ZrString();
    });
    list().SetSelectionMark(1);

    dialog().SendMessage(WM_COMMAND, 7510);

    // The drawing's picture and the display.
    ASSERT_EQ(redraws.size(), 2U);
    EXPECT_EQ(redraws[1], redraws[0] + 2);
    EXPECT_EQ(front().redraws(), redraws[1]);
}

// Whoever is told of the start may still change what the row stands for.
TEST_F(RowMenu, TheLightOfAGlyphCommandIsLookedUpOnceItsStartWasAnnounced) {
    const Announcements announcements([&] {
        list().SetSelectionMark(2);
        return ZrString();
    });
    list().SetSelectionMark(1);

    dialog().SendMessage(WM_COMMAND, 7510);

    EXPECT_EQ(glyphDisplay(lamp_), GlyphDisplay::kAutomatic);
    EXPECT_EQ(glyphDisplay(spot_), GlyphDisplay::kOn);
}

class RowMenuInEnglish : public PaletteTest {
protected:
    RowMenuInEnglish() : PaletteTest({.language = L"en"}) { show(); }
};

TEST_F(RowMenuInEnglish, ItsEntriesAreEnglish) {
    make(L"Lamp");

    rightClick(0);

    EXPECT_THAT(front().lastMenu(),
                ElementsAre(L"Delete", L"Properties", L"Glyph Display", L"  [x] Automatic", L"  On", L"  Off"));
}

} // namespace
} // namespace quor::test
