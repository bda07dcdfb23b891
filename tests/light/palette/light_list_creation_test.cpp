// How the palette's window is made: in which order, and what becomes of it when something is refused on the way.
#include "sdk/rx/result_codes.h"
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

// Does something when a window changes.
class ActingPeer final : public ui::WindowPeer {
public:
    using Action = std::function<void(CWnd&, Change)>;
    explicit ActingPeer(Action action) : action_(std::move(action)) {}
    void changed(CWnd& window, Change change) override { action_(window, change); }

private:
    Action action_;
};

class LightListCreation : public PaletteTest {
protected:
    int runCommand(const wchar_t* name) { return session_.session().processor().run(name, false).result; }
    // From the moment when the palette has its window.
    static void watch(ActingPeer::Action action) {
        palette().attachPeer(std::make_unique<ActingPeer>(std::move(action)));
    }
    static void refuseDialog() {
        watch([](CWnd& window, ui::WindowPeer::Change) {
            if (!window.children().empty())
                window.children().front()->DestroyWindow();
        });
    }
};

TEST_F(LightListCreation, WithoutItsDialogThePaletteHasNoWindow) {
    refuseDialog();

    EXPECT_EQ(runCommand(L"LIGHTLIST"), RTERROR);

    EXPECT_FALSE(palette().IsWindow());
    EXPECT_EQ(palette().dialog(), nullptr);
    EXPECT_EQ(lightListState(), 0);
}

TEST_F(LightListCreation, APaletteThatWasRefusedCanBeShownTheNextTime) {
    refuseDialog();
    runCommand(L"LIGHTLIST");

    EXPECT_EQ(runCommand(L"LIGHTLIST"), RTCAN);

    EXPECT_EQ(lightListState(), 1);
}

TEST_F(LightListCreation, ItsDialogIsShownBeforeItHasItsIcon) {
    bool wasShown = false;
    watch([&](CWnd& window, ui::WindowPeer::Change change) {
        if (change == ui::WindowPeer::Change::Icon)
            wasShown = window.children().front()->isShown();
    });

    runCommand(L"LIGHTLIST");

    EXPECT_TRUE(wasShown);
    palette().attachPeer(nullptr);
}

// The style that the list has before the dialog gets it.
constexpr unsigned kOtherStyle = 0x1;

void styleList(CWnd& dialog, ui::WindowPeer::Change) {
    auto* const list = dynamic_cast<CListCtrl*>(dialog.GetDlgItem(kLightList));
    if (list != nullptr && list->GetExtendedStyle() == 0)
        list->SetExtendedStyle(kOtherStyle);
}

TEST_F(LightListCreation, WholeRowsAreSelectedBesideWhatTheListDoesAlready) {
    watch([](CWnd& window, ui::WindowPeer::Change) {
        if (!window.children().empty() && window.children().front()->peer() == nullptr)
            window.children().front()->attachPeer(std::make_unique<ActingPeer>(styleList));
    });

    runCommand(L"LIGHTLIST");

    EXPECT_EQ(list().GetExtendedStyle(), kOtherStyle | LVS_EX_FULLROWSELECT);
    dialog().attachPeer(nullptr);
    palette().attachPeer(nullptr);
}

} // namespace
} // namespace quor::test
