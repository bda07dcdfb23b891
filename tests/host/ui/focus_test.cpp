#include "host/ui/focus.h"

#include "tests/host/ui/logged_window.h"

#include <functional>
#include <gmock/gmock.h>

namespace quor {
namespace {

using test::Log;
using test::LoggedWindow;
using test::RecordingPeer;
using testing::ElementsAre;
using testing::IsEmpty;
using Change = ui::WindowPeer::Change;

class Focus : public testing::Test {
protected:
    Focus() {
        a.Create({});
        b.Create({});
        child.Create({.parent = &a});
        log.clear();
    }

    Log log;
    LoggedWindow a{log, "a"};
    LoggedWindow b{log, "b"};
    LoggedWindow child{log, "child"};
};

class ActsOnLoss : public CWnd {
public:
    std::function<void()> act;

private:
    void OnKillFocus(CWnd* /*after*/) override { act(); }
};

TEST_F(Focus, NoWindowHasTheKeyboardAtFirst) {
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_EQ(ui::focusedWindow(), nullptr);
    EXPECT_FALSE(a.hasFocus());
}

TEST_F(Focus, AWindowThatGetsTheKeyboardIsTold) {
    EXPECT_EQ(a.SetFocus(), nullptr);

    EXPECT_TRUE(a.hasFocus());
    EXPECT_EQ(ui::focusedWindow(), &a);
    EXPECT_THAT(log, ElementsAre("a focus from nobody"));
}

TEST_F(Focus, TheWindowThatHadItIsToldFirst) {
    a.SetFocus();
    log.clear();

    EXPECT_EQ(b.SetFocus(), &a);

    EXPECT_THAT(log, ElementsAre("a no focus, to b", "b focus from a"));
}

TEST_F(Focus, GivingTheKeyboardToWhoHasItTellsNobody) {
    a.SetFocus();
    log.clear();

    EXPECT_EQ(a.SetFocus(), &a);

    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Focus, TheDrawingTakesTheKeyboardFromAWindow) {
    a.SetFocus();
    log.clear();

    ui::focusDrawing();

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_THAT(log, ElementsAre("a no focus, to nobody"));
}

TEST_F(Focus, TheDrawingThatHasTheKeyboardAlreadyTakesItFromNobody) {
    ui::focusDrawing();

    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Focus, BothPeersAreTold) {
    std::vector<Change> ofA;
    std::vector<Change> ofB;
    a.attachPeer(std::make_unique<RecordingPeer>(ofA));
    b.attachPeer(std::make_unique<RecordingPeer>(ofB));
    a.SetFocus();

    b.SetFocus();

    EXPECT_THAT(ofA, ElementsAre(Change::Focus, Change::Focus));
    EXPECT_THAT(ofB, ElementsAre(Change::Focus));
}

TEST_F(Focus, ADisabledWindowGetsNoKeyboard) {
    b.SetFocus();
    a.EnableWindow(false);

    EXPECT_EQ(a.SetFocus(), &b);
    EXPECT_EQ(child.SetFocus(), &b);

    EXPECT_TRUE(b.hasFocus());
}

TEST_F(Focus, AnObjectWithoutAWindowGetsNoKeyboard) {
    CWnd none;

    EXPECT_EQ(none.SetFocus(), nullptr);

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(Focus, AnObjectThatGoesHasNoKeyboard) {
    auto gone = std::make_unique<LoggedWindow>(log, "gone");
    gone->Create({});
    gone->SetFocus();
    log.clear();

    gone.reset();

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Focus, TheOneThatLosesItMayGiveItToAThird) {
    ActsOnLoss loser;
    loser.Create({});
    loser.act = [&] { b.SetFocus(); };
    loser.SetFocus();

    a.SetFocus();

    EXPECT_TRUE(b.hasFocus());
    EXPECT_THAT(log, ElementsAre("a no focus, to b", "b focus from a"));
}

TEST_F(Focus, TheOneThatLosesItMayDestroyTheOther) {
    ActsOnLoss loser;
    loser.Create({});
    loser.act = [&] { a.DestroyWindow(); };
    loser.SetFocus();

    a.SetFocus();

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(Focus, TheKeyboardIsInsideAWindowAndAllAboveIt) {
    child.SetFocus();

    EXPECT_TRUE(ui::hasFocusInside(child));
    EXPECT_TRUE(ui::hasFocusInside(a));
    EXPECT_FALSE(ui::hasFocusInside(b));
}

TEST_F(Focus, TheKeyboardIsInsideNoWindowWhileTheDrawingHasIt) { EXPECT_FALSE(ui::hasFocusInside(a)); }

} // namespace
} // namespace quor
