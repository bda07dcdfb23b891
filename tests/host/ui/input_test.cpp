#include "host/ui/input.h"

#include "host/ui/acting.h"
#include "tests/host/ui/logged_window.h"

#include <functional>
#include <gmock/gmock.h>

namespace quor {
namespace {

using test::Log;
using test::LoggedWindow;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Kind = InputMessage::Kind;

class Input : public testing::Test {
protected:
    Input() {
        top.Create({.style = WS_VISIBLE, .rect = {100, 200, 400, 500}});
        child.Create({.parent = &top, .style = WS_VISIBLE, .rect = {10, 20, 60, 50}});
        log.clear();
    }

    Log log;
    LoggedWindow top{log, "top"};
    LoggedWindow child{log, "child"};
};

// Does something when it looks at a message or gets one.
class Acts : public CWnd {
public:
    std::function<void()> onLook = [] {};
    std::function<void()> onDown = [] {};
    int ups = 0;

private:
    bool PreTranslateMessage(const InputMessage& /*message*/) override {
        onLook();
        return false;
    }
    void OnLButtonDown(unsigned /*flags*/, CPoint /*point*/) override { onDown(); }
    void OnLButtonUp(unsigned /*flags*/, CPoint /*point*/) override { ++ups; }
};

TEST_F(Input, AMessageIsLookedAtFromItsWindowUpwardsBeforeTheWindowGetsIt) {
    ui::sendInput({.kind = Kind::LeftDown, .window = &child, .point = {3, 4}, .flags = MK_SHIFT});

    EXPECT_THAT(log, ElementsAre("child looks for child", "top looks for child", "child left down at 3,4 flags 4"));
}

TEST_F(Input, AMessageThatIsDealtWithGoesNoFurther) {
    child.consumesMessages = true;

    ui::moveMouse(child, {3, 4});

    EXPECT_THAT(log, ElementsAre("child looks for child"));
}

TEST_F(Input, AMessageThatAParentDealsWithDoesNotReachTheWindow) {
    top.consumesMessages = true;

    ui::moveMouse(child, {3, 4});

    EXPECT_THAT(log, ElementsAre("child looks for child", "top looks for child"));
}

TEST_F(Input, EachKindHasItsHandler) {
    LoggedWindow window(log, "w");
    window.Create({});
    log.clear();

    window.dispatchInput({.kind = Kind::MouseMove, .point = {1, 2}, .flags = MK_CONTROL});
    window.dispatchInput({.kind = Kind::LeftDown, .point = {1, 2}});
    window.dispatchInput({.kind = Kind::LeftUp, .point = {1, 2}});
    window.dispatchInput({.kind = Kind::LeftDouble, .point = {1, 2}});
    window.dispatchInput({.kind = Kind::RightDown, .point = {1, 2}});
    window.dispatchInput({.kind = Kind::Wheel, .lines = -3});
    window.dispatchInput({.kind = Kind::KeyDown, .flags = MK_SHIFT, .key = VK_DOWN});

    EXPECT_THAT(log, ElementsAre("w move at 1,2 flags 8", "w left down at 1,2 flags 0", "w left up at 1,2 flags 0",
                                 "w double at 1,2 flags 0", "w right down at 1,2 flags 0", "w wheel -3",
                                 "w key 40 flags 4"));
}

TEST_F(Input, TheRightButtonLetGoAsksForTheContextMenuUpwards) {
    child.dispatchInput({.kind = Kind::RightUp, .point = {1, 2}});

    EXPECT_THAT(log, ElementsAre("child right up at 1,2 flags 0", "child menu from child at 111,222 flags 0",
                                 "top menu from child at 111,222 flags 0"));
}

TEST_F(Input, AClickIsPressedAndLetGo) {
    ui::click(top, {5, 6}, MK_CONTROL);

    EXPECT_THAT(log, ElementsAre("top looks for top", "top left down at 5,6 flags 8", "top looks for top",
                                 "top left up at 5,6 flags 8"));
}

TEST_F(Input, ADoubleClickIsAClickFirst) {
    ui::doubleClick(top, {5, 6});

    EXPECT_THAT(log, ElementsAre("top looks for top", "top left down at 5,6 flags 0", "top looks for top",
                                 "top left up at 5,6 flags 0", "top looks for top", "top double at 5,6 flags 0",
                                 "top looks for top", "top left up at 5,6 flags 0"));
}

TEST_F(Input, ARightClickIsPressedAndLetGo) {
    ui::rightClick(top, {5, 6});

    EXPECT_THAT(log, ElementsAre("top looks for top", "top right down at 5,6 flags 0", "top looks for top",
                                 "top right up at 5,6 flags 0", "top menu from top at 105,206 flags 0"));
}

TEST_F(Input, TheWheelTurnsLines) {
    ui::turnWheel(top, {5, 6}, 3);

    EXPECT_THAT(log, Contains("top wheel 3"));
}

TEST_F(Input, TheMouseLeavesTheCursorWhereItWas) {
    ui::moveMouse(child, {3, 4});

    EXPECT_EQ(GetCursorPos(), (CPoint{113, 224}));
}

TEST_F(Input, TheCursorIsThereBeforeAMessageIsLookedAt) {
    CPoint seen;
    Acts window;
    window.Create({.rect = {50, 50, 90, 90}});
    window.onLook = [&] { seen = GetCursorPos(); };

    ui::moveMouse(window, {1, 1});

    EXPECT_EQ(seen, (CPoint{51, 51}));
}

TEST_F(Input, AKeyDoesNotMoveTheCursor) {
    ui::moveMouse(child, {3, 4});

    ui::pressKey(top, VK_DOWN);

    EXPECT_EQ(GetCursorPos(), (CPoint{113, 224}));
}

TEST_F(Input, ADisabledWindowGetsNothingButTheCursorMoves) {
    child.EnableWindow(false);
    log.clear();

    ui::click(child, {0, 0});

    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(GetCursorPos(), (CPoint{110, 220}));
}

TEST_F(Input, WindowsBelowADisabledOneGetNothing) {
    top.EnableWindow(false);
    log.clear();

    ui::click(child, {0, 0});
    ui::pressKey(child, VK_SPACE);

    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Input, NothingIsSentToNobody) {
    CWnd none;
    ui::moveMouse(child, {3, 4});
    log.clear();

    ui::sendInput({.kind = Kind::LeftDown});
    ui::click(none, {1, 1});

    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(GetCursorPos(), (CPoint{113, 224}));
}

TEST_F(Input, AClickDoesNotSetTheFocusByItself) {
    ui::click(child, {0, 0});

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(Input, AKeyGoesToTheWindowWithTheKeyboard) {
    child.SetFocus();
    log.clear();

    ui::pressKey('A', MK_CONTROL);

    EXPECT_THAT(log, ElementsAre("child looks for child", "top looks for child", "child key 65 flags 8"));
}

TEST_F(Input, AKeyGoesNowhereWhileTheDrawingHasTheKeyboard) {
    ui::pressKey(VK_DELETE);

    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Input, AMessageForAWindowThatGoesWhileItIsLookedAtEndsThere) {
    Acts window;
    bool pressed = false;
    window.Create({.parent = &top});
    window.onLook = [&] { window.DestroyWindow(); };
    window.onDown = [&] { pressed = true; };

    ui::click(window, {0, 0});

    EXPECT_FALSE(pressed);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Input, AClickEndsWithAWindowThatGoesOnTheWay) {
    Acts window;
    window.Create({});
    window.onDown = [&] { window.DestroyWindow(); };

    ui::click(window, {0, 0});

    EXPECT_EQ(window.ups, 0);
}

TEST_F(Input, WhileAMessageIsHandledItsTopLevelWindowActs) {
    const CWnd* looking = nullptr;
    const CWnd* pressed = nullptr;
    Acts window;
    window.Create({.parent = &child});
    window.onLook = [&] { looking = ui::actingWindow(); };
    window.onDown = [&] { pressed = ui::actingWindow(); };

    ui::click(window, {0, 0});

    EXPECT_EQ(looking, &top);
    EXPECT_EQ(pressed, &top);
    EXPECT_EQ(ui::actingWindow(), nullptr);
}

TEST_F(Input, TheWindowAtAPointIsTheInnermostThere) {
    EXPECT_EQ(ui::windowAt(top, {15, 25}), &child);
    EXPECT_EQ(ui::windowAt(top, {0, 0}), &top);
}

TEST_F(Input, ThereIsNoWindowBesideOne) {
    EXPECT_EQ(ui::windowAt(top, {300, 0}), nullptr);
    EXPECT_EQ(ui::windowAt(top, {-1, 0}), nullptr);
}

TEST_F(Input, ThereIsNoWindowInAHiddenOne) {
    top.ShowWindow(false);

    EXPECT_EQ(ui::windowAt(top, {0, 0}), nullptr);
    EXPECT_EQ(ui::windowAt(child, {0, 0}), nullptr);
}

} // namespace
} // namespace quor
