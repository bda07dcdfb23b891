#include "tests/light/palette/listed_lights.h"

#include "host/sys/utf8.h"

#include <gmock/gmock.h>

namespace quor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RefreshedLightRows : public ListedLights {};

TEST_F(RefreshedLightRows, HaveOneRowPerLightInDrawingOrder) {
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

TEST_F(RefreshedLightRows, TakeThePlaceOfThoseBefore) {
    const ZrDbObjectId light = draw(L"before");
    rows.refresh();
    rename(light, L"after");

    rows.refresh();

    EXPECT_EQ(names(), Names{L"after"});
    EXPECT_THAT(lights(), ElementsAre(light));
}

TEST_F(RefreshedLightRows, LeaveOutErasedLightsAndOtherEntities) {
    erase(draw(L"gone"));
    draw(L"here");
    session.run({L"LINE", L"0,0", L"1,1", L""});

    rows.refresh();

    EXPECT_EQ(names(), Names{L"here"});
}

TEST_F(RefreshedLightRows, LeaveOutLightsOfDerivedClasses) {
    drawIn(zrdbWorkingDatabase()->modelSpaceId(), std::make_unique<OtherLight>(), L"derived");

    rows.refresh();

    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(RefreshedLightRows, LeaveOutLightsOutsideModelSpace) {
    drawIn(zrdbWorkingDatabase()->paperSpaceId(), std::make_unique<ZrDbLight>(), L"on paper");

    rows.refresh();

    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(RefreshedLightRows, HoldLightsOnAnyLayer) {
    const ZrDbObjectId light = draw(L"on layer 0");
    rows.refresh();

    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(light, ZrDb::kForRead)->layer(), L"0");
    EXPECT_EQ(names(), Names{L"on layer 0"});
}

TEST_F(RefreshedLightRows, SkipALightThatIsOpenForWrite) {
    const ZrDbObjectId busy = draw(L"busy");
    draw(L"free");
    const ZrDbObjectPointer<ZrDbLight> light(busy, ZrDb::kForWrite);

    rows.refresh();

    EXPECT_EQ(names(), Names{L"free"});
}

TEST_F(RefreshedLightRows, WhileABlockIsEditedInPlaceAreThoseOfItsWorkingSet) {
    session.run({L"OPEN", fromUtf8(QUOR_TEST_DATA "/dxf/own/luminaires.dxf")});
    rows.refresh();
    EXPECT_EQ(names(), Names{L"Ceiling"});
    session.run({L"REFEDIT", L"#60", L""});

    rows.refresh();

    EXPECT_EQ(names(), (Names{L"Pendant", L"Spot"}));
}

TEST_F(RefreshedLightRows, AreNoneWhenModelSpaceCannotBeRead) {
    add(L"shown");
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->modelSpaceId(), ZrDb::kForWrite);

    rows.refresh();

    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(RefreshedLightRows, AreSortedByNameWhenTheDialogHasRefreshedThem) {
    draw(L"b");
    draw(L"c");
    draw(L"a");

    refreshSorted();

    EXPECT_EQ(names(), (Names{L"a", L"b", L"c"}));
    EXPECT_EQ(data(), (Numbers{0, 1, 2}));
}

TEST_F(RefreshedLightRows, AreGoneWhenCleared) {
    const ZrDbObjectId light = add(L"a");

    rows.clear();
    rows.select({light});

    EXPECT_EQ(list.GetItemCount(), 0);
    EXPECT_EQ(rows.lightAt(0), ZrDbObjectId());
}

} // namespace
} // namespace quor::test
