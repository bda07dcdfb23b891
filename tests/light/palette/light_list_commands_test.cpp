// The commands that show and hide the palette, and LIGHTLISTSTATE.
#include "light/palette/light_list_commands.h"

#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "sdk/ui/main_frame.h"
#include "sdk/ui/palette_set_manager.h"
#include "tests/light/palette/palette_test.h"

#include <stdexcept>

namespace quor::test {
namespace {

class LightListCommands : public PaletteTest {
protected:
    int runCommand(const wchar_t* name) { return session_.session().processor().run(name, false).result; }
    // From here on no window can be shown.
    void breakWindows() {
        front().whenRealised([](CWnd&) { throw std::runtime_error("no screen"); });
    }
};

TEST(LightListCommand, ReportsItsFlagWord) {
    EXPECT_EQ(CZrLightListCmd().commandFlags(), 6);
    EXPECT_EQ(CZrLightListCloseCmd().commandFlags(), 0);
}

TEST_F(LightListCommands, LightListShowsThePalette) {
    EXPECT_EQ(runCommand(L"LightList"), RTCAN);

    EXPECT_TRUE(palette().IsWindowVisibleEx());
}

TEST_F(LightListCommands, LightListIsDoneThoughItAnswersAsIfItWereCancelled) {
    EXPECT_EQ(session_.run({L"LIGHTLIST"}).kind, ed::Verdict::Kind::Done);
}

TEST_F(LightListCommands, LightListListsTheLightsThatAreThere) {
    make(L"B");
    make(L"A");

    runCommand(L"LightList");

    EXPECT_EQ(names(), (Names{L"A", L"B"}));
}

TEST_F(LightListCommands, LightListMakesAShownListAnew) {
    make(L"Lamp");
    runCommand(L"LightList");
    dialog().clearList();

    EXPECT_EQ(runCommand(L"LightList"), RTCAN);

    EXPECT_EQ(names(), Names{L"Lamp"});
}

TEST_F(LightListCommands, LightListCloseHidesThePalette) {
    runCommand(L"LightList");

    EXPECT_EQ(runCommand(L"LightListClose"), RTCAN);

    EXPECT_FALSE(palette().IsWindowVisibleEx());
}

TEST_F(LightListCommands, LightListCloseIsHarmlessWhileThePaletteIsHidden) {
    EXPECT_EQ(runCommand(L"LightListClose"), RTCAN);

    EXPECT_EQ(palette().dialog(), nullptr);
}

TEST_F(LightListCommands, AHiddenListIsStillFollowed) {
    runCommand(L"LightList");
    runCommand(L"LightListClose");

    make(L"Lamp");

    EXPECT_EQ(names(), Names{L"Lamp"});
}

// Without a palette. The pointer is put back for the unloading.
class LightListCommandsAlone : public LightListCommands {
protected:
    LightListCommandsAlone() { light::lightListPalette = nullptr; }
    ~LightListCommandsAlone() override { light::lightListPalette = kept_; }

private:
    CZrLightList* kept_ = light::lightListPalette;
};

TEST_F(LightListCommandsAlone, LightListFails) { EXPECT_EQ(runCommand(L"LightList"), RTERROR); }
TEST_F(LightListCommandsAlone, LightListCloseHasNothingToDo) { EXPECT_EQ(runCommand(L"LightListClose"), RTCAN); }
TEST_F(LightListCommandsAlone, TheVariableIsZero) { EXPECT_EQ(lightListState(), 0); }

TEST_F(LightListCommands, APaletteThatCannotBeShownIsTakenForGone) {
    breakWindows();

    EXPECT_EQ(runCommand(L"LightList"), RTCAN);

    EXPECT_EQ(light::lightListPalette, nullptr);
    EXPECT_EQ(lightListState(), 0);
}

TEST_F(LightListCommands, ThereIsNothingToShowOnceThePaletteIsGone) {
    breakWindows();
    runCommand(L"LightList");

    EXPECT_EQ(runCommand(L"LightList"), RTERROR);
    EXPECT_EQ(runCommand(L"LightListClose"), RTCAN);
}

// A window that breaks when it is hidden.
class BreakingPeer final : public ui::WindowPeer {
public:
    void changed(CWnd&, Change change) override {
        if (change == Change::Visibility)
            throw std::runtime_error("no screen");
    }
};

TEST_F(LightListCommands, APaletteThatCannotBeHiddenIsTakenForGone) {
    runCommand(L"LightList");
    palette().attachPeer(std::make_unique<BreakingPeer>());

    EXPECT_EQ(runCommand(L"LightListClose"), RTCAN);

    EXPECT_EQ(light::lightListPalette, nullptr);
}

TEST_F(LightListCommands, AFailureWhileTheMenuClosesThePaletteIsDropped) {
    runCommand(L"LightList");
    palette().attachPeer(std::make_unique<BreakingPeer>());

    EXPECT_NO_THROW(palette().SendMessage(WM_COMMAND, 7501));

    EXPECT_NE(light::lightListPalette, nullptr);
    palette().attachPeer(nullptr);
}

// The frame arranges itself anew.

class LightListLayout : public LightListCommands {
protected:
    LightListLayout() {
        auto bar = std::make_unique<CZrRxPaletteSet>();
        bar->SetInitialFloatingRect(kBarPlace);
        bar_ = Singleton<CZrRxPaletteSetManager>::instancePtr(true)->Append(std::move(bar), L"Bar");
        zredGetQuorFrame()->ShowControlBar(bar_, true, false);
        runCommand(L"LightList");
    }
    void displaceBar() { bar_->MoveWindow({0, 0, 10, 10}); }
    [[nodiscard]] CRect barPlace() const { return bar_->GetWindowRect(); }

