#include "sdk/ui/window.h"

#include "tests/host/ui/logged_window.h"
#include "tests/support/silent_front_end.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>
#include <stdexcept>

namespace quor {
namespace {

using test::Log;
using test::LoggedWindow;
using testing::ElementsAre;
using testing::IsEmpty;

class Windows : public testing::Test {
protected:
    Log log;
    CWnd top;
    LoggedWindow a{log, "a"};
    LoggedWindow b{log, "b"};
};

class DestroysItself : public CWnd {
    bool OnCreate() override {
        DestroyWindow();
        return true;
    }
};

class MakesChild : public CWnd {
public:
    explicit MakesChild(Log& log) : child(log, "child") {}
    LoggedWindow child;

private:
    bool OnCreate() override {
        child.Create({.parent = this});
        return false;
    }
};

class AsksForMore : public LoggedWindow {
public:
    using LoggedWindow::LoggedWindow;
    CWnd* child = nullptr;
    bool childWasThere = false;

private:
    void OnDestroy() override {
        LoggedWindow::OnDestroy();
        childWasThere = child->IsWindow() && child->GetParent() == this;
        DestroyWindow();
    }
};

class DestroysAnother : public CWnd {
public:
    CWnd* other = nullptr;

private:
    void OnDestroy() override { other->DestroyWindow(); }
};

// A program that shows windows.
class ShowingFrontEnd : public test::SilentFrontEnd {
public:
    std::vector<CWnd*> shown;
    bool fails = false;
    void realise(CWnd& window) override {
        if (fails)
            throw std::runtime_error("no screen");
        shown.push_back(&window);
    }
};

class ShownWindows : public testing::Test {
protected:
    static SessionOptions optionsIn(const std::filesystem::path& folder) {
        SessionOptions options;
        options.settingsFile = folder / "settings";
        return options;
    }

