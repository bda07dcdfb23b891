// The palette goes, or something else happens, while others are being told of it.
#include "host/ui/input.h"
#include "sdk/ed/selection.h"
#include "sdk/rx/result_codes.h"
#include "sdk/ui/palette_set_manager.h"
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

using Change = ui::WindowPeer::Change;

void releasePalette() {
    Singleton<CZrRxPaletteSetManager>::instancePtr(false)->ReleasePaletteSet(light::lightListPalette);
}

class LightListGoes : public PaletteTest {
protected:
    int runCommand(const wchar_t* name) { return session_.session().processor().run(name, false).result; }
    static bool isGone() {
        return light::lightListPalette == nullptr &&
               Singleton<CZrRxPaletteSetManager>::instancePtr(false)->palettes().empty();
    }
};

TEST_F(LightListGoes, WhileItsWindowIsShownForTheFirstTime) {
    front().whenRealised([](CWnd&) { releasePalette(); });

    EXPECT_EQ(runCommand(L"LIGHTLIST"), RTCAN);

    EXPECT_TRUE(isGone());
    EXPECT_EQ(lightListState(), 0);
}

TEST_F(LightListGoes, WhileItsWindowIsShownByAProgramThatFailsThen) {
    front().whenRealised([](CWnd&) {
        releasePalette();
        throw std::runtime_error("no screen");
    });

    EXPECT_EQ(runCommand(L"LIGHTLIST"), RTCAN);

    EXPECT_TRUE(isGone());
}

// Takes the palette away, and itself with it, when the palette's window changes.
class ReleasingPeer final : public ui::WindowPeer {
public:
    explicit ReleasingPeer(Change awaited) : awaited_(awaited) {}
    void changed(CWnd&, Change change) override {
        if (change == awaited_)
            releasePalette();
    }

private:
    Change awaited_;
};

class LightListGoesWhen : public LightListGoes, public testing::WithParamInterface<Change> {};

TEST_P(LightListGoesWhen, ItsWindowChangesAsItIsShown) {
    show();
    hide();
    palette().MoveWindow({0, 0, 5, 5});
    palette().attachPeer(std::make_unique<ReleasingPeer>(GetParam()));

    EXPECT_EQ(runCommand(L"LIGHTLIST"), RTCAN);

    EXPECT_TRUE(isGone());
}

INSTANTIATE_TEST_SUITE_P(All, LightListGoesWhen, testing::Values(Change::Place, Change::Visibility, Change::Picture));

TEST_F(LightListGoes, WhileItIsHidden) {
    show();
    palette().attachPeer(std::make_unique<ReleasingPeer>(Change::Visibility));

    EXPECT_EQ(runCommand(L"LIGHTLISTCLOSE"), RTCAN);

    EXPECT_TRUE(isGone());
}

// Menus.

TEST_F(LightListGoes, WhileItsMenuIsShown) {
    show();
    front().whenMenuShown(releasePalette);
    front().chooseMenu(7502);

    ui::rightClick(palette(), {5, 5});

    EXPECT_TRUE(isGone());
}

TEST_F(LightListGoes, WhileTheMenuOfItsDialogIsShown) {
    show();
    front().whenMenuShown(releasePalette);
    front().chooseMenu(7512);

    ui::rightClick(dialog(), {2, 2});

    EXPECT_TRUE(isGone());
}

TEST_F(LightListGoes, WhileTheMenuOfARowIsShown) {
    show();
    make(L"Lamp");
    front().whenMenuShown(releasePalette);
    front().chooseMenu(7507);

    rightClick(0);
    runWaiting();

    EXPECT_TRUE(isGone());
    EXPECT_FALSE(front().shows(L"ERASE"));
}

// Takes the palette away when something else is selected in the drawing.
class ReleasingListener final : public ZrEdSelectionReactor {
public:
    ReleasingListener() { zredAddSelectionReactor(this); }
    ~ReleasingListener() override { zredRemoveSelectionReactor(this); }
    void impliedSelectionChanged() override { releasePalette(); }
};

TEST_F(LightListGoes, WhileARightClickSelectsItsLightInTheDrawing) {
    show();
    make(L"Lamp");
    const ReleasingListener listener;
    front().chooseMenu(7507);

    rightClick(0);

    EXPECT_TRUE(isGone());
    EXPECT_TRUE(front().lastMenu().empty());
}

TEST_F(LightListGoes, WhileAClickSelectsItsLightInTheDrawing) {
    show();
    make(L"Lamp");
    const ReleasingListener listener;

    click(0);

    EXPECT_TRUE(isGone());
}

TEST_F(LightListGoes, WhileTheEndOfACommandIsTold) {
    show();
    const ZrDbObjectId lamp = make(L"Lamp");
    selectInDrawing({lamp});
    const ReleasingListener listener;

    type({L"ERASE"});

    EXPECT_TRUE(isGone());
}

// Tells the palette of lights that are appended while a row is being shown, more than it has room for.
class AppendingPeer final : public ui::WindowPeer {
public:
    explicit AppendingPeer(std::vector<ZrDbObjectId> lights) : lights_(std::move(lights)) {}
    void changed(CWnd&, Change) override {
        for (const ZrDbObjectId id : lights_) {
            const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForRead);
            light::lightListPalette->lightAppended(light->database(), light.object());
        }
    }

private:
    std::vector<ZrDbObjectId> lights_;
};

using LightListGoesOn = LightListGoes;

TEST_F(LightListGoesOn, WhenLightsAreAppendedWhileOthersAreBeingShown) {
    show();
    const ZrDbObjectId late = make(L"Late");
    const ZrDbObjectId later = make(L"Later");
    asCommand([&] {
        for (const wchar_t* const name : {L"A", L"B", L"C"})
            type({L"POINTLIGHT", L"1,2,3", L"N", name, L"X"});
        dialog().clearList();
        list().attachPeer(std::make_unique<AppendingPeer>(std::vector{late, later}));
    });
    list().attachPeer(nullptr);
    EXPECT_EQ(names(), (Names{L"A", L"B", L"C"}));

    palette().commandFinished();

    EXPECT_EQ(names(), (Names{L"A", L"B", L"C", L"Late", L"Later"}));
}

} // namespace
} // namespace quor::test
