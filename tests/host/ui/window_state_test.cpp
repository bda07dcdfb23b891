#include "sdk/ui/window.h"

#include "host/ui/focus.h"
#include "host/ui/painting.h"
#include "host/ui/recording_device.h"
#include "tests/host/ui/logged_window.h"

#include <gmock/gmock.h>

namespace quor {
namespace {

using test::Log;
using test::LoggedWindow;
using test::RecordingPeer;
using testing::ElementsAre;
using testing::IsEmpty;
using Change = ui::WindowPeer::Change;

// A window at (100, 200) of the screen with a child at (10, 20), shown and painted; what happened so far is forgotten.
class WindowState : public testing::Test {
protected:
    WindowState() {
        top.Create({.style = WS_VISIBLE, .rect = {100, 200, 400, 500}});
        child.Create({.parent = &top, .style = WS_VISIBLE | 1, .rect = {10, 20, 60, 50}, .text = L"text"});
        ui::RecordingDevice device;
        ui::paint(top, device);
        child.attachPeer(std::make_unique<RecordingPeer>(changes));
        log.clear();
    }

    Log log;
    std::vector<Change> changes;
    LoggedWindow top{log, "top"};
    LoggedWindow child{log, "child"};
};

TEST_F(WindowState, CoordinatesOfTheScreenCountFromTheTop) {
    EXPECT_EQ(child.GetWindowRect(), (CRect{110, 220, 160, 250}));
    EXPECT_EQ(child.ClientToScreen({1, 2}), (CPoint{111, 222}));
    EXPECT_EQ(child.ScreenToClient(CPoint{111, 222}), (CPoint{1, 2}));
    EXPECT_EQ(child.ScreenToClient(CRect{110, 220, 160, 250}), child.GetClientRect());
}

TEST_F(WindowState, AMovedWindowTakesItsChildrenAlong) {
    top.MoveWindow({0, 0, 300, 300});

    EXPECT_EQ(child.GetWindowRect(), (CRect{10, 20, 60, 50}));
    EXPECT_EQ(child.GetRectInParent(), (CRect{10, 20, 60, 50}));
}

TEST_F(WindowState, AWindowThatIsOnlyMovedIsNotToldOfASize) {
    child.MoveWindow({0, 0, 50, 30});

    EXPECT_THAT(log, IsEmpty());
    EXPECT_THAT(changes, ElementsAre(Change::Picture, Change::Place));
    EXPECT_TRUE(child.needsPaint());
}

TEST_F(WindowState, AWindowIsToldOfItsNewSizeWhenItHasIt) {
    child.MoveWindow({10, 20, 70, 60});

    EXPECT_EQ(child.GetClientRect(), (CRect{0, 0, 60, 40}));
    EXPECT_THAT(log, ElementsAre("child size 60x40"));
}

TEST_F(WindowState, AWindowThatStaysWhereItIsIsToldNothing) {
    child.MoveWindow({10, 20, 60, 50});

    EXPECT_THAT(log, IsEmpty());
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_FALSE(child.needsPaint());
}

TEST_F(WindowState, AWindowCanBeMovedWithoutBeingPaintedAnew) {
    child.MoveWindow({0, 0, 50, 30}, false);

    EXPECT_FALSE(child.needsPaint());
    EXPECT_THAT(changes, ElementsAre(Change::Place));
}

TEST_F(WindowState, AnObjectWithoutAWindowCannotBeChanged) {
    LoggedWindow none(log, "none");

    none.MoveWindow({0, 0, 5, 5});
    none.SetWindowText(L"x");
    none.Invalidate();

    EXPECT_FALSE(none.ShowWindow(true));
    EXPECT_FALSE(none.EnableWindow(false));
    EXPECT_FALSE(none.ModifyStyle(0, 1));
    EXPECT_EQ(none.GetRectInParent(), CRect{});
    EXPECT_EQ(none.GetWindowText(), L"");
    EXPECT_FALSE(none.needsPaint());
    EXPECT_EQ(none.GetStyle(), 0U);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(WindowState, ANewTextIsPaintedAndTold) {
    child.SetWindowText(L"new");

    EXPECT_EQ(child.GetWindowText(), L"new");
    EXPECT_TRUE(child.needsPaint());
    EXPECT_THAT(changes, ElementsAre(Change::Picture, Change::Text));
}

TEST_F(WindowState, TheSameTextIsNoChange) {
    child.SetWindowText(L"text");

    EXPECT_THAT(changes, IsEmpty());
    EXPECT_FALSE(child.needsPaint());
}

TEST_F(WindowState, StylesAreTakenAwayAndAdded) {
    EXPECT_TRUE(child.ModifyStyle(1, 0x10D));

    EXPECT_EQ(child.GetStyle(), WS_CHILD | WS_VISIBLE | 0x10D);
    EXPECT_THAT(changes, ElementsAre(Change::Picture, Change::Content));
}

TEST_F(WindowState, StylesThatAreThereAlreadyAreNoChange) {
    EXPECT_FALSE(child.ModifyStyle(2, 1));

    EXPECT_EQ(child.GetStyle(), WS_CHILD | WS_VISIBLE | 1);
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(WindowState, AStyleThatHidesAndDisablesDoesWhatTheCallsDo) {
    EXPECT_TRUE(child.ModifyStyle(WS_VISIBLE, WS_DISABLED));

    EXPECT_FALSE(child.isShown());
    EXPECT_FALSE(child.IsWindowEnabled());
    EXPECT_THAT(log, ElementsAre("child hidden", "child disabled"));
}

TEST_F(WindowState, AWindowIsToldOnceThatItIsHidden) {
    EXPECT_TRUE(child.ShowWindow(false));
    EXPECT_FALSE(child.ShowWindow(false));

    EXPECT_THAT(log, ElementsAre("child hidden"));
    EXPECT_THAT(changes, ElementsAre(Change::Visibility));
}

TEST_F(WindowState, AWindowThatIsShownAgainIsPaintedAnew) {
    child.ShowWindow(false);
    changes.clear();

    EXPECT_FALSE(child.ShowWindow(true));
    EXPECT_TRUE(child.ShowWindow(true));

    EXPECT_TRUE(child.needsPaint());
    EXPECT_THAT(log, ElementsAre("child hidden", "child shown"));
    EXPECT_THAT(changes, ElementsAre(Change::Picture, Change::Visibility));
}

TEST_F(WindowState, AWindowIsVisibleOnlyWithAllItsParents) {
    EXPECT_TRUE(child.IsWindowVisible());

    top.ShowWindow(false);

    EXPECT_FALSE(child.IsWindowVisible());
    EXPECT_TRUE(child.isShown());
}

TEST_F(WindowState, AHiddenWindowIsNotVisible) {
    child.ShowWindow(false);

    EXPECT_FALSE(child.IsWindowVisible());
    EXPECT_TRUE(top.IsWindowVisible());
}

TEST_F(WindowState, AnObjectWithoutAWindowIsNotVisible) { EXPECT_FALSE(CWnd().IsWindowVisible()); }

TEST_F(WindowState, EnablingAnswersWhetherItWasDisabledBefore) {
    EXPECT_FALSE(child.EnableWindow(false));
    EXPECT_TRUE(child.EnableWindow(false));
    EXPECT_TRUE(child.EnableWindow());
    EXPECT_FALSE(child.EnableWindow());

    EXPECT_THAT(log, ElementsAre("child disabled", "child enabled"));
    EXPECT_THAT(changes, ElementsAre(Change::Picture, Change::Enabled, Change::Picture, Change::Enabled));
}

TEST_F(WindowState, AHiddenWindowLosesTheKeyboardToTheDrawing) {
    child.SetFocus();
    log.clear();

    child.ShowWindow(false);

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_THAT(log, ElementsAre("child no focus, to nobody", "child hidden"));
}

TEST_F(WindowState, TheKeyboardGoesWithAHiddenParent) {
    child.SetFocus();

    top.ShowWindow(false);

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(WindowState, TheParentKeepsTheKeyboardWhenAChildIsHidden) {
    top.SetFocus();

    child.ShowWindow(false);

    EXPECT_TRUE(top.hasFocus());
}

TEST_F(WindowState, ADisabledWindowLosesTheKeyboard) {
    child.SetFocus();

    top.EnableWindow(false);

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(WindowState, ADestroyedWindowLosesTheKeyboardBeforeItGoes) {
    child.SetFocus();
    log.clear();

    top.DestroyWindow();

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_THAT(log, ElementsAre("child no focus, to nobody", "top destroy", "child destroy"));
}

TEST_F(WindowState, InvalidatingTellsThePeerEachTime) {
    child.Invalidate();
    child.Invalidate();

    EXPECT_TRUE(child.needsPaint());
    EXPECT_THAT(changes, ElementsAre(Change::Picture, Change::Picture));
}

TEST_F(WindowState, ChangedContentIsPaintedAnewAndTold) {
    child.contentChanged();

    EXPECT_TRUE(child.needsPaint());
    EXPECT_THAT(changes, ElementsAre(Change::Picture, Change::Content));
}

TEST_F(WindowState, APeerIsToldOfNewChildren) {
    CWnd grandchild;

    grandchild.Create({.parent = &child});

    EXPECT_THAT(changes, ElementsAre(Change::Content));
}

TEST_F(WindowState, APeerGoesWithTheWindow) {
    child.DestroyWindow();

    EXPECT_EQ(child.peer(), nullptr);
}

TEST_F(WindowState, TheChildAtAPointIsTheLastMadeThatIsShownThere) {
    CWnd above;
    above.Create({.parent = &top, .style = WS_VISIBLE, .rect = {40, 30, 90, 90}});

    EXPECT_EQ(top.childAt({45, 35}), &above);
    EXPECT_EQ(top.childAt({15, 25}), &child);
    EXPECT_EQ(top.childAt({0, 0}), &top);
    above.ShowWindow(false);
    EXPECT_EQ(top.childAt({45, 35}), &child);
}

TEST_F(WindowState, TheChildAtAPointIsTheInnermost) {
    CWnd grandchild;
    grandchild.Create({.parent = &child, .style = WS_VISIBLE, .rect = {5, 5, 10, 10}});

    EXPECT_EQ(top.childAt({15, 25}), &grandchild);
    EXPECT_EQ(top.childAt({20, 30}), &child);
}

} // namespace
} // namespace quor
