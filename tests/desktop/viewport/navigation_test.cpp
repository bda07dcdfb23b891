// Moving the drawing with the mouse, the touchpad and the keyboard.
#include "tests/desktop/viewport/screen.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

const QPoint kPlace(600, 150);
constexpr double kNear = 1e-9;

TEST(NavigationTest, TheWheelZoomsAndWhatIsUnderTheCursorStays) {
    withScreen([](Screen& screen) {
        const ZrGePoint3d before = screen.worldAt(kPlace);
        screen.turnsWheel(kPlace, 3);
        EXPECT_LT(screen.camera().height, 60);
        EXPECT_TRUE(screen.worldAt(kPlace).isEqualTo(before, ZrGeTol(kNear, kNear)));
        screen.turnsWheel(kPlace, -3);
        EXPECT_NEAR(screen.camera().height, 60, kNear);
    });
}

TEST(NavigationTest, TheMiddleButtonTakesTheDrawingAlong) {
    withScreen([](Screen& screen) {
        const ZrGePoint3d held = screen.worldAt({300, 300});
        screen.drags({300, 300}, {450, 220}, Qt::MiddleButton);
        EXPECT_TRUE(screen.worldAt({450, 220}).isEqualTo(held, ZrGeTol(kNear, kNear)));
        EXPECT_EQ(screen.camera().height, 60);
    });
}

TEST(NavigationTest, ShiftAndTheMiddleButtonTurnTheDrawing) {
    withScreen([](Screen& screen) {
        screen.drags({400, 400}, {450, 300}, Qt::MiddleButton, Qt::ShiftModifier);
        EXPECT_NE(screen.camera().backward, ZrGeVector3d::kZAxis);
        EXPECT_EQ(screen.camera().height, 60);
    });
}

TEST(NavigationTest, ControlAndTheMiddleButtonTurnTheDrawingWhenTheMouseMoves) {
    withScreen([](Screen& screen) {
        screen.drags({400, 400}, {450, 300}, Qt::MiddleButton, Qt::ControlModifier);
        EXPECT_NE(screen.camera().backward, ZrGeVector3d::kZAxis);
        EXPECT_EQ(screen.camera().height, 60);
    });
}

TEST(NavigationTest, AltAndTheLeftButtonTurnTheDrawingToo) {
    withScreen([](Screen& screen) {
        screen.drags({400, 400}, {450, 300}, Qt::LeftButton, Qt::AltModifier);
        EXPECT_NE(screen.camera().backward, ZrGeVector3d::kZAxis);
        EXPECT_TRUE(screen.selected().empty());
    });
}

TEST(NavigationTest, ItTurnsAroundWhatIsSelected) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"20,10", L"24,10", L"", L"LINE", L"-20,0", L"-20,10", L""});
        screen.clicks(screen.at({22, 10, 0}));
        const QPoint middle = screen.at({22, 10, 0});
        screen.drags({100, 400}, {150, 300}, Qt::MiddleButton, Qt::ShiftModifier);
        EXPECT_EQ(screen.at({22, 10, 0}), middle);
    });
}

TEST(NavigationTest, TwoClicksOfTheMiddleButtonShowEverything) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"100,100", L"180,160", L""});
        screen.doubleClicks(kPlace, Qt::MiddleButton);
        EXPECT_TRUE(screen.camera().target.isEqualTo({140, 130, 0}));
        EXPECT_GT(screen.camera().height, 60);
        EXPECT_LT(screen.camera().height, 70);
    });
}

TEST(NavigationTest, ControlAndTheMiddleButtonShowEverything) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"100,100", L"180,160", L""});
        screen.clicks(kPlace, Qt::MiddleButton, Qt::ControlModifier);
        EXPECT_TRUE(screen.camera().target.isEqualTo({140, 130, 0}));
    });
}

TEST(NavigationTest, HomeShowsEverything) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"100,100", L"180,160", L""});
        screen.presses(Qt::Key_Home);
        EXPECT_TRUE(screen.camera().target.isEqualTo({140, 130, 0}));
    });
}

TEST(NavigationTest, ArrowsMoveAndTurn) {
    withScreen([](Screen& screen) {
        screen.presses(Qt::Key_Right);
        EXPECT_NEAR(screen.camera().target.x, 6, kNear);
        screen.presses(Qt::Key_Down, Qt::ControlModifier);
        EXPECT_NE(screen.camera().backward, ZrGeVector3d::kZAxis);
    });
}

TEST(NavigationTest, PlusAndMinusWithControlZoom) {
    withScreen([](Screen& screen) {
        screen.presses(Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_LT(screen.camera().height, 60);
        screen.presses(Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_NEAR(screen.camera().height, 60, kNear);
    });
}

TEST(NavigationTest, TwoFingersOnATouchpadMoveTheDrawing) {
    withScreen([](Screen& screen) {
        screen.swipes(kPlace, {30, -50});
        EXPECT_TRUE(screen.camera().target.isEqualTo({-3, -5, 0}));
        EXPECT_EQ(screen.camera().height, 60);
    });
}

TEST(NavigationTest, PinchingZoomsAndWhatIsBetweenTheFingersStays) {
    withScreen([](Screen& screen) {
        const ZrGePoint3d before = screen.worldAt(kPlace);
        screen.pinches(kPlace, 0.25);
        EXPECT_NEAR(screen.camera().height, 48, kNear);
        EXPECT_TRUE(screen.worldAt(kPlace).isEqualTo(before, ZrGeTol(kNear, kNear)));
    });
}

TEST(NavigationTest, AWholeMovementIsOneStepBack) {
    withScreen([](Screen& screen) {
        const gs::Camera before = screen.camera();
        screen.turnsWheel(kPlace, 1);
        screen.turnsWheel(kPlace, 1);
        screen.waitsUntilStill();
        screen.person().does([&] { screen.viewport().backToPreviousCamera(); });
        EXPECT_EQ(screen.camera(), before);
    });
}

TEST(NavigationTest, MovingWorksInTheMiddleOfACommand) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"0,0"});
        screen.turnsWheel(kPlace, 2);
        screen.drags({300, 300}, {350, 300}, Qt::MiddleButton);
        EXPECT_EQ(screen.question(), Question::Kind::Point);
    });
}

} // namespace
} // namespace quor::desktop::test
