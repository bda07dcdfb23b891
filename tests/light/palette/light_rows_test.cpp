#include "tests/light/palette/listed_lights.h"

#include "host/sys/utf8.h"

#include <gmock/gmock.h>

namespace quor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LightRows : public ListedLights {};

// A light of a class of its own.
class OtherLight final : public ZrDbLight {
public:
    static ZrRxClass* desc() {
        static ZrRxClass description(L"OtherLight", ZrDbLight::desc(), L"LIGHT");
        return &description;
    }
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }
};

TEST(ImageOfALightType, IsTheFourthForWebLightsAndTheOneBeforeTheTypeForOthers) {
    EXPECT_EQ(light::imageOfType(1), 0);
    EXPECT_EQ(light::imageOfType(2), 1);
    EXPECT_EQ(light::imageOfType(3), 2);
    EXPECT_EQ(light::imageOfType(10), 3);
    EXPECT_EQ(light::imageOfType(4), 3);
}

// Refresh.

TEST_F(LightRows, RefreshedHaveOneRowPerLightInDrawingOrder) {
    const ZrDbObjectId b = draw(L"b", 1);
    const ZrDbObjectId a = draw(L"a", 10);
    const ZrDbObjectId c = draw(L"c", 3);

    rows.refresh();

    EXPECT_EQ(names(), (Names{L"b", L"a", L"c"}));
    EXPECT_EQ(images(), (Numbers{0, 3, 2}));
    EXPECT_EQ(data(), (Numbers{0, 1, 2}));
    EXPECT_EQ(list.GetItemText(0, 0), L"");
    EXPECT_THAT(lights(), ElementsAre(b, a, c));
}

TEST_F(LightRows, RefreshedTakeThePlaceOfThoseBefore) {
    const ZrDbObjectId light = draw(L"before");
    rows.refresh();
    rename(light, L"after");

    rows.refresh();

    EXPECT_EQ(names(), Names{L"after"});
    EXPECT_THAT(lights(), ElementsAre(light));
}

TEST_F(LightRows, RefreshedLeaveOutErasedLightsAndOtherEntities) {
    erase(draw(L"gone"));
    draw(L"here");
    session.run({L"LINE", L"0,0", L"1,1", L""});

    rows.refresh();

    EXPECT_EQ(names(), Names{L"here"});
}

TEST_F(LightRows, RefreshedLeaveOutLightsOfDerivedClasses) {
    drawIn(zrdbWorkingDatabase()->modelSpaceId(), std::make_unique<OtherLight>(), L"derived");

    rows.refresh();

    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LightRows, RefreshedLeaveOutLightsOutsideModelSpace) {
    drawIn(zrdbWorkingDatabase()->paperSpaceId(), std::make_unique<ZrDbLight>(), L"on paper");

    rows.refresh();

    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LightRows, RefreshedHoldLightsOnAnyLayer) {
    const ZrDbObjectId light = draw(L"on layer 0");
    rows.refresh();

    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(light, ZrDb::kForRead)->layer(), L"0");
    EXPECT_EQ(names(), Names{L"on layer 0"});
}

TEST_F(LightRows, RefreshedSkipALightThatIsOpenForWrite) {
    const ZrDbObjectId busy = draw(L"busy");
    draw(L"free");
    const ZrDbObjectPointer<ZrDbLight> light(busy, ZrDb::kForWrite);

    rows.refresh();

    EXPECT_EQ(names(), Names{L"free"});
}

TEST_F(LightRows, RefreshedWhileABlockIsEditedInPlaceAreThoseOfItsWorkingSet) {
    session.run({L"OPEN", fromUtf8(QUOR_TEST_DATA "/dxf/own/luminaires.dxf")});
    rows.refresh();
    EXPECT_EQ(names(), Names{L"Ceiling"});
    session.run({L"REFEDIT", L"#60", L""});

    rows.refresh();

    EXPECT_EQ(names(), (Names{L"Pendant", L"Spot"}));
}

TEST_F(LightRows, AreNoneWhenModelSpaceCannotBeRead) {
    add(L"shown");
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->modelSpaceId(), ZrDb::kForWrite);

    rows.refresh();

    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LightRows, AreSortedByNameWhenTheDialogHasRefreshedThem) {
    draw(L"b");
    draw(L"c");
    draw(L"a");

    refreshSorted();

    EXPECT_EQ(names(), (Names{L"a", L"b", L"c"}));
    EXPECT_EQ(data(), (Numbers{0, 1, 2}));
}

TEST_F(LightRows, AreGoneWhenCleared) {
    const ZrDbObjectId light = add(L"a");

    rows.clear();
    rows.select({light});

    EXPECT_EQ(list.GetItemCount(), 0);
    EXPECT_EQ(rows.lightAt(0), ZrDbObjectId());
}

// Adding.