    test::TemporaryFolder folder;
    ShowingFrontEnd front;
    Session session{front, optionsIn(folder.path())};
};

TEST_F(Windows, AnObjectHasNoWindowAtFirst) {
    EXPECT_FALSE(top.IsWindow());
    EXPECT_EQ(top.GetParent(), nullptr);
    EXPECT_THAT(top.children(), IsEmpty());
    EXPECT_FALSE(top.needsPaint());
}

TEST_F(Windows, CreationIsPreSubclassAndThenOnCreateAndNothingElse) {
    EXPECT_TRUE(a.Create({.style = WS_VISIBLE, .rect = {10, 20, 110, 70}}));

    EXPECT_TRUE(a.IsWindow());
    EXPECT_THAT(log, ElementsAre("a presubclass", "a create"));
}

TEST_F(Windows, ANewWindowHasWhatItWasCreatedWith) {
    top.Create({});

    a.Create({.parent = &top, .id = 7, .style = WS_DISABLED | 3, .rect = {10, 20, 110, 70}, .text = L"灯"});

    EXPECT_EQ(a.GetParent(), &top);
    EXPECT_EQ(a.GetDlgCtrlID(), 7U);
    EXPECT_EQ(a.GetRectInParent(), (CRect{10, 20, 110, 70}));
    EXPECT_EQ(a.GetClientRect(), (CRect{0, 0, 100, 50}));
    EXPECT_EQ(a.GetWindowText(), L"灯");
    EXPECT_FALSE(a.IsWindowEnabled());
    EXPECT_TRUE(a.needsPaint());
}

TEST_F(Windows, AParentMakesAWindowAChild) {
    top.Create({.style = WS_VISIBLE});

    a.Create({.parent = &top, .style = 5});

    EXPECT_EQ(top.GetStyle(), WS_VISIBLE);
    EXPECT_EQ(a.GetStyle(), WS_CHILD | 5);
}

TEST_F(Windows, AWindowIsVisibleOnlyIfItsStyleSaysSo) {
    top.Create({.style = WS_VISIBLE});
    a.Create({});

    EXPECT_TRUE(top.isShown());
    EXPECT_FALSE(a.isShown());
}

TEST_F(Windows, ASecondCreationIsRefusedAndChangesNothing) {
    a.Create({.text = L"first"});
    log.clear();

    EXPECT_FALSE(a.Create({.text = L"second"}));

    EXPECT_TRUE(a.IsWindow());
    EXPECT_EQ(a.GetWindowText(), L"first");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Windows, AParentWithoutAWindowGetsNoChildren) {
    EXPECT_FALSE(a.Create({.parent = &top}));

    EXPECT_FALSE(a.IsWindow());
    EXPECT_THAT(top.children(), IsEmpty());
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Windows, ARefusedCreationLeavesNoWindow) {
    top.Create({});
    a.acceptsCreation = false;

    EXPECT_FALSE(a.Create({.parent = &top, .text = L"x"}));

    EXPECT_FALSE(a.IsWindow());
    EXPECT_EQ(a.GetParent(), nullptr);
    EXPECT_EQ(a.GetWindowText(), L"");
    EXPECT_THAT(top.children(), IsEmpty());
    EXPECT_THAT(log, ElementsAre("a presubclass", "a create"));
}

TEST_F(Windows, ARefusedCreationTakesTheChildrenAlong) {
    MakesChild refused(log);

    EXPECT_FALSE(refused.Create({}));

    EXPECT_FALSE(refused.child.IsWindow());
    EXPECT_THAT(log, ElementsAre("child presubclass", "child create", "child destroy"));
}

TEST_F(Windows, AWindowThatDestroysItselfOnCreationWasNotCreated) {
    DestroysItself window;

    EXPECT_FALSE(window.Create({}));
    EXPECT_FALSE(window.IsWindow());
}

TEST_F(Windows, ChildrenStandInTheOrderInWhichTheyWereMade) {
    top.Create({});
    b.Create({.parent = &top, .id = 2});
    a.Create({.parent = &top, .id = 1});

    EXPECT_THAT(top.children(), ElementsAre(&b, &a));
}

TEST_F(Windows, AChildIsFoundByItsNumberButNotAGrandchild) {
    top.Create({});
    a.Create({.parent = &top, .id = 1});
    b.Create({.parent = &a, .id = 2});

    EXPECT_EQ(top.GetDlgItem(1), &a);
    EXPECT_EQ(top.GetDlgItem(2), nullptr);
    EXPECT_EQ(a.GetDlgItem(2), &b);
}

TEST_F(Windows, TheTopIsTheFarthestParentOrTheWindowItself) {
    top.Create({});
    a.Create({.parent = &top});
    b.Create({.parent = &a});

    EXPECT_EQ(b.GetTopLevelParent(), &top);
    EXPECT_EQ(top.GetTopLevelParent(), &top);
}

TEST_F(Windows, ADestroyedWindowIsToldBeforeItsChildrenGo) {
    a.Create({});
    b.Create({.parent = &a});
    log.clear();

    a.DestroyWindow();

    EXPECT_THAT(log, ElementsAre("a destroy", "b destroy"));
    EXPECT_FALSE(a.IsWindow());
    EXPECT_FALSE(b.IsWindow());
    EXPECT_EQ(b.GetParent(), nullptr);
}

TEST_F(Windows, AllIsStillThereWhileAWindowIsToldThatItGoes) {
    AsksForMore window(log, "w");
    window.Create({});
    a.Create({.parent = &window});
    window.child = &a;

    window.DestroyWindow();

    EXPECT_TRUE(window.childWasThere);
}

TEST_F(Windows, AWindowThatGoesIsToldOnce) {
    AsksForMore window(log, "w");
    window.Create({});
    a.Create({.parent = &window});
    window.child = &a;
    log.clear();

    window.DestroyWindow();

    EXPECT_THAT(log, ElementsAre("w destroy", "a destroy"));
}

TEST_F(Windows, AChildThatGoesMayTakeItsSiblingAlong) {
    DestroysAnother child;
    top.Create({});
    child.Create({.parent = &top});
    a.Create({.parent = &top});
    child.other = &a;
    log.clear();

    top.DestroyWindow();

    EXPECT_THAT(log, ElementsAre("a destroy"));
    EXPECT_FALSE(child.IsWindow());
}

TEST_F(Windows, AChildThatGoesMayTakeItsParentAlong) {
    DestroysAnother child;
    top.Create({});
    child.Create({.parent = &top});
    a.Create({.parent = &top});
    child.other = &top;

    child.DestroyWindow();

    EXPECT_FALSE(child.IsWindow());
    EXPECT_FALSE(top.IsWindow());
    EXPECT_FALSE(a.IsWindow());
}

TEST_F(Windows, DestroyingWithoutAWindowDoesNothing) {
    a.DestroyWindow();

    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Windows, ADestroyedWindowLeavesItsParentAndForgetsWhatItHad) {
    top.Create({});
    a.Create({.parent = &top, .id = 4, .style = WS_VISIBLE, .rect = {0, 0, 9, 9}, .text = L"x"});

    a.DestroyWindow();

    EXPECT_THAT(top.children(), IsEmpty());
    EXPECT_EQ(a.GetParent(), nullptr);
    EXPECT_EQ(a.GetDlgCtrlID(), 0U);
    EXPECT_EQ(a.GetStyle(), 0U);
    EXPECT_EQ(a.GetRectInParent(), CRect{});
    EXPECT_EQ(a.GetWindowText(), L"");
    EXPECT_FALSE(a.needsPaint());
}

TEST_F(Windows, ADestroyedWindowCanBeMadeAgain) {
    a.Create({});
    a.DestroyWindow();

    EXPECT_TRUE(a.Create({.text = L"again"}));
    EXPECT_EQ(a.GetWindowText(), L"again");
}

TEST_F(Windows, AWindowThatIsMadeAgainCanBeDestroyedAgain) {
    a.Create({});
    a.DestroyWindow();
    a.Create({});

    a.DestroyWindow();

    EXPECT_FALSE(a.IsWindow());
}

TEST_F(Windows, AnObjectThatGoesLeavesItsParentWithoutBeingTold) {
    top.Create({});
    auto gone = std::make_unique<LoggedWindow>(log, "gone");
    gone->Create({.parent = &top});
    log.clear();

    gone.reset();

    EXPECT_THAT(top.children(), IsEmpty());
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Windows, ChildrenOfAnObjectThatGoesLoseTheirWindows) {
    auto gone = std::make_unique<CWnd>();
    gone->Create({});
    a.Create({.parent = gone.get()});
    b.Create({.parent = &a});
    log.clear();

    gone.reset();

    EXPECT_FALSE(a.IsWindow());
    EXPECT_EQ(a.GetParent(), nullptr);
    EXPECT_FALSE(b.IsWindow());
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ShownWindows, OnlyWindowsAtTheTopAreShown) {
    CWnd top;
    CWnd child;
    front.shown.clear();

    top.Create({});
    child.Create({.parent = &top});

    EXPECT_THAT(front.shown, ElementsAre(&top));
}

TEST_F(ShownWindows, ARefusedWindowIsNotShown) {
    Log log;
    LoggedWindow window(log, "w");
    window.acceptsCreation = false;
    front.shown.clear();

    window.Create({});

    EXPECT_THAT(front.shown, IsEmpty());
}

TEST_F(ShownWindows, AWindowThatCannotBeShownIsNoneAndTheErrorComesThrough) {
    Log log;
    LoggedWindow window(log, "w");
    front.fails = true;

    EXPECT_THROW(window.Create({}), std::runtime_error);

    EXPECT_FALSE(window.IsWindow());
    EXPECT_THAT(log, ElementsAre("w presubclass", "w create", "w destroy"));
}

} // namespace
} // namespace quor