    static constexpr CRect kBarPlace = {500, 10, 600, 110};

private:
    CZrRxPaletteSet* bar_;
};

TEST_F(LightListLayout, LightListGivesOtherBarsTheirPlaces) {
    displaceBar();

    runCommand(L"LightList");

    EXPECT_EQ(barPlace(), kBarPlace);
}

TEST_F(LightListLayout, LightListCloseGivesOtherBarsTheirPlaces) {
    displaceBar();

    runCommand(L"LightListClose");

    EXPECT_EQ(barPlace(), kBarPlace);
}

TEST_F(LightListLayout, TheCloseEntryOfTheMenuGivesOtherBarsTheirPlaces) {
    displaceBar();

    palette().SendMessage(WM_COMMAND, 7501);

    EXPECT_EQ(barPlace(), kBarPlace);
}

// LIGHTLISTSTATE.

TEST_F(LightListCommands, TheVariableIsZeroBeforeThePaletteWasEverShown) { EXPECT_EQ(lightListState(), 0); }

TEST_F(LightListCommands, TheVariableTellsWhetherThePaletteIsShown) {
    runCommand(L"LightList");
    EXPECT_EQ(lightListState(), 1);

    runCommand(L"LightListClose");
    EXPECT_EQ(lightListState(), 0);
}

TEST_F(LightListCommands, TheVariableFollowsTheCloseCommandOfThePalette) {
    runCommand(L"LightList");

    palette().SendMessage(WM_COMMAND, 10001);

    EXPECT_EQ(lightListState(), 0);
}

TEST_F(LightListCommands, ThePersonCanAskForTheVariable) {
    runCommand(L"LightList");

    type({L"LIGHTLISTSTATE"});

    EXPECT_TRUE(front().shows(L"LIGHTLISTSTATE = 1"));
}

TEST_F(LightListCommands, ThePersonCannotSetTheVariable) {
    type({L"SETVAR", L"LIGHTLISTSTATE", L"1"});

    EXPECT_EQ(lightListState(), 0);
    EXPECT_EQ(palette().dialog(), nullptr);
}

// Another palette, which watches the variables.
class Watcher final : public CZrRxPaletteSet {
public:
    explicit Watcher(std::vector<short>& heard) : heard_(heard) {}
    void sysVarChanged(const ZrString& name) override {
        short value = -1;
        if (name == L"LIGHTLISTSTATE" && zwutads::getVar(L"LIGHTLISTSTATE", value))
            heard_.push_back(value);
    }

private:
    std::vector<short>& heard_;
};

TEST_F(LightListCommands, OtherPalettesAreToldWhenItIsShownAndHidden) {
    std::vector<short> heard;
    Singleton<CZrRxPaletteSetManager>::instancePtr(true)->Append(std::make_unique<Watcher>(heard), L"Watcher");

    runCommand(L"LightList");
    runCommand(L"LightList");
    runCommand(L"LightListClose");
    runCommand(L"LightListClose");

    EXPECT_EQ(heard, (std::vector<short>{1, 0}));
}

// Another palette, which looks where this one stands when it is told that it is shown.
class PlaceWatcher final : public CZrRxPaletteSet {
public:
    explicit PlaceWatcher(CRect& place) : place_(place) {}
    void sysVarChanged(const ZrString& name) override {
        if (name == L"LIGHTLISTSTATE")
            place_ = light::lightListPalette->GetWindowRect();
    }

private:
    CRect& place_;
};

TEST_F(LightListCommands, ItHasItsPlaceBeforeItIsShown) {
    CRect place;
    Singleton<CZrRxPaletteSetManager>::instancePtr(true)->Append(std::make_unique<PlaceWatcher>(place), L"Watcher");
    runCommand(L"LightList");
    runCommand(L"LightListClose");
    palette().MoveWindow({0, 0, 10, 10});

    runCommand(L"LightList");

    EXPECT_EQ(place, (CRect{6, 181, 214, 619}));
}

} // namespace
} // namespace quor::test
