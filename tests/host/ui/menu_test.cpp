#include "sdk/ui/menu.h"

#include "sdk/ui/window.h"
#include "tests/support/silent_front_end.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace quor;
using ui::MenuEntry;
using ui::MenuTemplate;

namespace {

constexpr MenuEntry glyphEntries[] = {{21, {0, L"自动"}}, {22, {0, L"开"}}};
constexpr MenuEntry rowEntries[] = {{11, {0, L"删除"}}, {}, {0, {0, L"显示"}, glyphEntries}};
constexpr MenuEntry bar[] = {{.submenu = rowEntries}};
constexpr MenuTemplate menus[] = {{5, bar}, {6, {}}};
constexpr ZwUiResources own{menus, {}, {}};

class Menu : public testing::Test {
protected:
    Menu() { menu_.LoadMenu(5); }
    [[nodiscard]] CMenu& popup() { return *menu_.GetSubMenu(0); }

    ZwResourceScope scope_{&own};
    CMenu menu_;
};

TEST_F(Menu, IsMadeFromItsTemplate) {
    EXPECT_EQ(menu_.GetMenuItemCount(), 1);
    EXPECT_EQ(popup().GetMenuItemCount(), 3);
    EXPECT_EQ(popup().GetMenuItemID(0), 11U);
    EXPECT_EQ(popup().entries()[0].text, L"删除");
    EXPECT_TRUE(popup().entries()[1].isSeparator());
    EXPECT_EQ(popup().entries()[2].text, L"显示");
    ASSERT_NE(popup().GetSubMenu(2), nullptr);
    EXPECT_EQ(popup().GetSubMenu(2)->GetMenuItemID(1), 22U);
}

TEST_F(Menu, OfAnUnknownNumberHasNoEntries) {
    EXPECT_FALSE(menu_.LoadMenu(7));
    EXPECT_EQ(menu_.GetMenuItemCount(), 0);
}

TEST_F(Menu, LoadedAgainHasItsEntriesOnce) {
    EXPECT_TRUE(menu_.LoadMenu(5));
    EXPECT_EQ(menu_.GetMenuItemCount(), 1);
}

TEST_F(Menu, ThatIsDestroyedHasNoEntries) {
    menu_.DestroyMenu();
    EXPECT_EQ(menu_.GetMenuItemCount(), 0);
}

TEST_F(Menu, HasNothingAtABadPosition) {
    EXPECT_EQ(menu_.GetSubMenu(-1), nullptr);
    EXPECT_EQ(menu_.GetSubMenu(1), nullptr);
    EXPECT_EQ(popup().GetMenuItemID(-1), 0U);
    EXPECT_EQ(popup().GetMenuItemID(3), 0U);
    EXPECT_FALSE(popup().DeleteMenu(-1));
    EXPECT_FALSE(popup().DeleteMenu(3));
}

TEST_F(Menu, HasNoSubmenuAtACommandOrASeparator) {
    EXPECT_EQ(popup().GetSubMenu(0), nullptr);
    EXPECT_EQ(popup().GetSubMenu(1), nullptr);
}

TEST_F(Menu, ChecksACommandOfASubmenu) {
    EXPECT_TRUE(menu_.CheckMenuItem(22, true));

    EXPECT_TRUE(menu_.isChecked(22));
    EXPECT_TRUE(popup().GetSubMenu(2)->isChecked(22));
    EXPECT_FALSE(menu_.isChecked(21));
}

TEST_F(Menu, TakesACheckMarkAwayAgain) {
    menu_.CheckMenuItem(22, true);
    EXPECT_TRUE(menu_.CheckMenuItem(22, false));
    EXPECT_FALSE(menu_.isChecked(22));
}

TEST_F(Menu, ChecksNothingForAnUnknownCommand) {
    EXPECT_FALSE(menu_.CheckMenuItem(23, true));
    EXPECT_FALSE(menu_.isChecked(23));
}

TEST_F(Menu, ChecksNoSeparator) {
    EXPECT_FALSE(menu_.CheckMenuItem(0, true));
    EXPECT_FALSE(menu_.isChecked(0));
    EXPECT_FALSE(popup().entries()[1].checked);
}

TEST_F(Menu, LosesAnEntryWithItsSubmenu) {
    EXPECT_TRUE(popup().DeleteMenu(2));

    EXPECT_EQ(popup().GetMenuItemCount(), 2);
    EXPECT_FALSE(menu_.CheckMenuItem(21, true));
}

// Chooses a command, and keeps what it was asked.
class ChoosingFrontEnd final : public test::SilentFrontEnd {
public:
    explicit ChoosingFrontEnd(unsigned chosen) : chosen_(chosen) {}
    unsigned trackMenu(const CMenu& menu, CPoint screen) override {
        shown = menu.GetMenuItemCount();
        at = screen;
        if (whenShown)
            whenShown();
        return chosen_;
    }
    int shown = -1; // how many entries
    CPoint at;
    std::function<void()> whenShown;

private:
    unsigned chosen_;
};

class Owner final : public CWnd {
public:
    Owner() { Create({.rect = {0, 0, 10, 10}}); }
    std::vector<unsigned> commands;

protected:
    bool OnCommand(unsigned id) override {
        commands.push_back(id);
        return true;
    }
};

class ShownMenu : public Menu {
protected:
    bool track(unsigned chosen) {
        ChoosingFrontEnd front(chosen);
        Session session(front, {.settingsFile = folder_.path() / "settings.ini",
                                .resourceFolder = {},
                                .moduleFolders = {},
                                .language = L"zh"});
        front.whenShown = whenShown_;
        const bool result = popup().TrackPopupMenu({30, 40}, *owner_);
        shown_ = front.shown;
        at_ = front.at;
        return result;
    }

    test::TemporaryFolder folder_;
    std::unique_ptr<Owner> owner_ = std::make_unique<Owner>();
    std::function<void()> whenShown_;
    int shown_ = -1;
    CPoint at_;
};

TEST_F(ShownMenu, IsShownAtThePointAndSendsTheChosenCommandToItsOwner) {
    EXPECT_TRUE(track(22));

    EXPECT_EQ(shown_, 3);
    EXPECT_EQ(at_, (CPoint{30, 40}));
    EXPECT_EQ(owner_->commands, std::vector<unsigned>{22});
}

TEST_F(ShownMenu, SendsNothingToAnOwnerThatIsGoneMeanwhile) {
    whenShown_ = [this] { owner_.reset(); };

    EXPECT_FALSE(track(22));
}

TEST_F(ShownMenu, SendsNothingWhenNothingIsChosen) {
    EXPECT_FALSE(track(0));
    EXPECT_TRUE(owner_->commands.empty());
}

TEST_F(ShownMenu, SendsNoCommandThatItDoesNotHave) {
    EXPECT_FALSE(track(99));
    EXPECT_TRUE(owner_->commands.empty());
}

TEST_F(ShownMenu, WithoutEntriesIsNotShown) {
    popup().DestroyMenu();

    EXPECT_FALSE(track(11));
    EXPECT_EQ(shown_, -1);
    EXPECT_TRUE(owner_->commands.empty());
}

TEST_F(ShownMenu, IsNotShownWhileNoHostIsRunning) {
    EXPECT_FALSE(popup().TrackPopupMenu({30, 40}, *owner_));
    EXPECT_TRUE(owner_->commands.empty());
}

} // namespace
