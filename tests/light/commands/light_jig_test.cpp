#include "light/commands/light_jig.h"

#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

constexpr const wchar_t* onSourceMessage = L"**聚光灯的光源和目标不能相同。**";

// A jig that keeps what each of its samples answered and what its light was like afterwards.
class WatchedJig : public CZrLightJig {
public:
    using CZrLightJig::CZrLightJig;

    DragStatus sampler() override {
        statuses.push_back(CZrLightJig::sampler());
        controls = userInputControls();
        return statuses.back();
    }
    bool update() override {
        const bool answer = CZrLightJig::update();
        const auto& light = static_cast<const ZrDbLight&>(*entity());
        positions.push_back(light.position());
        targets.push_back(light.targetLocation());
        return answer;
    }

    std::vector<DragStatus> statuses;
    std::vector<ZrGePoint3d> positions;
    std::vector<ZrGePoint3d> targets;
    int controls = 0;
};

constexpr auto normal = ZrEdJig::kNormal;
constexpr auto noChange = ZrEdJig::kNoChange;

// A command that drags a light with what is typed and picked.
class LightJigTest : public testing::Test {
protected:
    LightJigTest() {
        session_.addCommand(L"DRAG", [this] {
            answer_ = drag_();
            return RTNORM;
        });
    }

    bool dragSource(const wchar_t* kind) {
        return run([&] {
            CZrLightJig jig(&light_, kind);
            return jig.dragSource();
        });
    }
    bool dragSourceAndTarget(const wchar_t* kind) {
        return run([&] {
            CZrLightJig jig(&light_, kind);
            return jig.dragSource() && jig.dragTarget();
        });
    }
    WatchedJig watchSource(const wchar_t* kind) {
        WatchedJig jig(&light_, kind);
        run([&] { return jig.dragSource(); });
        return jig;
    }
    WatchedJig watchTarget(const wchar_t* kind) {
        WatchedJig jig(&light_, kind);
        run([&] { return jig.dragTarget(); });
        return jig;
    }
    // Turns the user coordinate system a quarter about the world's x axis, so that its z axis is the world's -y.
    void turnUcs() {
        session_.document().drawing().setUcs({ZrGePoint3d::kOrigin, ZrGeVector3d::kXAxis, ZrGeVector3d::kZAxis, {}});
    }
    test::ScriptedFrontEnd& front() { return session_.front(); }

    static void expectPoint(const ZrGePoint3d& point, double x, double y, double z) {
        EXPECT_LT(point.distanceTo({x, y, z}), 1e-9) << point.x << "," << point.y << "," << point.z;
    }

    test::TestSession session_;
    ZrDbLight light_;

private:
    bool run(std::function<bool()> drag) {
        drag_ = std::move(drag);
        session_.session().processor().run(L"DRAG", false);
        return answer_;
    }

    std::function<bool()> drag_;
    bool answer_ = false;
};

TEST_F(LightJigTest, ATypedPositionMovesTheLight) {
    front().type({L"1,2,3"});

    EXPECT_TRUE(dragSource(L"PointLight"));

    expectPoint(light_.position(), 1, 2, 3);
    EXPECT_EQ(front().asked(), std::vector<ZrString>{L"\n指定源位置 <0,0,0>: "});
}

TEST_F(LightJigTest, APickedPositionMovesTheLight) {
    front().pick({4, 5, 6}, {{1, 1, 1}, {2, 2, 2}});

    EXPECT_TRUE(dragSource(L"PointLight"));

    expectPoint(light_.position(), 4, 5, 6);
}

TEST_F(LightJigTest, TheLightFollowsTheCursor) {
    front().pick({4, 5, 6}, {{1, 1, 1}, {2, 2, 2}});

    const WatchedJig jig = watchSource(L"PointLight");

    EXPECT_EQ(jig.positions, (std::vector<ZrGePoint3d>{{1, 1, 1}, {2, 2, 2}, {4, 5, 6}}));
}

TEST_F(LightJigTest, APositionWithinABillionthIsNoChange) {
    front().pick({5, 5, 5}, {{4, 5, 6}, {4, 5, 6 + 0.9e-9}, {4, 5, 6 + 3e-9}});

    const WatchedJig jig = watchSource(L"PointLight");

    // The first one comes before there is a sample.
    EXPECT_EQ(jig.statuses, (std::vector{noChange, normal, noChange, normal, normal}));
    EXPECT_EQ(jig.positions.size(), 3U);
}

TEST_F(LightJigTest, ATargetWithinABillionthIsNoChange) {
    front().pick({5, 5, 5}, {{4, 5, 6}, {4, 5, 6 + 0.9e-9}, {4, 5, 6 + 3e-9}});

    const WatchedJig jig = watchTarget(L"WebLight");

    EXPECT_EQ(jig.statuses, (std::vector{noChange, normal, noChange, normal, normal}));
    EXPECT_EQ(jig.targets.size(), 3U);
}

