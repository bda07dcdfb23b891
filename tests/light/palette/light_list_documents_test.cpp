// The list when another drawing becomes the current one.
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

class LightListDocuments : public PaletteTest {
protected:
    LightListDocuments() {
        show();
        make(L"First drawing");
    }
    [[nodiscard]] DocumentManager& documents() { return session_.session().documents(); }
    void backToFirst() { documents().setCurrent(documents().all().front().get()); }
};

TEST_F(LightListDocuments, AShownListIsMadeAnewForTheOtherDrawing) {
    type({L"NEW"});
    EXPECT_TRUE(names().empty());
    make(L"Second drawing");

    backToFirst();

    EXPECT_EQ(names(), Names{L"First drawing"});
}

TEST_F(LightListDocuments, AHiddenListIsEmptied) {
    type({L"NEW"});
    make(L"Second drawing");
    hide();

    backToFirst();

    EXPECT_TRUE(names().empty());
}

TEST_F(LightListDocuments, AListThatIsShownAgainHasTheLightsOfTheCurrentDrawing) {
    hide();
    type({L"NEW"});
    make(L"Second drawing");

    show();

    EXPECT_EQ(names(), Names{L"Second drawing"});
}

TEST_F(LightListDocuments, ClosingTheCurrentDrawingShowsTheNextOne) {
    documents().newDocument();

    documents().close(*documents().current());

    EXPECT_EQ(names(), Names{L"First drawing"});
}

// Each drawing has a selection of its own.

TEST_F(LightListDocuments, TheLightsThatAreSelectedInADrawingAreSelectedWhenItIsCurrentAgain) {
    make(L"Second light");
    click(0);
    documents().newDocument();
    EXPECT_TRUE(selectedInDrawing().empty());

    backToFirst();

    EXPECT_EQ(selectedInDrawing().size(), 1U);
    EXPECT_EQ(selectedNames(), Names{L"First drawing"});
}

TEST_F(LightListDocuments, AClickWithCtrlAddsToWhatWasSelectedBeforeTheDrawingWasLeft) {
    make(L"Second light");
    click(0);
    documents().newDocument();
    backToFirst();

    click(1, MK_CONTROL);

    EXPECT_EQ(selectedInDrawing().size(), 2U);
}

TEST_F(LightListDocuments, WithoutADrawingTheListIsEmpty) {
    documents().close(*documents().current());

    EXPECT_TRUE(names().empty());
}

TEST_F(LightListDocuments, WithoutADrawingTheOrderOfTheRowsStays) {
    clickHeading(0);
    documents().close(*documents().current());

    show();

    EXPECT_EQ(light::rowOrder.column, 0);
    EXPECT_TRUE(light::rowOrder.ascending[0]);
    EXPECT_TRUE(light::rowOrder.ascending[1]);
}

TEST_F(LightListDocuments, WithoutADrawingWhatAPersonDoesIsHarmless) {
    documents().close(*documents().current());

    clickBeside();
    rightClickBeside();
    dialog().SendMessage(WM_COMMAND, 7510);
    press(VK_DELETE);
    runWaiting();

    EXPECT_TRUE(names().empty());
}

TEST_F(LightListDocuments, WithoutADrawingAShownListStaysShown) {
    documents().close(*documents().current());

    EXPECT_EQ(lightListState(), 1);
}

} // namespace
} // namespace quor::test
