#include "sdk/ed/jig.h"

#include "host/ed/script_source.h"
#include "sdk/db/database.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

using quor::test::TestSession;

namespace {

constexpr int kEverything =
    ZrEdJig::kNullResponseAccepted | ZrEdJig::kAccept3dCoordinates | ZrEdJig::kGovernedByUcsDetect;

class PointJig final : public ZrEdJig {
public:
    explicit PointJig(int controls) : wanted_(controls) { setDispPrompt(L"\n位置: "); }

    DragStatus sampler() override {
        setUserInputControls(wanted_);
        const ZrGePoint3d before = point;
        const DragStatus status = base ? acquirePoint(point, *base) : acquirePoint(point);
        if (status != kNormal)
            return status;
        return point.isEqualTo(before) ? kNoChange : kNormal;
    }
    bool update() override {
        updates.push_back(point);
        return true;
    }
    [[nodiscard]] ZrDbEntity* entity() const override { return nullptr; }

    ZrGePoint3d point;
    std::optional<ZrGePoint3d> base;
    std::vector<ZrGePoint3d> updates;

private:
    int wanted_;
};

class Jig : public testing::Test {
protected:
    TestSession test_;
    PointJig jig_{kEverything};
};

TEST_F(Jig, TypedPointIsAcceptedInWorldCoordinates) {
    test_.document().drawing().setUcs(quor::db::Ucs{{100, 0, 0}, ZrGeVector3d::kXAxis, ZrGeVector3d::kYAxis, {}});
    test_.front().type(L"1,2,3");
    EXPECT_EQ(jig_.drag(), ZrEdJig::kNormal);
    EXPECT_EQ(jig_.point, ZrGePoint3d(101, 2, 3));
    EXPECT_EQ(jig_.updates, std::vector<ZrGePoint3d>{ZrGePoint3d(101, 2, 3)});
}

TEST_F(Jig, PointThatChangesNothingIsAcceptedWithoutUpdate) {
    test_.front().type(L"0,0,0");
    EXPECT_EQ(jig_.drag(), ZrEdJig::kNormal);
    EXPECT_TRUE(jig_.updates.empty());
}

TEST_F(Jig, EnterIsNullWhereItIsAccepted) {
    test_.front().type(L"");
    EXPECT_EQ(jig_.drag(), ZrEdJig::kNull);
    EXPECT_TRUE(jig_.updates.empty());
}

TEST_F(Jig, EnterIsRefusedWhereItIsNot) {
    PointJig strict(0);
    test_.front().type({L"", L"1,1"});
    EXPECT_EQ(strict.drag(), ZrEdJig::kNormal);
    EXPECT_TRUE(test_.front().shows(L"点无效。"));
}

TEST_F(Jig, EscapeCancels) {
    test_.front().type(L"^C");
    EXPECT_EQ(jig_.drag(), ZrEdJig::kCancel);
}

TEST_F(Jig, EndOfInputCancels) { EXPECT_EQ(jig_.drag(), ZrEdJig::kCancel); }

TEST_F(Jig, HeightIsDroppedWithoutThreeDimensionalCoordinates) {
    PointJig flat(ZrEdJig::kNullResponseAccepted);
    test_.front().type(L"1,2,3");
    EXPECT_EQ(flat.drag(), ZrEdJig::kNormal);
    EXPECT_EQ(flat.point, ZrGePoint3d(1, 2, 0));
}

TEST_F(Jig, EverySampleThatChangesSomethingUpdates) {
    test_.front().pick({3, 0, 0}, {{1, 0, 0}, {1, 0, 0}, {2, 0, 0}});
    EXPECT_EQ(jig_.drag(), ZrEdJig::kNormal);
    EXPECT_EQ(jig_.updates, (std::vector<ZrGePoint3d>{{1, 0, 0}, {2, 0, 0}, {3, 0, 0}}));
}

TEST_F(Jig, WrongAnswerIsAskedAgain) {
    test_.front().type({L"here", L"1,1"});
    EXPECT_EQ(jig_.drag(), ZrEdJig::kNormal);
    EXPECT_EQ(test_.front().screen(), L"位置: here\n点无效。\n位置: 1,1\n");
}

TEST_F(Jig, RubberBandStartsAtTheSamplersBasePoint) {
    jig_.base = ZrGePoint3d(7, 8, 9);
    test_.front().type(L"1,1");
    EXPECT_EQ(jig_.drag(), ZrEdJig::kNormal);
    EXPECT_EQ(test_.front().lastBase(), ZrGePoint3d(7, 8, 9));
}

TEST_F(Jig, ScriptAnswersADragAndIsEchoed) {
    test_.session().input().push(std::make_unique<quor::ed::ScriptSource>("4,5\n"));
    EXPECT_EQ(jig_.drag(), ZrEdJig::kNormal);
    EXPECT_EQ(jig_.point, ZrGePoint3d(4, 5, 0));
    EXPECT_EQ(test_.front().screen(), L"位置: 4,5\n");
}

} // namespace