TEST_F(LightJigTest, WhileItsTargetIsDraggedTheLightAimsThereAndStays) {
    light_.setPosition({7, 8, 9});
    front().pick({5, 5, 5}, {{4, 5, 6}});

    const WatchedJig jig = watchTarget(L"SpotLight");

    EXPECT_EQ(jig.targets, (std::vector<ZrGePoint3d>{{4, 5, 6}, {5, 5, 5}}));
    EXPECT_EQ(jig.positions.front(), ZrGePoint3d(7, 8, 9));
}

TEST_F(LightJigTest, BothDragsTakeEnterAndThreeCoordinatesAndFollowTheUcs) {
    EXPECT_EQ(watchSource(L"PointLight").controls, 4226);
    EXPECT_EQ(watchTarget(L"SpotLight").controls, 4226);
}

TEST_F(LightJigTest, PickingWhatTheCursorShowedLastMovesTheLightToo) {
    front().pick({4, 5, 6}, {{4, 5, 6}});

    EXPECT_TRUE(dragSource(L"PointLight"));

    expectPoint(light_.position(), 4, 5, 6);
}

TEST_F(LightJigTest, BrokenInputAtThePositionAnswersFalse) {
    front().breakInput();

    EXPECT_FALSE(dragSource(L"PointLight"));
}

TEST_F(LightJigTest, EscAtThePositionAnswersFalseAndLeavesTheLightThere) {
    light_.setPosition({7, 8, 9});
    front().type({L"^C"});

    EXPECT_FALSE(dragSource(L"PointLight"));

    EXPECT_EQ(light_.position(), ZrGePoint3d(7, 8, 9));
}

TEST_F(LightJigTest, EnterAtThePositionIsTheOriginWhereverTheCursorWas) {
    light_.setPosition({7, 8, 9});
    front().type({L""});

    EXPECT_TRUE(dragSource(L"PointLight"));

    expectPoint(light_.position(), 0, 0, 0);
}

class KindWithoutAim : public LightJigTest, public testing::WithParamInterface<const wchar_t*> {};

TEST_P(KindWithoutAim, LeavesItsTargetAloneWhileItIsDragged) {
    light_.setTargetLocation({7, 8, 9});
    front().pick({1, 2, 3}, {{4, 4, 4}});

    const WatchedJig jig = watchSource(GetParam());

    EXPECT_EQ(jig.targets, (std::vector<ZrGePoint3d>{{7, 8, 9}, {7, 8, 9}}));
}

INSTANTIATE_TEST_SUITE_P(WhileDragged, KindWithoutAim,
                         testing::Values(L"PointLight", L"TargetPoint", L"WebLight", L"FreeWeb"));

TEST_F(LightJigTest, WhileItIsDraggedAFreeSpotAimsDownTheAxisOfTheUcs) {
    turnUcs();
    front().pick({1, 2, 3}, {{4, 5, 6}, {0, 0, 0}});

    const WatchedJig jig = watchSource(L"FreeSpot");

    ASSERT_EQ(jig.targets.size(), 3U);
    expectPoint(jig.targets[0], 4, 15, 6);
    expectPoint(jig.targets[1], 0, 10, 0); // only where it is placed does the origin count
    expectPoint(jig.targets[2], 1, 12, 3);
}

TEST_F(LightJigTest, AFreeSpotAimsDownTheAxisOfTheUcs) {
    turnUcs();
    front().pick({1, 2, 3});

    EXPECT_TRUE(dragSource(L"FreeSpot"));

    expectPoint(light_.position(), 1, 2, 3);
    expectPoint(light_.targetLocation(), 1, 12, 3);
}

TEST_F(LightJigTest, AFreeSpotAtTheOriginAimsDownTheWorldsAxisInAnyUcs) {
    turnUcs();
    front().type({L""});

    EXPECT_TRUE(dragSource(L"FreeSpot"));

    expectPoint(light_.position(), 0, 0, 0);
    expectPoint(light_.targetLocation(), 0, 0, -10);
}

TEST_F(LightJigTest, AFreeWebLightAimsLikeAFreeSpot) {
    turnUcs();
    front().pick({1, 2, 3});

    EXPECT_TRUE(dragSource(L"FreeWeb"));

    expectPoint(light_.targetLocation(), 1, 12, 3);
}

TEST_F(LightJigTest, AFreeWebLightAtTheOriginAimsDownTheWorldsAxis) {
    turnUcs();
    front().type({L"0,0,0"});

    EXPECT_TRUE(dragSource(L"FreeWeb"));

    expectPoint(light_.targetLocation(), 0, 0, -10);
}

