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

class SubclassedWindows : public testing::Test {
protected:
    Log log;
    CWnd top;
    LoggedWindow a{log, "a"};
    LoggedWindow b{log, "b"};
};

class TakesOver : public LoggedWindow {
public:
    using LoggedWindow::LoggedWindow;
    CWnd* taken = nullptr;

private:
    void takeContent(CWnd& other) override {
        write("takes content");
        taken = &other;
    }
};

TEST_F(SubclassedWindows, ASubclassedWindowGoesOnInAnotherObject) {
    top.Create({});
    a.Create({.parent = &top, .id = 5, .style = WS_VISIBLE | 9, .rect = {1, 2, 3, 4}, .text = L"x"});
    CWnd other;

    EXPECT_TRUE(other.SubclassWindow(a));

    EXPECT_FALSE(a.IsWindow());
    EXPECT_EQ(a.GetParent(), nullptr);
    EXPECT_EQ(other.GetParent(), &top);
    EXPECT_EQ(other.GetDlgCtrlID(), 5U);
    EXPECT_EQ(other.GetStyle(), WS_CHILD | WS_VISIBLE | 9);
    EXPECT_EQ(other.GetRectInParent(), (CRect{1, 2, 3, 4}));
    EXPECT_EQ(other.GetWindowText(), L"x");
    EXPECT_TRUE(other.needsPaint());
}

TEST_F(SubclassedWindows, ASubclassedWindowKeepsItsPlaceAmongItsSiblingsAndItsChildren) {
    CWnd child;
    CWnd other;
    top.Create({});
    a.Create({.parent = &top});
    b.Create({.parent = &top});
    child.Create({.parent = &a});

    other.SubclassWindow(a);

    EXPECT_THAT(top.children(), ElementsAre(&other, &b));
    EXPECT_THAT(other.children(), ElementsAre(&child));
    EXPECT_EQ(child.GetParent(), &other);
    EXPECT_THAT(a.children(), IsEmpty());
}

TEST_F(SubclassedWindows, ASubclassingObjectTakesTheContentAndIsThenTold) {
    TakesOver other(log, "other");
    a.Create({});
    log.clear();

    other.SubclassWindow(a);

    EXPECT_THAT(log, ElementsAre("other takes content", "other presubclass"));
    EXPECT_EQ(other.taken, &a);
}

TEST_F(SubclassedWindows, ASubclassedWindowKeepsTheKeyboardAndItsPeer) {
    std::vector<Change> changes;
    CWnd other;
    a.Create({});
    a.attachPeer(std::make_unique<RecordingPeer>(changes));
    a.SetFocus();

    other.SubclassWindow(a);

    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(a.peer(), nullptr);
    EXPECT_NE(other.peer(), nullptr);
    EXPECT_EQ(changes.back(), Change::Content);
}

TEST_F(SubclassedWindows, ThereIsNothingToSubclassWithoutAWindow) {
    EXPECT_FALSE(a.SubclassWindow(b));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(SubclassedWindows, AnObjectWithAWindowTakesNoOther) {
    a.Create({.text = L"a"});
    b.Create({.text = L"b"});

    EXPECT_FALSE(a.SubclassWindow(b));
    EXPECT_FALSE(a.SubclassWindow(a));

    EXPECT_EQ(a.GetWindowText(), L"a");
    EXPECT_TRUE(b.IsWindow());
}

} // namespace
} // namespace quor
