// Which lights get a row, and when: what the palette makes of what happens in the drawing.
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

constexpr const wchar_t* everyKind = L"" QUOR_TEST_DATA "/dxf/own/every_kind.dxf";
constexpr const wchar_t* luminaires = L"" QUOR_TEST_DATA "/dxf/own/luminaires.dxf"; // has a block LAMP

using LightList = ShownPaletteTest;

TEST_F(LightList, ALightIsListedAtTheEndOfTheCommandThatMadeIt) {
    Names during;
    asCommand([&] {
        type({L"POINTLIGHT", L"1,2,3", L"N", L"Lamp", L"X"});
        during = names();
    });

    EXPECT_TRUE(during.empty());
    EXPECT_EQ(names(), Names{L"Lamp"});
}

TEST_F(LightList, SeveralLightsOfOneCommandAreAllListed) {
    asCommand([&] {
        type({L"POINTLIGHT", L"1,2,3", L"N", L"C", L"X"});
        type({L"POINTLIGHT", L"1,2,3", L"N", L"A", L"X"});
        type({L"POINTLIGHT", L"1,2,3", L"N", L"B", L"X"});
    });

    EXPECT_EQ(names(), (Names{L"A", L"B", L"C"}));
}

TEST_F(LightList, ALightThatWasGivenUpIsNotListed) {
    type({L"POINTLIGHT", L"1,2,3", L"N", L"Lamp", L"^C"});

    EXPECT_TRUE(names().empty());
}

TEST_F(LightList, TheLetterCaseOfTheLayerDoesNotMatter) {
    make({.name = L"Lamp", .layer = L"adsk_System_Lights"});

    EXPECT_EQ(names(), Names{L"Lamp"});
}

TEST_F(LightList, ALightOnAnotherLayerIsNotAdded) {
    make({.name = L"Lamp", .layer = L"LAMPS", .hiddenLayer = false});
    make({.name = L"Hidden lamp", .layer = L"LAMPS OF OTHERS"});

    EXPECT_TRUE(names().empty());
}

TEST_F(LightList, ALightOnAVisibleLayerOfThatNameIsNotAdded) {
    make({.name = L"Lamp", .layer = L"ADSK_SYSTEM_LIGHTS", .hiddenLayer = false});

    EXPECT_TRUE(names().empty());
}

TEST_F(LightList, MakingTheListAnewLooksAtNoLayer) {
    make({.name = L"Lamp", .layer = L"ADSK_SYSTEM_LIGHTS", .hiddenLayer = false});
    make({.name = L"Another", .layer = L"LAMPS", .hiddenLayer = false});

    show();

    EXPECT_EQ(names(), (Names{L"Another", L"Lamp"}));
}

TEST_F(LightList, ALightInPaperSpaceIsNotAddedWhileModelSpaceIsCurrent) {
    make({.name = L"Lamp", .space = L"*Paper_Space"});

    EXPECT_TRUE(names().empty());
}

TEST_F(LightList, ALightInABlockIsNotAddedWhileModelSpaceIsCurrent) {
    type({L"OPEN", luminaires});
    dialog().clearList();

    const ZrDbObjectId lamp = make({.name = L"Lamp", .space = L"LAMP"});
    erase(lamp);
    erase(lamp, false);

    EXPECT_TRUE(names().empty());
}

TEST_F(LightList, ALightInModelSpaceIsNotAddedWhilePaperSpaceIsCurrent) {
    type({L"TILEMODE", L"0"});

    make({.name = L"Lamp", .space = L"*Model_Space"});

    EXPECT_TRUE(names().empty());
}

TEST_F(LightList, ALightInPaperSpaceIsAddedWhilePaperSpaceIsCurrent) {
    type({L"TILEMODE", L"0"});

    make(L"Lamp");

    EXPECT_EQ(names(), Names{L"Lamp"});
}

TEST_F(LightList, MakingTheListAnewLooksAtModelSpaceAlone) {
    make(L"Model");
    type({L"TILEMODE", L"0"});
    make(L"Paper");

    show();

    EXPECT_EQ(names(), Names{L"Model"});
}

TEST_F(LightList, WhatIsNoLightIsNotAdded) {
    type({L"LINE", L"0,0,0", L"1,1,1", L""});

    EXPECT_TRUE(names().empty());
}

TEST_F(LightList, ALightOfADerivedClassIsAdded) {
    make({.name = L"Derived"}, std::make_unique<DerivedLight>());

    EXPECT_EQ(names(), Names{L"Derived"});
}

TEST_F(LightList, ALightOfADerivedClassIsLeftOutWhenTheListIsMadeAnew) {
    make({.name = L"Derived"}, std::make_unique<DerivedLight>());
    make(L"Lamp");

    show();

    EXPECT_EQ(names(), Names{L"Lamp"});
}

