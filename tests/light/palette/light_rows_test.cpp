#include "tests/light/palette/listed_lights.h"

#include <gmock/gmock.h>

namespace quor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LightRows : public ListedLights {};

TEST(ImageOfALightType, IsTheFourthForWebLightsAndTheOneBeforeTheTypeForOthers) {
    EXPECT_EQ(light::imageOfType(1), 0);
    EXPECT_EQ(light::imageOfType(2), 1);
    EXPECT_EQ(light::imageOfType(3), 2);
    EXPECT_EQ(light::imageOfType(10), 3);
    EXPECT_EQ(light::imageOfType(4), 3);
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

// Looking up.

TEST_F(LightRows, HaveNoLightWhereThereIsNoRow) {
    add(L"a");

    EXPECT_EQ(rows.lightAt(-1), ZrDbObjectId());
    EXPECT_EQ(rows.lightAt(1), ZrDbObjectId());
}

} // namespace
} // namespace quor::test
