// The tooltips of the palette: the name of the row under the mouse, and the tips.
#include "host/ui/input.h"
#include "sdk/ui/tooltip.h"
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

constexpr const wchar_t* selectTip = L"单击列表上的光源以在模型中选择它。使用CTRL键进行多重选择。";
constexpr const wchar_t* distantTip = L"注意：平行光和阳光在模型中不作为界面对象显示。";

class LightListTooltip : public ShownPaletteTest {
protected:
    LightListTooltip() {
        for (const wchar_t* const name : {L"A", L"B", L"C", L"D"})
            make(name);
    }
    static CToolTipCtrl& tooltip() {
        for (CWnd* const child : dialog().children())
            if (auto* const found = dynamic_cast<CToolTipCtrl*>(child))
                return *found;
        throw std::logic_error("the dialog has no tooltips");
    }
};

TEST_F(LightListTooltip, TheTipOfTheTipsIsBothSentencesOnOneLine) {
    EXPECT_EQ(tooltip().GetText(tips()), ZrString(selectTip) + distantTip);
}

TEST_F(LightListTooltip, TheListHasNoTipAtFirst) { EXPECT_EQ(tooltip().GetText(list()), L""); }

TEST_F(LightListTooltip, TheTipOfTheListIsTheNameUnderTheMouse) {
    moveTo(0);
    EXPECT_EQ(tooltip().GetText(list()), L"A");
    EXPECT_EQ(tooltip().shown(), &list());
    moveTo(3);

    EXPECT_EQ(tooltip().GetText(list()), L"D");
    EXPECT_EQ(tooltip().shown(), &list());
}

// Looks which tip is shown when something of the tooltips has changed.
class WatchingPeer final : public ui::WindowPeer {
public:
    explicit WatchingPeer(std::vector<const CWnd*>& shown) : shown_(shown) {}
    void changed(CWnd& window, Change change) override {
        if (change == Change::Content)
            shown_.push_back(static_cast<CToolTipCtrl&>(window).shown());
    }

private:
    std::vector<const CWnd*>& shown_;
};

TEST_F(LightListTooltip, TheTipIsTakenAwayBeforeItHasAnotherName) {
    moveTo(0);
    std::vector<const CWnd*> shown;
    tooltip().attachPeer(std::make_unique<WatchingPeer>(shown));

    moveTo(1);

    EXPECT_EQ(shown, (std::vector<const CWnd*>{nullptr, &list()}));
    tooltip().attachPeer(nullptr);
}

TEST_F(LightListTooltip, TheTipStaysWhileTheMouseStaysOnARow) {
    moveTo(0);
    std::vector<const CWnd*> shown;
    tooltip().attachPeer(std::make_unique<WatchingPeer>(shown));

    moveTo(0);

    EXPECT_TRUE(shown.empty());
    tooltip().attachPeer(nullptr);
}

TEST_F(LightListTooltip, BesideTheRowsThereIsNoTip) {
    moveTo(0);

    ui::moveMouse(list(), {50, list().GetClientRect().bottom - 1});

    EXPECT_EQ(tooltip().GetText(list()), L"");
    EXPECT_EQ(tooltip().shown(), nullptr);
}

TEST_F(LightListTooltip, OverTheHeadingsThereIsNoTip) {
    moveTo(0);

    ui::moveMouse(*list().GetHeaderCtrl(), {60, 5});

    EXPECT_EQ(tooltip().GetText(list()), L"");
    EXPECT_EQ(tooltip().shown(), nullptr);
}

TEST_F(LightListTooltip, ATipHas1024CharactersAtMost) {
    make(L"Lamp");
    list().SetItemText(0, 1, ZrString(2000, L'x'));

    moveTo(0);

    EXPECT_EQ(tooltip().GetText(list()), ZrString(1024, L'x'));
}

TEST_F(LightListTooltip, APressedButtonTakesTheTipAway) {
    moveTo(0);

    click(0);

    EXPECT_EQ(tooltip().shown(), nullptr);
}

TEST_F(LightListTooltip, TheTipsHaveATipUnderTheMouse) {
    ui::moveMouse(tips(), {10, 10});

    EXPECT_EQ(tooltip().shown(), &tips());
}

} // namespace
} // namespace quor::test
