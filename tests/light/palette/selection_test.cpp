// The list and the drawing's pick-first selection follow each other.
#include "tests/light/palette/palette_test.h"

#include "sdk/db/database.h"

namespace quor::test {
namespace {

using Ids = std::vector<ZrDbObjectId>;

class ListSelection : public PaletteTest {
protected:
    ListSelection() {
        show();
        c_ = make(L"C");
        a_ = make(L"A");
        b_ = make(L"B");
        d_ = make(L"D");
    }
    ZrDbObjectId line() {
        type({L"LINE", L"0,0,0", L"1,1,1", L""});
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
        ZrDbObjectId last;
        for (const auto at = space->newIterator(); !at->done(); at->step())
            last = at->entityId();
        return last;
    }

    ZrDbObjectId a_, b_, c_, d_;
};

// Counts the changes of what a window holds.
class CountingPeer final : public ui::WindowPeer {
public:
    explicit CountingPeer(int& changes) : changes_(changes) {}
    void changed(CWnd&, Change change) override { changes_ += change == Change::Content ? 1 : 0; }

private:
    int& changes_;
};

// From the list to the drawing.

TEST_F(ListSelection, AClickSelectsTheLightInTheDrawing) {
    click(1);

    EXPECT_EQ(selectedInDrawing(), Ids{b_});
    EXPECT_EQ(selectedNames(), Names{L"B"});
}

TEST_F(ListSelection, AnotherClickSelectsTheOtherLightInstead) {
    click(1);

    click(3);

    EXPECT_EQ(selectedInDrawing(), Ids{d_});
}

TEST_F(ListSelection, AClickWithCtrlAddsALight) {
    click(2);

    click(0, MK_CONTROL);

    EXPECT_EQ(selectedInDrawing(), (Ids{a_, c_}));
}

TEST_F(ListSelection, AClickWithCtrlOnASelectedRowTakesItsLightOut) {
    click(2);
    click(0, MK_CONTROL);

    click(2, MK_CONTROL);

    EXPECT_EQ(selectedInDrawing(), Ids{a_});
}

TEST_F(ListSelection, AClickWithCtrlOnTheOnlySelectedRowLeavesNothingSelected) {
    click(2);

    click(2, MK_CONTROL);

    EXPECT_TRUE(selectedInDrawing().empty());
}

TEST_F(ListSelection, AClickWithShiftSelectsAllUpToIt) {
    click(1);

    click(3, MK_SHIFT);

    EXPECT_EQ(selectedInDrawing(), (Ids{b_, c_, d_}));
}

TEST_F(ListSelection, LightsAreSelectedInTheOrderOfTheList) {
    click(3);

    click(0, MK_SHIFT);

    EXPECT_EQ(selectedInDrawing(), (Ids{a_, b_, c_, d_}));
}

TEST_F(ListSelection, AClickBesideTheRowsChangesNothing) {
    click(1);

    clickBeside();

    EXPECT_EQ(selectedInDrawing(), Ids{b_});
    EXPECT_EQ(selectedNames(), Names{L"B"});
}

TEST_F(ListSelection, AClickBesideTheRowsLeavesOtherObjectsSelected) {
    const ZrDbObjectId other = line();
    selectInDrawing({other, b_});

    clickBeside();

    EXPECT_EQ(selectedInDrawing(), (Ids{other, b_}));
}

TEST_F(ListSelection, AClickReplacesWhatElseWasSelectedInTheDrawing) {
    selectInDrawing({line()});

    click(0);

    EXPECT_EQ(selectedInDrawing(), Ids{a_});
}

TEST_F(ListSelection, BothRowsOfANameStandForTheLightThatWasEnteredLast) {
    const ZrDbObjectId second = make(L"A");

    click(0);
    EXPECT_EQ(selectedInDrawing(), Ids{second});
    click(1);
    EXPECT_EQ(selectedInDrawing(), Ids{second});
    click(0, MK_SHIFT);

    EXPECT_EQ(selectedInDrawing(), Ids{second});
}

TEST_F(ListSelection, SpaceAndPageKeysSelectLikeAClick) {
    click(0);

    press(VK_END);

    EXPECT_EQ(selectedInDrawing(), Ids{d_});
    EXPECT_EQ(selectedNames(), Names{L"D"});
}

TEST_F(ListSelection, AClickShowsTheChange) {
    const int before = front().redraws();

    click(1);

    EXPECT_GT(front().redraws(), before);
}

// From the drawing to the list.

TEST_F(ListSelection, ALightThatIsSelectedInTheDrawingIsSelectedInTheList) {
    selectInDrawing({b_});

    EXPECT_EQ(selectedNames(), Names{L"B"});
}

TEST_F(ListSelection, SeveralLightsAreAllSelectedInTheList) {
    selectInDrawing({d_, a_});

    EXPECT_EQ(selectedNames(), (Names{L"A", L"D"}));
}

TEST_F(ListSelection, OfALightAndALineOnlyTheLightIsSelectedInTheList) {
    selectInDrawing({line(), b_});

    EXPECT_EQ(selectedNames(), Names{L"B"});
}

TEST_F(ListSelection, WithoutALightNoRowIsSelected) {
    const ZrDbObjectId other = line();
    selectInDrawing({b_});

    selectInDrawing({other});

    EXPECT_TRUE(selectedNames().empty());
}

TEST_F(ListSelection, WithNothingSelectedNoRowIsSelected) {
    selectInDrawing({b_});

    selectInDrawing({});

    EXPECT_TRUE(selectedNames().empty());
}

TEST_F(ListSelection, ALightOfADerivedClassIsNotSelectedInTheList) {
    const ZrDbObjectId derived = make({.name = L"Derived"}, std::make_unique<DerivedLight>());
    ASSERT_EQ(names().size(), 5U);

    selectInDrawing({derived, a_});

    EXPECT_EQ(selectedNames(), Names{L"A"});
}

TEST_F(ListSelection, TheMarkGoesToTheLastRowThatWasSelected) {
    selectInDrawing({d_, b_});

    EXPECT_EQ(list().GetSelectionMark(), 3);
}

// A row more would be selected when the palette heard of what it did itself: both rows stand for that light.
TEST_F(ListSelection, AClickInTheListIsNotToldToTheListAgain) {
    make(L"A");

    click(1);

    EXPECT_FALSE(isSelected(0));
    EXPECT_TRUE(isSelected(1));
}

TEST_F(ListSelection, ALightThatIsOpenForWriteIsSelectedInTheList) {
    const ZrDbObjectPointer<ZrDbLight> writer(a_, ZrDb::kForWrite);

    selectInDrawing({a_});

    EXPECT_EQ(selectedNames(), Names{L"A"});
}

TEST_F(ListSelection, ASelectionThatCannotBeAskedForLeavesNoRowSelected) {
    list().SelectAll(true);

    palette().impliedSelectionChanged();

    EXPECT_TRUE(selectedNames().empty());
}

// Rows come and go one by one, a selection at once.
TEST_F(ListSelection, ASelectionOfManyLightsIsOneChangeOfTheList) {
    int changes = 0;
    list().attachPeer(std::make_unique<CountingPeer>(changes));

    selectInDrawing({a_, b_, c_, d_});
    EXPECT_EQ(changes, 1);
    selectInDrawing({c_, d_});
    EXPECT_EQ(changes, 2);
    list().attachPeer(nullptr);

    EXPECT_EQ(selectedNames(), (Names{L"C", L"D"}));
}

TEST_F(ListSelection, TheEndOfACommandThatUsedTheSelectionClearsTheList) {
    click(1);

    type({L"ERASE"});

    EXPECT_EQ(names(), (Names{L"A", L"C", L"D"}));
    EXPECT_TRUE(selectedNames().empty());
}

} // namespace
} // namespace quor::test
