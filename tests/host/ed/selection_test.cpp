#include "sdk/ed/selection.h"

#include "sdk/rx/result_codes.h"
#include "sdk/sys/format.h"
#include "tests/host/ed/drawn_lines.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

using quor::test::addLine;
using quor::test::erase;
using quor::test::SelectionCounter;
using quor::test::TestSession;

namespace {

class Selection : public testing::Test {
protected:
    Selection() { zredAddSelectionReactor(&counter_); }
    ~Selection() override { zredRemoveSelectionReactor(&counter_); }

    int select(std::initializer_list<ZrString> lines) {
        test_.front().type(lines);
        return zredSelect(nullptr, ids_);
    }
    static void hide(ZrDbObjectId id) {
        const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForWrite);
        EXPECT_EQ(entity->setVisibility(ZrDb::kInvisible), Quor::eOk);
    }
    static ZrString handleOf(ZrDbObjectId id) { return zrFormat(L"%x", {id.handle().value()}); }

    TestSession test_;
    SelectionCounter counter_;
    ZrDbObjectIdArray ids_;
    ZrDbObjectId first_ = addLine(0);
    ZrDbObjectId second_ = addLine(10);
    ZrDbObjectId third_ = addLine(20);
};

TEST_F(Selection, ListenersAreToldOfRealChangesOnly) {
    zredSetImpliedSelection({first_, second_});
    zredSetImpliedSelection({first_, second_});
    EXPECT_EQ(counter_.changes, 1);
    zredSetImpliedSelection({});
    EXPECT_EQ(counter_.changes, 2);
    zredSetImpliedSelection({});
    EXPECT_EQ(counter_.changes, 2);
}

TEST_F(Selection, ErasedNullAndRepeatedIdsAreLeftOut) {
    erase(second_);
    zredSetImpliedSelection({first_, second_, ZrDbObjectId(), first_, third_});
    EXPECT_EQ(zredImpliedSelection(), (ZrDbObjectIdArray{first_, third_}));
}

TEST_F(Selection, ObjectErasedWhileSelectedIsNotAnswered) {
    zredSetImpliedSelection({first_, second_});
    erase(first_);
    EXPECT_EQ(zredImpliedSelection(), ZrDbObjectIdArray{second_});
}

TEST_F(Selection, PickFirstSelectionIsTakenWithoutAQuestion) {
    zredSetImpliedSelection({second_});
    EXPECT_EQ(select({}), RTNORM);
    EXPECT_EQ(ids_, ZrDbObjectIdArray{second_});
    EXPECT_TRUE(test_.front().asked().empty());
}

TEST_F(Selection, EnterWithNothingPickedIsNone) { EXPECT_EQ(select({L""}), RTNONE); }

TEST_F(Selection, EscapeCancels) {
    EXPECT_EQ(select({L"ALL", L"^C"}), RTCAN);
    EXPECT_TRUE(ids_.empty());
}

TEST_F(Selection, LastIsTheLastInDrawingOrder) {
    EXPECT_EQ(select({L"l", L""}), RTNORM);
    EXPECT_EQ(ids_, ZrDbObjectIdArray{third_});
}

TEST_F(Selection, AllLeavesOutWhatIsErased) {
    erase(second_);
    EXPECT_EQ(select({L"all", L""}), RTNORM);
    EXPECT_EQ(ids_, (ZrDbObjectIdArray{first_, third_}));
}

TEST_F(Selection, AllLeavesOutWhatIsInvisible) {
    hide(second_);
    EXPECT_EQ(select({L"all", L""}), RTNORM);
    EXPECT_EQ(ids_, (ZrDbObjectIdArray{first_, third_}));
}

TEST_F(Selection, WindowAndPointLeaveOutWhatIsInvisible) {
    hide(second_);
    EXPECT_EQ(select({L"W", L"10,1", L"0,0", L"10,0", L"11,1", L""}), RTNORM);
    EXPECT_EQ(ids_, ZrDbObjectIdArray{first_});
}

TEST_F(Selection, HandleTakesWhatIsInvisible) {
    hide(second_);
    EXPECT_EQ(select({L"#" + handleOf(second_), L""}), RTNORM);
    EXPECT_EQ(ids_, ZrDbObjectIdArray{second_});
}

TEST_F(Selection, PreviousIsTheLastSelectionMade) {
    select({L"l", L""});
    EXPECT_EQ(select({L"p", L""}), RTNORM);
    EXPECT_EQ(ids_, ZrDbObjectIdArray{third_});
}

TEST_F(Selection, HandleIsTypedInHexadecimal) {
    EXPECT_EQ(select({L"H", handleOf(second_), L"#" + handleOf(first_), L""}), RTNORM);
    EXPECT_EQ(ids_, (ZrDbObjectIdArray{second_, first_}));
}

TEST_F(Selection, HandleOfALayerIsNoEntity) {
    const ZrString layer = L"#" + handleOf(test_.document().database()->layerZeroId());
    EXPECT_EQ(select({layer, L""}), RTNONE);
    EXPECT_TRUE(test_.front().shows(L"当前空间中没有句柄为 "));
}

TEST_F(Selection, HandleWithTooManyDigitsIsNone) { EXPECT_EQ(select({L"#11111111111111111111", L""}), RTNONE); }

TEST_F(Selection, WindowTakesWhatLiesInsideAndOnItsEdge) {
    EXPECT_EQ(select({L"W", L"10,1", L"0,0", L""}), RTNORM);
    EXPECT_EQ(ids_, (ZrDbObjectIdArray{first_, second_}));
}

TEST_F(Selection, WindowLeavesOutWhatCrossesItsEdge) { EXPECT_EQ(select({L"W", L"-1,-1", L"30,0.5", L""}), RTNONE); }

TEST_F(Selection, PointOnAnEndPicksTheLineAndAnyOtherStartsAWindow) {
    EXPECT_EQ(select({L"20,1", L"-1,-1", L"1,2", L""}), RTNORM);
    EXPECT_EQ(ids_, (ZrDbObjectIdArray{third_, first_}));
}

TEST_F(Selection, RemovedOnesAreLeftOutAndUndoBringsThemBack) {
    EXPECT_EQ(select({L"ALL", L"R", L"L", L""}), RTNORM);
    EXPECT_EQ(ids_, (ZrDbObjectIdArray{first_, second_}));
    EXPECT_EQ(select({L"ALL", L"R", L"L", L"U", L""}), RTNORM);
    EXPECT_EQ(ids_.size(), 3U);
}

} // namespace
