#include "sdk/ui/main_frame.h"

#include "tests/host/ui/palette_test.h"

#include <stdexcept>

namespace quor::test {

namespace {

class TheMainFrame : public PaletteTest {
protected:
    TheMainFrame() {
        palette_ = &append(L"Lamps");
        palette_->SetInitialFloatingRect({6, 181, 214, 619});
    }
    void show() { frame().ShowControlBar(palette_, true, false); }
    void hide() { frame().ShowControlBar(palette_, false, false); }

    LoggingPalette* palette_ = nullptr;
};

TEST_F(TheMainFrame, IsShownFromTheStart) {
    EXPECT_TRUE(frame().IsWindowVisible());
    EXPECT_EQ(front().realised(), (std::vector<CWnd*>{&frame()}));
}

TEST_F(TheMainFrame, MakesTheWindowOfABarWhenItIsShownForTheFirstTime) {
    EXPECT_FALSE(palette_->IsWindow());
    show();
    EXPECT_TRUE(palette_->IsWindowVisibleEx());
    EXPECT_EQ(palette_->GetWindowText(), L"Lamps");
    EXPECT_EQ(palette_->GetWindowRect(), (CRect{6, 181, 214, 619}));
    EXPECT_EQ(front().realised(), (std::vector<CWnd*>{&frame(), palette_}));
}

TEST_F(TheMainFrame, RealisesABarBeforeItIsShown) {
    bool wasShown = true;
    front().whenRealised([&](CWnd& window) { wasShown = window.isShown(); });
    show();
    EXPECT_FALSE(wasShown);
}

TEST_F(TheMainFrame, MakesNoWindowToHideABar) {
    hide();
    EXPECT_FALSE(palette_->IsWindow());
    EXPECT_EQ(log_, Log{});
}

TEST_F(TheMainFrame, TellsABarOfItsVisibilityWhenItReallyChanges) {
    show();
    show();
    hide();
    hide();
    show();
    EXPECT_EQ(log_,
              (Log{"laid out 208 x 438", "shown", "laid out 208 x 438", "hidden", "laid out 208 x 438", "shown"}));
    EXPECT_EQ(front().realised().size(), 2U);
}

TEST_F(TheMainFrame, HidesABar) {
    show();
    hide();
    EXPECT_TRUE(palette_->IsWindow());
    EXPECT_FALSE(palette_->IsVisible());
    EXPECT_FALSE(palette_->IsWindowVisibleEx());
}

TEST_F(TheMainFrame, IgnoresNoBar) {
    frame().ShowControlBar(nullptr, true, false);
    EXPECT_EQ(front().realised().size(), 1U);
}

TEST_F(TheMainFrame, LeavesABarThatRefusesWithoutAWindow) {
    palette_->isCreationRefused = true;
    show();
    EXPECT_FALSE(palette_->IsWindow());
    EXPECT_EQ(log_, Log{});
    palette_->isCreationRefused = false;
    show();
    EXPECT_TRUE(palette_->IsWindowVisibleEx());
}

TEST_F(TheMainFrame, PassesOnWhatTheProgramThrowsAndTriesAgain) {
    front().whenRealised([](CWnd&) { throw std::runtime_error("no screen"); });
    EXPECT_THROW(show(), std::runtime_error);
    EXPECT_FALSE(palette_->IsWindow());
    front().whenRealised(nullptr);
    log_.clear();
    show();
    EXPECT_EQ(log_, (Log{"laid out 208 x 438", "shown"}));
}

TEST_F(TheMainFrame, GoesOnWithoutABarThatIsGoneOnceItsWindowIsMade) {
    front().whenRealised([&](CWnd&) { palettes().ReleasePaletteSet(palette_); });
    show();
    frame().RecalcLayout();
    EXPECT_TRUE(palettes().palettes().empty());
    EXPECT_EQ(frame().takeBroughtToView(), nullptr);
}

TEST_F(TheMainFrame, GoesOnWithoutABarThatIsGoneOnceItIsLaidOut) {
    palette_->whenTold = [&] { palettes().ReleasePaletteSet(palette_); };
    show();
    EXPECT_TRUE(palettes().palettes().empty());
    EXPECT_EQ(log_, (Log{"laid out 208 x 438", "window destroyed"}));
}

TEST_F(TheMainFrame, PutsTheShownBarsInTheirPlaces) {
    LoggingPalette& hidden = append(L"Others", "hidden");
    frame().ShowControlBar(&hidden, true, false);
    frame().ShowControlBar(&hidden, false, false);
    show();
    palette_->MoveWindow({0, 0, 10, 10});
    log_.clear();
    frame().RecalcLayout();
    EXPECT_EQ(palette_->GetWindowRect(), (CRect{6, 181, 214, 619}));
    EXPECT_EQ(log_.back(), "laid out 208 x 438");
    EXPECT_EQ(log_, (Log{"laid out 208 x 438", "laid out 208 x 438"}));
}

TEST_F(TheMainFrame, LeavesThePlaceOfADelayedBarToTheNextLayout) {
    frame().ShowControlBar(palette_, true, true);
    EXPECT_EQ(log_, (Log{"shown"}));
    frame().RecalcLayout();
    EXPECT_EQ(log_, (Log{"shown", "laid out 208 x 438"}));
}

TEST_F(TheMainFrame, MakesNoBarSmallerThanItCanBe) {
    palette_->leastSize = {300, 250};
    show();
    EXPECT_EQ(palette_->GetWindowRect(), (CRect{6, 181, 306, 619}));
    palette_->SetFloatingRect({0, 0, 400, 100});
    EXPECT_EQ(palette_->GetWindowRect(), (CRect{0, 0, 400, 250}));
}

TEST_F(TheMainFrame, LaysABarOutThatThePersonHasSized) {
    show();
    log_.clear();
    palette_->SetFloatingRect({10, 10, 110, 60});
    EXPECT_EQ(log_, (Log{"laid out 100 x 50"}));
    frame().RecalcLayout();
    EXPECT_EQ(palette_->GetWindowRect(), (CRect{10, 10, 110, 60}));
}

TEST_F(TheMainFrame, LeavesADockedBarInItsPlace) {
    show();
    log_.clear();
    palette_->SetDockedRect({0, 50, 250, 650});
    EXPECT_TRUE(palette_->IsDocked());
    EXPECT_EQ(log_, (Log{"laid out 250 x 600"}));
    frame().RecalcLayout();
    EXPECT_EQ(palette_->GetWindowRect(), (CRect{0, 50, 250, 650}));
    EXPECT_EQ(palette_->GetFloatingRect(), (CRect{6, 181, 214, 619}));
}

TEST_F(TheMainFrame, MakesNoDockedBarLargerThanItsDock) {
    palette_->leastSize = {300, 250};
    show();
    palette_->SetDockedRect({0, 0, 100, 100});
    EXPECT_EQ(palette_->GetWindowRect(), (CRect{0, 0, 100, 100}));
}

TEST_F(TheMainFrame, LetsADockedBarFloatAgain) {
    show();
    palette_->SetDockedRect({0, 50, 250, 650});
    palette_->SetFloatingRect({10, 10, 110, 60});
    EXPECT_FALSE(palette_->IsDocked());
    frame().RecalcLayout();
    EXPECT_EQ(palette_->GetWindowRect(), (CRect{10, 10, 110, 60}));
}

TEST_F(TheMainFrame, ShowsABarThatWasDockedWhileItWasHiddenInItsDock) {
    show();
    hide();
    palette_->SetDockedRect({0, 50, 250, 650});
    show();
    EXPECT_EQ(palette_->GetWindowRect(), (CRect{0, 50, 250, 650}));
}

TEST_F(TheMainFrame, ForgetsABarThatIsGone) {
    show();
    palettes().ReleasePaletteSet(palette_);
    log_.clear();
    frame().RecalcLayout();
    test_.session().ui().settle();
    EXPECT_EQ(log_, Log{});
}

TEST_F(TheMainFrame, ShowsAPaletteToThePersonAtOnceBetweenCommands) {
    show();
    EXPECT_TRUE(front().shows(L"Lamps\n"));
}

TEST_F(TheMainFrame, ShowsAPaletteToThePersonAfterTheCommandThatBroughtItToView) {
    ZrString during;
    test_.addCommand(L"LAMPS", [&] {
        show();
        show();
        front().print(L"\nend of the command\n");
        return RTNORM;
    });
    front().clearScreen();
    test_.run({L"LAMPS"});
    EXPECT_EQ(front().screen(), L"命令: LAMPS\nend of the command\nLamps\n命令: \n");
}

TEST_F(TheMainFrame, ShowsAPaletteAgainThatWasShownAlready) {
    show();
    front().clearScreen();
    show();
    EXPECT_EQ(front().screen(), L"Lamps\n");
}

TEST_F(TheMainFrame, DoesNotShowAPaletteToThePersonThatIsHiddenByThen) {
    test_.addCommand(L"LAMPS", [&] {
        show();
        hide();
        return RTNORM;
    });
    front().clearScreen();
    test_.run({L"LAMPS"});
    EXPECT_FALSE(front().shows(L"Lamps\n"));
}

} // namespace

} // namespace quor::test
