// What the module brings into the host beside its commands: the palette and LIGHTLISTSTATE, and that both go with it.
#include "host/document.h"
#include "host/ed/command_table.h"
#include "host/rx/module_loader.h"
#include "host/ui/user_interface.h"
#include "light/palette/light_list.h"
#include "sdk/rx/application.h"
#include "sdk/sys/ads.h"
#include "sdk/ui/palette_set_manager.h"
#include "sdk/ui/ui_service.h"
#include "tests/support/test_session.h"
#include "tests/support/translated_session.h"

#include <gtest/gtest.h>

extern "C" Zr::AppRetCode zrrxEntryPoint(unsigned message, void* applicationId);

namespace quor {
namespace {

using test::TestSession;

std::vector<CZrRxPaletteSet*> palettes() {
    const CZrRxPaletteSetManager* const manager = Singleton<CZrRxPaletteSetManager>::instancePtr(false);
    return manager != nullptr ? manager->palettes() : std::vector<CZrRxPaletteSet*>();
}

bool hasState() {
    short state = 0;
    return zwutads::getVar(L"LIGHTLISTSTATE", state);
}

// The module's entry point, called as the host does.
class LinkedModule : public testing::Test {
protected:
    static void load() { zrrxEntryPoint(Zr::kInitAppMsg, nullptr); }
    static void unload() { zrrxEntryPoint(Zr::kUnloadAppMsg, nullptr); }

    TestSession session_;
};

TEST_F(LinkedModule, LoadingItAppendsThePaletteUnderItsTitle) {
    load();

    ASSERT_EQ(palettes().size(), 1U);
    EXPECT_EQ(palettes().front(), light::lightListPalette);
    EXPECT_EQ(light::lightListPalette->GetName(), L"模型中的光源");
    EXPECT_FALSE(light::lightListPalette->IsWindow());
    unload();
}

TEST_F(LinkedModule, LoadingItRegistersTheVariable) {
    load();

    EXPECT_TRUE(hasState());
    unload();
}

TEST_F(LinkedModule, UnloadingItTakesPaletteAndVariableAway) {
    load();

    unload();

    EXPECT_EQ(light::lightListPalette, nullptr);
    EXPECT_TRUE(palettes().empty());
    EXPECT_FALSE(hasState());
}

TEST_F(LinkedModule, UnloadingItTakesAShownPaletteAway) {
    load();
    session_.run({L"LIGHTLIST"});
    ASSERT_TRUE(light::lightListPalette->IsWindowVisibleEx());

    unload();

    EXPECT_EQ(light::lightListPalette, nullptr);
    EXPECT_TRUE(palettes().empty());
}

// What is left of the module when the palette's window goes.
struct Left {
    bool command = true;
    bool variable = true;
    std::size_t palettes = 0;
};

// Goes with its window, and looks around then.
class LookingPeer final : public ui::WindowPeer {
public:
    LookingPeer(TestSession& session, Left& left) : session_(session), left_(left) {}
    ~LookingPeer() override {
        left_ = {.command = session_.session().commands().find({.name = L"LIGHTLIST"}) != nullptr,
                 .variable = hasState(),
                 .palettes = palettes().size()};
    }
    void changed(CWnd&, Change) override {}

private:
    TestSession& session_;
    Left& left_;
};

// First the commands, then the variable, then the window, then the palette itself.
TEST_F(LinkedModule, UnloadingItTakesOneThingAwayAfterTheOther) {
    load();
    session_.run({L"LIGHTLIST"});
    Left left;
    light::lightListPalette->attachPeer(std::make_unique<LookingPeer>(session_, left));

    unload();

    EXPECT_FALSE(left.command);
    EXPECT_FALSE(left.variable);
    EXPECT_EQ(left.palettes, 1U);
}

TEST_F(LinkedModule, UnloadingItAfterThePalettesAreGoneIsHarmless) {
    load();
    session_.run({L"LIGHTLIST"});
    session_.session().ui().destroyPalettes();
    CZrLightList* const before = light::lightListPalette;

    unload();

    EXPECT_EQ(light::lightListPalette, before);
    EXPECT_FALSE(hasState());
}

TEST_F(LinkedModule, WhileThePalettesAreGoneTheVariableIsZeroAndNothingIsShown) {
    load();
    session_.run({L"LIGHTLIST"});
    session_.session().ui().destroyPalettes();

    short state = -1;
    EXPECT_TRUE(zwutads::getVar(L"LIGHTLISTSTATE", state));
    EXPECT_EQ(state, 0);
    session_.run({L"LIGHTLIST", L"LIGHTLISTCLOSE"});

    unload();
}

// A palette without an owner in the host stays as it is.
TEST_F(LinkedModule, UnloadingItLeavesThePointerToAPaletteThatTheHostDoesNotKnow) {
    load();
    session_.session().ui().destroyPalettes();
    CZrLightList unknown;
    light::lightListPalette = &unknown;

    unload();

    EXPECT_EQ(light::lightListPalette, &unknown);
}

TEST_F(LinkedModule, APaletteThatFailedGoesWithTheModuleToo) {
    load();
    session_.front().whenRealised([](CWnd&) { throw std::runtime_error("no screen"); });
    session_.run({L"LIGHTLIST"});
    ASSERT_EQ(light::lightListPalette, nullptr);

    unload();

    EXPECT_TRUE(palettes().empty());
}

// The module as it is loaded from its file.
class LoadedModule : public testing::Test {
protected:
    void load() { ASSERT_TRUE(session_.loadLight(QUOR_BUILD_DIR)); }
    void unload() { ASSERT_EQ(session_.session().modules().unloadModule(L"light"), Quor::eOk); }
    bool hasCommand(const wchar_t* name) { return session_.session().commands().find({.name = name}) != nullptr; }
    // A round of work: a light is made, listed, selected, renamed by undo, erased.
    void work() {
        session_.run({L"POINTLIGHT", L"1,2,3", L"N", L"Lamp", L"X"});
        session_.run({L"LIGHTLIST"});
        session_.run({L"ERASE", L"LAST", L"", L"U", L"U", L"REDO", L"", L"NEW", L"CLOSE"});
    }