TEST_F(LightList, ErasingALightTakesItsRowAwayAtOnce) {
    make(L"Stays");
    const ZrDbObjectId lamp = make(L"Lamp");
    Names during;

    asCommand([&] {
        ZrDbObjectPointer<ZrDbLight>(lamp, ZrDb::kForWrite)->erase();
        during = names();
    });

    EXPECT_EQ(during, Names{L"Stays"});
    EXPECT_EQ(names(), Names{L"Stays"});
}

TEST_F(LightList, UnerasingALightBringsItsRowBackAtOnce) {
    make(L"Stays");
    const ZrDbObjectId lamp = make(L"Lamp");
    erase(lamp);
    Names during;

    asCommand([&] {
        ZrDbObjectPointer<ZrDbLight>(lamp, ZrDb::kForWrite, true)->erase(false);
        during = names();
    });

    EXPECT_EQ(during, (Names{L"Lamp", L"Stays"}));
    EXPECT_EQ(names(), (Names{L"Lamp", L"Stays"}));
}

TEST_F(LightList, ErasingALightThatHasNoRowChangesNothing) {
    make(L"Stays");
    const ZrDbObjectId lamp = make({.name = L"Lamp", .space = L"*Paper_Space"});

    erase(lamp);

    EXPECT_EQ(names(), Names{L"Stays"});
}

TEST_F(LightList, UndoOfAnEraseBringsTheRowBack) {
    const ZrDbObjectId lamp = make(L"Lamp");
    erase(lamp);

    type({L"U"});

    EXPECT_EQ(names(), Names{L"Lamp"});
}

TEST_F(LightList, RedoOfAnEraseTakesTheRowAway) {
    const ZrDbObjectId lamp = make(L"Lamp");
    erase(lamp);

    type({L"U", L"REDO", L""});

    EXPECT_TRUE(names().empty());
}

TEST_F(LightList, UndoOfACommandTakesTheRowOfItsLightAway) {
    type({L"POINTLIGHT", L"1,2,3", L"N", L"Lamp", L"X"});
    ASSERT_EQ(names(), Names{L"Lamp"});

    type({L"U"});

    EXPECT_TRUE(names().empty());
}

TEST_F(LightList, RedoOfACommandBringsTheRowOfItsLightBack) {
    type({L"POINTLIGHT", L"1,2,3", L"N", L"Lamp", L"X"});

    type({L"U", L"REDO", L""});

    EXPECT_EQ(names(), Names{L"Lamp"});
}

TEST_F(LightList, ARenamedLightHasItsNewNameAtTheEndOfTheCommand) {
    const ZrDbObjectId lamp = make(L"Lamp");
    Names during;

    asCommand([&] {
        ZrDbObjectPointer<ZrDbLight>(lamp, ZrDb::kForWrite)->setName(L"Torch");
        during = names();
    });

    EXPECT_EQ(during, Names{L"Lamp"});
    EXPECT_EQ(names(), Names{L"Torch"});
}

TEST_F(LightList, UndoAndRedoOfARenameAreFollowed) {
    const ZrDbObjectId lamp = make(L"Lamp");
    rename(lamp, L"Torch");

    type({L"U"});
    EXPECT_EQ(names(), Names{L"Lamp"});
    type({L"REDO", L""});

    EXPECT_EQ(names(), Names{L"Torch"});
}

TEST_F(LightList, ALightOfAnotherTypeHasAnotherIcon) {
    const ZrDbObjectId lamp = make(L"Lamp");

    setType(lamp, DrawableType::kSpotLight);

    EXPECT_EQ(images(), std::vector<int>{2});
}

TEST_F(LightList, EachTypeHasItsIcon) {
    make(L"A", DrawableType::kDistantLight);
    make(L"B", DrawableType::kPointLight);
    make(L"C", DrawableType::kSpotLight);
    make(L"D", DrawableType::kWebLight);

    EXPECT_EQ(images(), (std::vector<int>{0, 1, 2, 3}));
}

TEST_F(LightList, TwoLightsOfOneNameHaveARowEach) {
    make(L"Twin");
    make({.name = L"Twin", .type = DrawableType::kSpotLight});

    EXPECT_EQ(names(), (Names{L"Twin", L"Twin"}));
}

TEST_F(LightList, LightsThatComeWithADrawingAreListedWhenTheListIsMadeAnew) {
    type({L"OPEN", everyKind});

    EXPECT_FALSE(names().empty());
}

TEST(LightListHidden, WhatHappensBeforeItWasShownIsHarmless) {
    TestSession session;
    CZrLightList palette;

    palette.impliedSelectionChanged();
    palette.commandStarting();
    palette.commandFinished();
    palette.documentBecameCurrent(nullptr);
    palette.lightChangedNow(nullptr, nullptr);

    EXPECT_EQ(palette.dialog(), nullptr);
}

} // namespace
} // namespace quor::test
