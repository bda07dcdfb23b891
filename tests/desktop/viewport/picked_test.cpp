#include "desktop/viewport/picked.h"

#include "desktop/viewport/pick_rectangle.h"
#include "host/db/object_entry.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

class PickedTest : public testing::Test {
protected:
    db::ObjectEntry entries_[3];
    const ZrDbObjectId a_{&entries_[0]};
    const ZrDbObjectId b_{&entries_[1]};
    const ZrDbObjectId c_{&entries_[2]};
};

TEST_F(PickedTest, WhatIsPickedComesToWhatIsSelected) {
    EXPECT_EQ(selectionAfter({a_}, {c_, b_}, PickMode::Add), (ZrDbObjectIdArray{a_, c_, b_}));
}

TEST_F(PickedTest, WhatIsSelectedAlreadyStaysWhereItStands) {
    EXPECT_EQ(selectionAfter({a_, b_}, {a_, c_}, PickMode::Add), (ZrDbObjectIdArray{a_, b_, c_}));
}

TEST_F(PickedTest, TakingAwayLeavesTheOthers) {
    EXPECT_EQ(selectionAfter({a_, b_, c_}, {b_}, PickMode::TakeAway), (ZrDbObjectIdArray{a_, c_}));
}

TEST_F(PickedTest, TakingAwayWhatIsNotSelectedChangesNothing) {
    EXPECT_EQ(selectionAfter({a_}, {b_}, PickMode::TakeAway), ZrDbObjectIdArray{a_});
}

TEST_F(PickedTest, TogglingTurnsEachRound) {
    EXPECT_EQ(selectionAfter({a_, b_}, {b_, c_}, PickMode::Toggle), (ZrDbObjectIdArray{a_, c_}));
}

TEST(PickRectangleTest, ToTheRightItIsAWindow) {
    EXPECT_EQ((PickRectangle{{10, 50}, {30, 20}}.how()), gs::RectPick::Window);
}

TEST(PickRectangleTest, ToTheLeftItIsACrossing) {
    EXPECT_EQ((PickRectangle{{30, 20}, {10, 50}}.how()), gs::RectPick::Crossing);
}

TEST(PickRectangleTest, ItsPixelsAreInOrderWhicheverWayItWasDrawn) {
    const gs::PixelRect pixels = PickRectangle{{30, 20}, {10, 50}}.pixels();
    EXPECT_EQ(pixels.left, 10);
    EXPECT_EQ(pixels.top, 20);
    EXPECT_EQ(pixels.right, 30);
    EXPECT_EQ(pixels.bottom, 50);
}

} // namespace
} // namespace quor::desktop::test