    TestSession session_;
};

TEST_F(LoadedModule, ItsPaletteIsSeenByTheHost) {
    load();

    session_.run({L"LIGHTLIST"});

    ASSERT_EQ(palettes().size(), 1U);
    EXPECT_TRUE(palettes().front()->IsWindowVisibleEx());
}

TEST_F(LoadedModule, AHundredTimesLoadedAndUnloadedItLeavesNothingBehind) {
    zwutads::setVar(L"DEFAULTLIGHTING", 0);
    const std::size_t commands = session_.session().commands().all().size();
    const std::size_t documentReactors = session_.session().documents().reactors().size();
    const std::size_t selectionReactors = session_.session().documents().selectionReactors().size();

    for (int round = 0; round < 100; ++round) {
        load();
        work();
        ASSERT_TRUE(hasState());
        unload();

        ASSERT_EQ(session_.session().commands().all().size(), commands) << round;
        ASSERT_FALSE(hasState()) << round;
        ASSERT_TRUE(palettes().empty()) << round;
        ASSERT_EQ(session_.session().documents().reactors().size(), documentReactors) << round;
        ASSERT_EQ(session_.session().documents().selectionReactors().size(), selectionReactors) << round;
    }
}

// What happens in the drawing afterwards reaches nobody.
TEST_F(LoadedModule, TheDrawingIsEditedOnAfterItIsGone) {
    zwutads::setVar(L"DEFAULTLIGHTING", 0);
    load();
    work();
    unload();

    session_.run({L"ERASE", L"LAST", L"", L"U", L"REDO", L"", L"NEW"});

    EXPECT_TRUE(palettes().empty());
    EXPECT_FALSE(hasCommand(L"LIGHTLIST"));
}

class TranslatedPalette : public test::TranslatedModuleTest {
protected:
    static ZrString title() { return palettes().at(0)->GetName(); }
};

TEST_F(TranslatedPalette, ItsTitleIsThatOfTheLanguage) {
    start("quorcmdres.txt", "7522 = \"Lamps\"\n");

    EXPECT_EQ(title(), L"Lamps");
}

TEST_F(TranslatedPalette, ATitleThatIsMissingIsTheBuiltInOne) {
    start("quorcmdres.txt", "7521 = \"Lamps\"\n");

    EXPECT_EQ(title(), L"模型中的光源");
}

} // namespace
} // namespace quor
