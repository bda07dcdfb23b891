#include "sdk/ui/palette_set_manager.h"

#include "sdk/sys/system.h"
#include "sdk/ui/ui_service.h"
#include "tests/host/ui/palette_test.h"

namespace quor::test {

namespace {

class ThePaletteSetManager : public PaletteTest {};

CZrRxPaletteSetManager* existing() { return Singleton<CZrRxPaletteSetManager>::instancePtr(false); }

TEST(ThePaletteSetManagerOfNoHost, DoesNotExist) {
    EXPECT_EQ(Singleton<CZrRxPaletteSetManager>::instancePtr(true), nullptr);
    EXPECT_EQ(zredGetQuorFrame(), nullptr);
    EXPECT_EQ(zrrxUiEvent(), nullptr);
}

TEST_F(ThePaletteSetManager, IsMadeWhenItIsFirstWanted) {
    EXPECT_EQ(existing(), nullptr);
    CZrRxPaletteSetManager* const made = Singleton<CZrRxPaletteSetManager>::instancePtr(true);
    EXPECT_NE(made, nullptr);
    EXPECT_EQ(existing(), made);
}

TEST_F(ThePaletteSetManager, GivesAPaletteItsTitle) {
    auto palette = std::make_unique<LoggingPalette>(log_);
    LoggingPalette* const given = palette.get();
    EXPECT_EQ(palettes().Append(std::move(palette), L"Lamps"), given);
    EXPECT_EQ(given->GetName(), L"Lamps");
    EXPECT_EQ(palettes().palettes(), (std::vector<CZrRxPaletteSet*>{given}));
}

TEST_F(ThePaletteSetManager, TakesNoPaletteThatIsNone) {
    EXPECT_EQ(palettes().Append(nullptr, L"Lamps"), nullptr);
    EXPECT_TRUE(palettes().palettes().empty());
}

TEST_F(ThePaletteSetManager, DestroysAPaletteWithItsWindow) {
    LoggingPalette& palette = append();
    frame().ShowControlBar(&palette, true, false);
    log_.clear();
    EXPECT_TRUE(palettes().ReleasePaletteSet(&palette));
    EXPECT_EQ(log_, (Log{"window destroyed"}));
    EXPECT_FALSE(palettes().ReleasePaletteSet(&palette));
    EXPECT_FALSE(palettes().ReleasePaletteSet(nullptr));
}

TEST_F(ThePaletteSetManager, MayGoBeforeTheModules) {
    LoggingPalette& palette = append();
    frame().ShowControlBar(&palette, true, false);
    test_.session().ui().destroyPalettes();
    EXPECT_EQ(existing(), nullptr);
    CZwSystem::instance().ui().dropPaletteSet(&palette, 0);
    EXPECT_EQ(test_.run({L"CMDECHO", L"0"}).kind, ed::Verdict::Kind::Done);
}

TEST_F(ThePaletteSetManager, IsNotThereWhileItsPalettesGo) {
    bool isThere = true;
    struct Asking : CZrRxPaletteSet {
        explicit Asking(bool& answer) : answer_(answer) {}
        ~Asking() override { answer_ = existing() != nullptr; }
        bool& answer_;
    };
    palettes().Append(std::make_unique<Asking>(isThere), L"Asking");
    test_.session().ui().destroyPalettes();
    EXPECT_FALSE(isThere);
}

TEST_F(ThePaletteSetManager, RenamesTheWindowOfAPaletteWithIt) {
    LoggingPalette& palette = append();
    palette.SetName(L"Lights");
    frame().ShowControlBar(&palette, true, false);
    EXPECT_EQ(palette.GetWindowText(), L"Lights");
    palette.SetName(L"Candles");
    EXPECT_EQ(palette.GetWindowText(), L"Candles");
}

TEST_F(ThePaletteSetManager, TellsNothingToAPaletteThatWasDropped) {
    LoggingPalette& palette = append();
    frame().ShowControlBar(&palette, true, false);
    log_.clear();
    CZwSystem::instance().ui().dropPaletteSet(&palette, 0);
    EXPECT_EQ(log_, (Log{"window destroyed"}));
    EXPECT_FALSE(palette.IsWindow());
    test_.run({L"CMDECHO", L"0"});
    EXPECT_EQ(log_, (Log{"window destroyed"}));
    EXPECT_TRUE(palettes().ReleasePaletteSet(&palette));
}

TEST_F(ThePaletteSetManager, DropsNothingThatItDoesNotHave) {
    LoggingPalette& palette = append();
    frame().ShowControlBar(&palette, true, false);
    auto gone = std::make_unique<LoggingPalette>(log_);
    CControlBar* const dangling = gone.get();
    gone.reset();
    CZwSystem::instance().ui().dropPaletteSet(dangling, 0);
    CZwSystem::instance().ui().dropPaletteSet(nullptr, 0);
    EXPECT_TRUE(palette.IsWindowVisibleEx());
}

TEST(ThePalettesOfASession, GoWithItWhoeverForgotThem) {
    Log log;
    {
        TestSession test;
        auto palette = std::make_unique<LoggingPalette>(log);
        CZrRxPaletteSet* const kept =
            Singleton<CZrRxPaletteSetManager>::instancePtr(true)->Append(std::move(palette), L"Lamps");
        zredGetQuorFrame()->ShowControlBar(kept, true, false);
        log.clear();
    }
    EXPECT_EQ(log, (Log{"window destroyed"}));
}

} // namespace

} // namespace quor::test