TEST_F(LightJigTest, KindsAreFoundInAnyCase) {
    turnUcs();
    front().pick({1, 2, 3});

    EXPECT_TRUE(dragSource(L"FREESPOT"));

    expectPoint(light_.targetLocation(), 1, 12, 3);
}

TEST_F(LightJigTest, WhileItIsDraggedASpotLightAimsDownTheWorldsAxis) {
    turnUcs();
    front().pick({1, 2, 3}, {{4, 5, 6}});

    const WatchedJig jig = watchSource(L"SpotLight");

    ASSERT_EQ(jig.targets.size(), 2U);
    expectPoint(jig.targets[0], 4, 5, -4);
    expectPoint(jig.targets[1], 1, 2, -7);
}

TEST_F(LightJigTest, ATypedTargetIsWhereTheLightAims) {
    front().type({L"1,2,3", L"4,5,6"});

    EXPECT_TRUE(dragSourceAndTarget(L"SpotLight"));

    expectPoint(light_.position(), 1, 2, 3);
    expectPoint(light_.targetLocation(), 4, 5, 6);
    EXPECT_EQ(front().asked().back(), L"\n指定目标位置 <0,0,-10>: ");
}

TEST_F(LightJigTest, TheTargetIsDraggedFromThePosition) {
    front().type({L"1,2,3"});
    front().pick({4, 5, 6}, {{2, 2, 2}});

    EXPECT_TRUE(dragSourceAndTarget(L"WebLight"));

    ASSERT_TRUE(front().lastBase());
    expectPoint(*front().lastBase(), 1, 2, 3);
    expectPoint(light_.position(), 1, 2, 3);
    expectPoint(light_.targetLocation(), 4, 5, 6);
}

TEST_F(LightJigTest, TheTargetMayBeTheOriginOfTheWorld) {
    light_.setTargetLocation({7, 8, 9});
    front().type({L"1,2,3", L"0,0,0"});

    EXPECT_TRUE(dragSourceAndTarget(L"TargetPoint"));

    expectPoint(light_.targetLocation(), 0, 0, 0);
}

TEST_F(LightJigTest, EscAtTheTargetAnswersFalseAndLeavesItUnset) {
    light_.setTargetLocation({7, 8, 9});
    front().type({L"1,2,3", L"^C"});

    EXPECT_FALSE(dragSourceAndTarget(L"TargetPoint"));

    expectPoint(light_.targetLocation(), 7, 8, 9);
}

TEST_F(LightJigTest, EnterAtTheTargetAimsTenDownTheAxisOfTheUcs) {
    turnUcs();
    front().pick({1, 2, 3});
    front().type({L""});

    EXPECT_TRUE(dragSourceAndTarget(L"SpotLight"));

    expectPoint(light_.targetLocation(), 1, 12, 3);
}

TEST_F(LightJigTest, EnterAtTheTargetAimsTenDownTheWorldsAxisInTheWorldsSystem) {
    front().type({L"1,2,3", L""});

    EXPECT_TRUE(dragSourceAndTarget(L"WebLight"));

    expectPoint(light_.targetLocation(), 1, 2, -7);
}

TEST_F(LightJigTest, ASpotLightRefusesATargetOnItsPositionAndAsksAgain) {
    front().type({L"1,2,3", L"1,2,3", L"1,2,3", L"4,5,6"});

    EXPECT_TRUE(dragSourceAndTarget(L"SpotLight"));

    EXPECT_TRUE(front().shows(onSourceMessage));
    EXPECT_EQ(front().asked().size(), 4U);
    expectPoint(light_.targetLocation(), 4, 5, 6);
}

TEST_F(LightJigTest, ASpotLightAcceptsATargetJustBesideItsPosition) {
    front().type({L"1,2,3", L"1,2,3.00000001"});

    EXPECT_TRUE(dragSourceAndTarget(L"SpotLight"));

    EXPECT_FALSE(front().shows(onSourceMessage));
    EXPECT_EQ(light_.targetLocation(), ZrGePoint3d(1, 2, 3.00000001));
}

class KindWithTarget : public LightJigTest, public testing::WithParamInterface<const wchar_t*> {};

TEST_P(KindWithTarget, AcceptsATargetOnItsPosition) {
    front().type({L"1,2,3", L"1,2,3"});

    EXPECT_TRUE(dragSourceAndTarget(GetParam()));

    EXPECT_FALSE(front().shows(onSourceMessage));
    expectPoint(light_.targetLocation(), 1, 2, 3);
}

INSTANTIATE_TEST_SUITE_P(ButSpotLight, KindWithTarget, testing::Values(L"TargetPoint", L"WebLight"));

TEST_F(LightJigTest, TheJigIsAJigOverTheLight) {
    const CZrLightJig jig(&light_, L"PointLight");

    EXPECT_EQ(jig.entity(), &light_);
    EXPECT_TRUE(jig.isKindOf(ZrEdJig::desc()));
}

} // namespace
} // namespace quor
