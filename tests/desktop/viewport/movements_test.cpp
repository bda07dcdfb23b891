#include "desktop/viewport/movements.h"

#include "desktop/viewport/camera_history.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

constexpr gs::PictureSize kSize{200, 100};

gs::Camera afterKey(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const gs::Camera before;
    return movedByKey(before, kSize, {}, key, modifiers).value_or(before);
}

TEST(MovementsTest, OneNotchOfTheWheelIsTheSameBackAndForth) {
    EXPECT_GT(wheelFactor(120), 1);
    EXPECT_DOUBLE_EQ(wheelFactor(120) * wheelFactor(-120), 1);
}

TEST(MovementsTest, HalfNotchesAddUp) { EXPECT_DOUBLE_EQ(wheelFactor(60) * wheelFactor(60), wheelFactor(120)); }

TEST(MovementsTest, TheDrawingTurnsWithTheCursor) {
    const gs::Camera fromTheFront = gs::lookingAlong(gs::Camera(), {0, -1, 0.5});
    const gs::Camera after = turned(fromTheFront, {}, {50, 0});
    EXPECT_LT(after.backward.x, 0); // what is in front goes to the right, and so the eye to the left
    EXPECT_DOUBLE_EQ(after.backward.z, fromTheFront.backward.z);
}

TEST(MovementsTest, DraggingDownLooksMoreFromAbove) {
    const gs::Camera fromTheFront = gs::lookingAlong(gs::Camera(), {0, -1, 0.5});
    EXPECT_GT(turned(fromTheFront, {}, {0, 20}).backward.z, fromTheFront.backward.z);
}

TEST(MovementsTest, ArrowsShowWhatLiesInTheirDirection) {
    EXPECT_GT(afterKey(Qt::Key_Right).target.x, 0);
    EXPECT_LT(afterKey(Qt::Key_Left).target.x, 0);
    EXPECT_GT(afterKey(Qt::Key_Up).target.y, 0);
    EXPECT_LT(afterKey(Qt::Key_Down).target.y, 0);
}

TEST(MovementsTest, ArrowsWithControlTurn) {
    const gs::Camera after = afterKey(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(after.target, gs::Camera().target);
    EXPECT_NE(after.backward, gs::Camera().backward);
}

TEST(MovementsTest, PlusAndMinusWithControlZoom) {
    EXPECT_LT(afterKey(Qt::Key_Plus, Qt::ControlModifier).height, gs::Camera().height);
    EXPECT_GT(afterKey(Qt::Key_Minus, Qt::ControlModifier).height, gs::Camera().height);
}

TEST(MovementsTest, PlusAndMinusAloneAreForTheCommandLine) {
    EXPECT_FALSE(movedByKey(gs::Camera(), kSize, {}, Qt::Key_Minus, Qt::NoModifier).has_value());
    EXPECT_FALSE(movedByKey(gs::Camera(), kSize, {}, Qt::Key_Plus, Qt::ShiftModifier).has_value());
}

gs::Camera ofHeight(double height) {
    gs::Camera camera;
    camera.height = height;
    return camera;
}

TEST(CameraHistoryTest, GoesBackStepByStep) {
    CameraHistory history;
    history.keep(ofHeight(1));
    history.keep(ofHeight(2));
    EXPECT_EQ(history.takeLast(), ofHeight(2));
    EXPECT_EQ(history.takeLast(), ofHeight(1));
    EXPECT_EQ(history.takeLast(), std::nullopt);
}

TEST(CameraHistoryTest, TheSameTwiceIsOneStep) {
    CameraHistory history;
    history.keep(ofHeight(1));
    history.keep(ofHeight(1));
    EXPECT_EQ(history.takeLast(), ofHeight(1));
    EXPECT_EQ(history.takeLast(), std::nullopt);
}

TEST(CameraHistoryTest, TheOldestAreForgotten) {
    CameraHistory history;
    for (std::size_t i = 0; i <= CameraHistory::kMost; ++i)
        history.keep(ofHeight(static_cast<double>(i) + 1));
    for (std::size_t i = 1; i < CameraHistory::kMost; ++i)
        (void)history.takeLast();
    EXPECT_EQ(history.takeLast(), ofHeight(2));
    EXPECT_EQ(history.takeLast(), std::nullopt);
}

} // namespace
} // namespace quor::desktop::test
