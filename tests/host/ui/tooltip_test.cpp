#include "sdk/ui/tooltip.h"

#include "tests/host/ui/logged_window.h"

#include <gmock/gmock.h>
#include <optional>

namespace quor {
namespace {

using test::RecordingPeer;
using testing::ElementsAre;
using testing::IsEmpty;
using Kind = InputMessage::Kind;
using Change = ui::WindowPeer::Change;

class ToolTips : public testing::Test {
protected:
    ToolTips() {
        dialog.Create({});
        list->Create({.parent = &dialog});
        panel.Create({.parent = &dialog});
        tips.Create({.parent = &dialog});
    }

    void move(CWnd& window) { tips.RelayEvent({.kind = Kind::MouseMove, .window = &window}); }
    void press(CWnd& window, Kind kind) { tips.RelayEvent({.kind = kind, .window = &window}); }

    CWnd dialog;
    std::optional<CWnd> list{std::in_place};
    CWnd panel;
    CZrUiCmdToolTipCtrl tips;
};

TEST_F(ToolTips, AWindowHasTheTextThatItWasAddedWith) {
    EXPECT_TRUE(tips.AddTool(panel, L"tip"));

    EXPECT_EQ(tips.GetText(panel), L"tip");
    EXPECT_EQ(tips.GetText(*list), L"");
}

TEST_F(ToolTips, AddingAWindowAgainChangesItsText) {
    tips.AddTool(panel, L"tip");

    EXPECT_TRUE(tips.AddTool(panel, L"other"));

    EXPECT_EQ(tips.GetText(panel), L"other");
}

TEST_F(ToolTips, AWindowThatDoesNotExistIsNotAdded) {
    CWnd none;

    EXPECT_FALSE(tips.AddTool(none, L"tip"));

    EXPECT_EQ(tips.GetText(none), L"");
}

TEST_F(ToolTips, ATextIsChangedOnlyForAWindowThatHasOne) {
    tips.AddTool(panel, L"");

    tips.UpdateTipText(L"row", panel);
    tips.UpdateTipText(L"row", *list);

    EXPECT_EQ(tips.GetText(panel), L"row");
    EXPECT_EQ(tips.GetText(*list), L"");
}

TEST_F(ToolTips, AMoveOfTheMouseBringsTheTipUp) {
    tips.AddTool(panel, L"tip");

    move(panel);

    EXPECT_EQ(tips.shown(), &panel);
}

TEST_F(ToolTips, AMoveToAnotherToolBringsThatTipUp) {
    tips.AddTool(panel, L"tip");
    tips.AddTool(*list, L"row");
    move(panel);

    move(*list);

    EXPECT_EQ(tips.shown(), &*list);
}

TEST_F(ToolTips, AnEmptyTextShowsNoTip) {
    tips.AddTool(panel, L"tip");
    tips.AddTool(*list, L"");
    move(panel);

    move(*list);

    EXPECT_EQ(tips.shown(), nullptr);
}

TEST_F(ToolTips, OtherWindowsChangeNothing) {
    tips.AddTool(panel, L"tip");
    move(panel);

    move(*list);
    press(*list, Kind::LeftDown);
    tips.RelayEvent({.kind = Kind::LeftDown});

    EXPECT_EQ(tips.shown(), &panel);
}

TEST_F(ToolTips, APressedButtonTakesTheTipAway) {
    tips.AddTool(panel, L"tip");
    move(panel);
    press(panel, Kind::LeftDown);
    EXPECT_EQ(tips.shown(), nullptr);

    move(panel);
    press(panel, Kind::RightDown);
    EXPECT_EQ(tips.shown(), nullptr);

    move(panel);
    press(panel, Kind::LeftDouble);
    EXPECT_EQ(tips.shown(), nullptr);
}

TEST_F(ToolTips, AButtonLetGoLeavesTheTip) {
    tips.AddTool(panel, L"tip");
    move(panel);

    press(panel, Kind::LeftUp);
    press(panel, Kind::RightUp);

    EXPECT_EQ(tips.shown(), &panel);
}

TEST_F(ToolTips, TheTipCanBeTakenAway) {
    tips.AddTool(panel, L"tip");
    move(panel);

    tips.Pop();

    EXPECT_EQ(tips.shown(), nullptr);
}

TEST_F(ToolTips, AnEmptiedTextTakesItsTipAway) {
    tips.AddTool(panel, L"tip");
    move(panel);

    tips.UpdateTipText(L"", panel);

    EXPECT_EQ(tips.shown(), nullptr);
}

TEST_F(ToolTips, ThePeerIsToldOnlyOfWhatIsSeen) {
    std::vector<Change> changes;
    tips.AddTool(panel, L"tip");
    tips.attachPeer(std::make_unique<RecordingPeer>(changes));

    tips.UpdateTipText(L"unseen", panel);
    EXPECT_THAT(changes, IsEmpty());

    move(panel);
    move(panel);
    EXPECT_THAT(changes, ElementsAre(Change::Picture, Change::Content));

    tips.UpdateTipText(L"seen", panel);
    EXPECT_THAT(changes, ElementsAre(Change::Picture, Change::Content, Change::Picture, Change::Content));
}

TEST_F(ToolTips, AWindowThatIsGoneHasNoTip) {
    tips.AddTool(*list, L"row");
    move(*list);

    list.reset();

    EXPECT_EQ(tips.shown(), nullptr);
}

TEST_F(ToolTips, AWindowThatIsMadeAgainIsAToolOnlyWhenItIsAdded) {
    tips.AddTool(panel, L"tip");
    panel.DestroyWindow();
    panel.Create({.parent = &dialog});

    move(panel);

    EXPECT_EQ(tips.GetText(panel), L"");
    EXPECT_EQ(tips.shown(), nullptr);
}

} // namespace
} // namespace quor