TEST_F(LightRows, AddedGoToTheirSortedPlace) {
    refreshSorted();
    add(L"m", 1);
    add(L"z", 2);
    add(L"a", 10);

    EXPECT_EQ(names(), (Names{L"a", L"m", L"z"}));
    EXPECT_EQ(images(), (Numbers{3, 0, 1}));
    EXPECT_EQ(data(), (Numbers{0, 1, 2}));
    EXPECT_EQ(list.GetItemText(0, 0), L"");
}

TEST_F(LightRows, AddedToUnsortedRowsSortAllOfThem) {
    draw(L"b");
    draw(L"a");
    light::rowOrder = {.column = 1, .ascending = {false, true}};
    rows.refresh();

    add(L"c");

    EXPECT_EQ(names(), (Names{L"a", L"b", L"c"}));
}

TEST_F(LightRows, AddedFollowTheOrderThatAnotherListHasLeft) {
    light::rowOrder = {.column = 0, .ascending = {true, false}};
    add(L"a", 3);
    add(L"b", 1);
    add(L"c", 1);

    EXPECT_EQ(names(), (Names{L"c", L"b", L"a"}));
}

TEST_F(LightRows, OfADerivedClassAreAddedWhenTheyAreTold) {
    const ZrDbObjectId light =
        drawIn(zrdbWorkingDatabase()->modelSpaceId(), std::make_unique<OtherLight>(), L"derived");

    update(light);

    EXPECT_EQ(names(), Names{L"derived"});
}

TEST_F(LightRows, OfAnErasedLightThatHasNoneStayAway) {
    const ZrDbObjectId light = draw(L"a");
    erase(light);

    update(light);

    EXPECT_THAT(names(), IsEmpty());
}

// Changing.

TEST_F(LightRows, RenamedStayWhereTheyAre) {
    refreshSorted();
    const ZrDbObjectId a = add(L"a");
    add(L"b");

    updateRenamed(a, L"z");

    EXPECT_EQ(names(), (Names{L"z", L"b"}));
    EXPECT_EQ(rows.lightAt(0), a);
}

TEST_F(LightRows, RenamedGoToTheirPlaceWithTheNextThatIsAdded) {
    refreshSorted();
    const ZrDbObjectId a = add(L"a");
    add(L"b");
    updateRenamed(a, L"z");

    add(L"c");

    EXPECT_EQ(names(), (Names{L"b", L"c", L"z"}));
    EXPECT_EQ(rows.lightAt(2), a);
}

TEST_F(LightRows, OfAnotherTypeGetItsImage) {
    const ZrDbObjectId light = add(L"a", 2);
    setType(light, 10);

    update(light);

    EXPECT_EQ(images(), Numbers{3});
    EXPECT_EQ(rows.lightAt(0), light);
}

TEST_F(LightRows, StayAsTheyAreWhenNothingThatTheyShowHasChanged) {
    const ZrDbObjectId light = add(L"a");
    rows.select({light});

    update(light);

    EXPECT_EQ(names(), Names{L"a"});
    EXPECT_EQ(selected(), Numbers{0});
    EXPECT_EQ(rows.lightAt(0), light);
}

// Erasing.

TEST_F(LightRows, OfAnErasedLightGoAndComeBackWhenItIsUnerased) {
    refreshSorted();
    add(L"a");
    const ZrDbObjectId b = add(L"b");
    add(L"c");

    updateErased(b);
    EXPECT_EQ(names(), (Names{L"a", L"c"}));
    EXPECT_EQ(data(), (Numbers{0, 1}));

    updateErased(b, false);
    EXPECT_EQ(names(), (Names{L"a", L"b", L"c"}));
    EXPECT_EQ(rows.lightAt(1), b);
}

// Equal names.

TEST_F(LightRows, WithTheSameNameStandForTheLightThatWasEnteredLast) {
    draw(L"twin");
    const ZrDbObjectId second = draw(L"twin");

    rows.refresh();

    EXPECT_THAT(lights(), ElementsAre(second, second));
}

TEST_F(LightRows, OfALightWhoseNameAnotherOneTookAreDoubledWhenItIsTouched) {
    const ZrDbObjectId first = add(L"twin");
    add(L"twin");

    update(first);

    EXPECT_EQ(names(), (Names{L"twin", L"twin", L"twin"}));
    EXPECT_THAT(lights(), ElementsAre(first, first, first));
}

TEST_F(LightRows, OfALightWhoseNameAnotherOneTookStayWhenItIsErased) {
    const ZrDbObjectId first = add(L"twin");
    const ZrDbObjectId second = add(L"twin");

    updateErased(first);

    EXPECT_THAT(lights(), ElementsAre(second, second));
}

TEST_F(LightRows, WithTheSameNameLoseTheirLightWhenItIsRenamed) {
    refreshSorted();
    add(L"twin");
    const ZrDbObjectId second = add(L"twin");

    updateRenamed(second, L"single");

    EXPECT_EQ(names(), (Names{L"single", L"twin"}));
    EXPECT_THAT(lights(), ElementsAre(second, ZrDbObjectId()));
}

