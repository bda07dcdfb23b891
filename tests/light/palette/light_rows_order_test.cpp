#include "tests/light/palette/listed_lights.h"

#include <gmock/gmock.h>

namespace quor::test {
namespace {

using testing::IsEmpty;

class OrderedLightRows : public ListedLights {};

// Sorting.

TEST_F(OrderedLightRows, TurnRoundWithEachClickOnTheNameHeading) {
    add(L"b");
    add(L"a");

    rows.sortByClick(1);
    EXPECT_EQ(names(), (Names{L"a", L"b"}));
    rows.sortByClick(1);
    EXPECT_EQ(names(), (Names{L"b", L"a"}));
    EXPECT_EQ(data(), (Numbers{0, 1}));
    rows.sortByClick(1);
    EXPECT_EQ(names(), (Names{L"a", L"b"}));
}

TEST_F(OrderedLightRows, AreSortedByIconThenByNameAfterAClickOnTheIconHeading) {
    draw(L"c", 1);
    draw(L"b", 10);
    draw(L"a", 10);
    draw(L"d", 2);
    refreshSorted();

    rows.sortByClick(0);
    EXPECT_EQ(names(), (Names{L"c", L"d", L"a", L"b"}));
    rows.sortByClick(0);
    EXPECT_EQ(names(), (Names{L"a", L"b", L"d", L"c"}));
}

TEST_F(OrderedLightRows, KeepTheDirectionOfNamesUnderTheIconHeading) {
    draw(L"a", 1);
    draw(L"b", 1);
    refreshSorted();
    rows.sortByClick(1); // the largest name first

    rows.sortByClick(0);

    EXPECT_EQ(names(), (Names{L"b", L"a"}));
}

TEST_F(OrderedLightRows, AreAscendingAgainWhenTheirColumnIsClickedAfterAnother) {
    draw(L"a");
    draw(L"b");
    refreshSorted();
    rows.sortByClick(1);
    rows.sortByClick(0);

    rows.sortByClick(1);

    EXPECT_EQ(names(), (Names{L"a", L"b"}));
}

TEST_F(OrderedLightRows, ThatCompareEqualKeepTheirOrder) {
    draw(L"same", 3);
    draw(L"same", 1);
    refreshSorted();
    EXPECT_EQ(images(), (Numbers{2, 0}));

    rows.sortByClick(1);

    EXPECT_EQ(images(), (Numbers{2, 0}));
}

TEST_F(OrderedLightRows, IgnoreAClickOnAColumnThatIsNotThere) {
    draw(L"b");
    draw(L"a");
    rows.refresh();

    rows.sortByClick(-1);
    rows.sortByClick(2);

    EXPECT_EQ(names(), (Names{L"b", L"a"}));
    EXPECT_EQ(light::rowOrder.column, 0);
}

TEST_F(OrderedLightRows, KeepSelectionAndMarkWhenOthersAreAddedAndSorted) {
    refreshSorted();
    const ZrDbObjectId b = add(L"b");
    rows.select({b});

    add(L"a");
    EXPECT_EQ(selected(), Numbers{1});
    EXPECT_EQ(list.GetSelectionMark(), 1);

    rows.sortByClick(1);
    EXPECT_EQ(selected(), Numbers{0});
    EXPECT_EQ(list.GetSelectionMark(), 0);
}

// Selecting.

TEST_F(OrderedLightRows, SelectedAreThoseOfTheLightsAndNoOthers) {
    refreshSorted();
    const ZrDbObjectId a = add(L"a");
    const ZrDbObjectId b = add(L"b");
    const ZrDbObjectId c = add(L"c");
    rows.select({b});

    rows.select({c, a});

    EXPECT_EQ(selected(), (Numbers{0, 2}));
    EXPECT_EQ(list.GetSelectionMark(), 2);
}

TEST_F(OrderedLightRows, SelectedAreNoneForNoLightsAndTheMarkStays) {
    const ZrDbObjectId a = add(L"a");
    rows.select({a});

    rows.select({});

    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(list.GetSelectionMark(), 0);
}

TEST_F(OrderedLightRows, SelectedAreNoneForLightsThatAreNotListed) {
    add(L"a");

    rows.select({draw(L"unknown"), ZrDbObjectId()});

    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(list.GetSelectionMark(), -1);
}

TEST_F(OrderedLightRows, OfOneNameAreSelectedOncePerLightGiven) {
    add(L"twin");
    add(L"twin");
    const ZrDbObjectId last = add(L"twin");

    rows.select({last});
    EXPECT_EQ(selected(), Numbers{0});
    EXPECT_EQ(list.GetSelectionMark(), 0);

    rows.select({last, last});
    EXPECT_EQ(selected(), (Numbers{0, 1}));
    EXPECT_EQ(list.GetSelectionMark(), 1);

    rows.select({last, last, last, last});
    EXPECT_EQ(selected(), (Numbers{0, 1, 2}));
}

} // namespace
} // namespace quor::test
