#include "host/ui/acting.h"
#include "sdk/ui/image_list.h"
#include "sdk/ui/resource_templates.h"
#include "tests/host/ui/logged_window.h"

#include <array>
#include <gmock/gmock.h>

namespace quor {
namespace {

using test::Log;
using test::LoggedWindow;
using test::RecordingPeer;
using testing::ElementsAre;
using testing::IsEmpty;
using Change = ui::WindowPeer::Change;

class WindowMessages : public testing::Test {
protected:
    WindowMessages() {
        top.Create({});
        child.Create({.parent = &top, .id = 7});
        log.clear();
    }

    Log log;
    LoggedWindow top{log, "top"};
    LoggedWindow child{log, "child"};
};

// Does something when a command comes, and does not know it.
class ActsOnCommand : public CWnd {
public:
    std::function<void()> act;

private:
    bool OnCommand(unsigned /*id*/) override {
        act();
        return false;
    }
};

std::intptr_t addressOf(const CIcon& icon) { return reinterpret_cast<std::intptr_t>(&icon); }

class WindowIcon : public WindowMessages {
protected:
    WindowIcon() { icon.LoadIcon(&resources, 9); }

    static constexpr std::array<ui::PictureResource, 1> pictures{{{9, {0, L""}, {16, 16}, "<svg/>"}}};
    const ZwUiResources resources{{}, {}, pictures};
    CIcon icon;
};

TEST_F(WindowMessages, ACommandGoesUpToTheFirstThatKnowsIt) {
    top.knowsCommands = true;

    EXPECT_EQ(child.SendMessage(WM_COMMAND, 42), 1);

    EXPECT_THAT(log, ElementsAre("child command 42", "top command 42"));
}

TEST_F(WindowMessages, AKnownCommandGoesNoFurther) {
    child.knowsCommands = true;

    EXPECT_EQ(child.SendMessage(WM_COMMAND, 42), 1);

    EXPECT_THAT(log, ElementsAre("child command 42"));
}

TEST_F(WindowMessages, ACommandThatNobodyKnowsIsAnsweredWithZero) {
    EXPECT_EQ(child.SendMessage(WM_COMMAND, 42), 0);

    EXPECT_THAT(log, ElementsAre("child command 42", "top command 42"));
}

TEST_F(WindowMessages, ACommandEndsWithAWindowThatItDestroys) {
    ActsOnCommand window;
    window.Create({.parent = &top});
    window.act = [&] { window.DestroyWindow(); };

    EXPECT_EQ(window.SendMessage(WM_COMMAND, 42), 0);

    EXPECT_THAT(log, IsEmpty());
}

TEST_F(WindowMessages, WhileACommandIsHandledItsTopLevelWindowActs) {
    const CWnd* acting = nullptr;
    ActsOnCommand window;
    window.Create({.parent = &child});
    window.act = [&] { acting = ui::actingWindow(); };

    window.SendMessage(WM_COMMAND, 1);

    EXPECT_EQ(acting, &top);
    EXPECT_EQ(ui::actingWindow(), nullptr);
}

TEST_F(WindowMessages, OtherMessagesGoToTheWindowAloneAndAreAnsweredByIt) {
    child.answer = 11;

    EXPECT_EQ(child.SendMessage(WM_APP + 1, 2, 3), 11);

    EXPECT_THAT(log, ElementsAre("child message 32769 2 3"));
}

TEST_F(WindowMessages, OtherMessagesAreNoActionOfAPerson) {
    const CWnd* acting = &top;
    class : public CWnd {
    public:
        const CWnd** seen = nullptr;

    private:
        std::intptr_t OnMessage(unsigned, std::uintptr_t, std::intptr_t) override {
            *seen = ui::actingWindow();
            return 0;
        }
    } window;
    window.Create({});
    window.seen = &acting;

    window.SendMessage(WM_APP);

    EXPECT_EQ(acting, nullptr);
}

TEST_F(WindowMessages, WithoutAWindowNoMessageArrives) {
    LoggedWindow none(log, "none");
    none.answer = 5;

    EXPECT_EQ(none.SendMessage(WM_APP), 0);
    EXPECT_EQ(none.SendMessage(WM_COMMAND, 1), 0);

    EXPECT_THAT(log, IsEmpty());
}

TEST_F(WindowMessages, AControlTellsItsParentWithItsNumber) {
    top.answer = 1;

    EXPECT_EQ(child.notifyParent({.code = ui::Notification::Code::Click, .index = 3}), 1);

    EXPECT_THAT(log, ElementsAre("top notified by 7 of row 3"));
}

TEST_F(WindowMessages, WithoutAParentNobodyIsTold) {
    EXPECT_EQ(top.notifyParent({.code = ui::Notification::Code::Click}), 0);

    EXPECT_THAT(log, IsEmpty());
}

TEST_F(WindowIcon, TheSmallIconIsKept) {
    std::vector<Change> changes;
    top.attachPeer(std::make_unique<RecordingPeer>(changes));

    top.SendMessage(WM_SETICON, ICON_SMALL, addressOf(icon));

    EXPECT_EQ(top.icon(), &pictures.front());
    EXPECT_THAT(changes, ElementsAre(Change::Icon));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(WindowIcon, ANullIconTakesItAway) {
    top.SendMessage(WM_SETICON, ICON_SMALL, addressOf(icon));

    top.SendMessage(WM_SETICON, ICON_SMALL, 0);

    EXPECT_EQ(top.icon(), nullptr);
}

TEST_F(WindowIcon, TheBigIconIsNotTheSmallOne) {
    top.SendMessage(WM_SETICON, ICON_BIG, addressOf(icon));

    EXPECT_EQ(top.icon(), nullptr);
}

TEST_F(WindowIcon, AWindowThatIsTakenOverKeepsItsIcon) {
    CWnd other;
    top.SendMessage(WM_SETICON, ICON_SMALL, addressOf(icon));

    other.SubclassWindow(top);

    EXPECT_EQ(other.icon(), &pictures.front());
    EXPECT_EQ(top.icon(), nullptr);
}

} // namespace
} // namespace quor