TEST_F(LightRows, WithTheSameNameLoseTheFirstOfThemWhenTheirLightIsErased) {
    refreshSorted();
    add(L"twin", 1);
    const ZrDbObjectId second = add(L"twin", 3);

    updateErased(second);

    EXPECT_EQ(images(), Numbers{2});
    EXPECT_THAT(lights(), ElementsAre(ZrDbObjectId()));
}

TEST_F(LightRows, WithTheSameNameAreChangedAtTheFirstInTheOrderOfTheList) {
    draw(L"twin", 1);
    const ZrDbObjectId last = draw(L"twin", 3);
    light::rowOrder = {.column = 1, .ascending = {false, false}};
    rows.refresh();
    rows.sortByClick(0);
    rows.sortByClick(0); // the largest image first: the row of the last one

    updateRenamed(last, L"single");

    EXPECT_EQ(names(), (Names{L"single", L"twin"}));
}

TEST_F(LightRows, WithoutALightGetOneAgainByTheirName) {
    const ZrDbObjectId first = add(L"twin");
    const ZrDbObjectId second = add(L"twin");
    updateErased(second);

    update(first);

    EXPECT_THAT(lights(), ElementsAre(first, first));
}

TEST_F(LightRows, AreDifferentWhenOnlyTheCaseOfTheirNamesIs) {
    const ZrDbObjectId lower = add(L"lamp");
    const ZrDbObjectId upper = add(L"LAMP");
    rows.sortByClick(1);

    EXPECT_EQ(names(), (Names{L"LAMP", L"lamp"}));
    EXPECT_THAT(lights(), ElementsAre(upper, lower));
}

// Sorting.

TEST_F(LightRows, TurnRoundWithEachClickOnTheNameHeading) {
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

TEST_F(LightRows, AreSortedByIconThenByNameAfterAClickOnTheIconHeading) {
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

TEST_F(LightRows, KeepTheDirectionOfNamesUnderTheIconHeading) {
    draw(L"a", 1);
    draw(L"b", 1);
    refreshSorted();
    rows.sortByClick(1); // the largest name first

    rows.sortByClick(0);

    EXPECT_EQ(names(), (Names{L"b", L"a"}));
}

TEST_F(LightRows, AreAscendingAgainWhenTheirColumnIsClickedAfterAnother) {
    draw(L"a");
    draw(L"b");
    refreshSorted();
    rows.sortByClick(1);
    rows.sortByClick(0);

    rows.sortByClick(1);

    EXPECT_EQ(names(), (Names{L"a", L"b"}));
}

TEST_F(LightRows, ThatCompareEqualKeepTheirOrder) {
    draw(L"same", 3);
    draw(L"same", 1);
    refreshSorted();
    EXPECT_EQ(images(), (Numbers{2, 0}));

    rows.sortByClick(1);

    EXPECT_EQ(images(), (Numbers{2, 0}));
}

TEST_F(LightRows, IgnoreAClickOnAColumnThatIsNotThere) {
    draw(L"b");
    draw(L"a");
    rows.refresh();

    rows.sortByClick(-1);
    rows.sortByClick(2);

    EXPECT_EQ(names(), (Names{L"b", L"a"}));
    EXPECT_EQ(light::rowOrder.column, 0);
}

TEST_F(LightRows, KeepSelectionAndMarkWhenOthersAreAddedAndSorted) {
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

TEST_F(LightRows, SelectedAreThoseOfTheLightsAndNoOthers) {
    refreshSorted();
    const ZrDbObjectId a = add(L"a");
    const ZrDbObjectId b = add(L"b");
    const ZrDbObjectId c = add(L"c");
    rows.select({b});

    rows.select({c, a});

    EXPECT_EQ(selected(), (Numbers{0, 2}));
    EXPECT_EQ(list.GetSelectionMark(), 2);
}

TEST_F(LightRows, SelectedAreNoneForNoLightsAndTheMarkStays) {
    const ZrDbObjectId a = add(L"a");
    rows.select({a});

    rows.select({});

    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(list.GetSelectionMark(), 0);
}

TEST_F(LightRows, SelectedAreNoneForLightsThatAreNotListed) {
    add(L"a");

    rows.select({draw(L"unknown"), ZrDbObjectId()});

    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(list.GetSelectionMark(), -1);
}

TEST_F(LightRows, OfOneNameAreSelectedOncePerLightGiven) {
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

// Looking up.

TEST_F(LightRows, HaveNoLightWhereThereIsNoRow) {
    add(L"a");

    EXPECT_EQ(rows.lightAt(-1), ZrDbObjectId());
    EXPECT_EQ(rows.lightAt(1), ZrDbObjectId());
}

} // namespace
} // namespace quor::test
