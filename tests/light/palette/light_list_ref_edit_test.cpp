// The list while a block is edited in place: it has the lights of the working set, from the command that begins it to
// the one that ends it.
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

constexpr const wchar_t* luminaires = L"" QUOR_TEST_DATA "/dxf/own/luminaires.dxf";

// Of the drawing, and of the block that the reference 60 shows.
const Names ofDrawing = {L"Ceiling"};
const Names ofBlock = {L"Pendant", L"Spot"};

class LightListRefEdit : public ShownPaletteTest {
protected:
    LightListRefEdit() { type({L"OPEN", luminaires, L"DEFAULTLIGHTING", L"0"}); }
    void edit() { type({L"REFEDIT", L"#60", L""}); }
};

TEST_F(LightListRefEdit, HasTheWorkingSetOnceItBegan) {
    ASSERT_EQ(names(), ofDrawing);

    edit();

    EXPECT_EQ(names(), ofBlock);
}

TEST_F(LightListRefEdit, HasTheLightsOfTheDrawingOnceItsChangesAreGivenUp) {
    edit();

    type({L"REFCLOSE", L"D"});

    EXPECT_EQ(names(), ofDrawing);
}

TEST_F(LightListRefEdit, HasTheLightsOfTheDrawingOnceItsChangesAreSaved) {
    edit();

    type({L"REFCLOSE", L"S"});

    EXPECT_EQ(names(), ofDrawing);
}

TEST_F(LightListRefEdit, FollowsUndoAndRedoOfItsBeginning) {
    edit();

    type({L"U"});
    EXPECT_EQ(names(), ofDrawing);
    type({L"REDO", L""});

    EXPECT_EQ(names(), ofBlock);
}

TEST_F(LightListRefEdit, FollowsUndoAndRedoOfItsEnd) {
    edit();
    type({L"REFCLOSE", L"D"});

    type({L"U"});
    EXPECT_EQ(names(), ofBlock);
    type({L"REDO", L""});

    EXPECT_EQ(names(), ofDrawing);
}

TEST_F(LightListRefEdit, HasTheLightsThatAreDrawnMeanwhile) {
    edit();

    type({L"POINTLIGHT", L"1,2,3", L"N", L"New", L"X"});

    EXPECT_EQ(names(), (Names{L"New", L"Pendant", L"Spot"}));
}

TEST_F(LightListRefEdit, SelectsNothingThatIsNotSelectedInTheDrawing) {
    click(0);

    edit();

    EXPECT_EQ(selectedNames().size(), selectedInDrawing().size());
}

TEST_F(LightListRefEdit, IsEmptiedWhileItIsHidden) {
    hide();

    edit();

    EXPECT_TRUE(names().empty());
}

TEST_F(LightListRefEdit, HasTheWorkingSetWhenItIsShownThen) {
    hide();
    edit();

    show();

    EXPECT_EQ(names(), ofBlock);
}

} // namespace
} // namespace quor::test
