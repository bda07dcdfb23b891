#include "sdk/ui/controls.h"

#include "host/ui/input.h"
#include "host/ui/painting.h"
#include "host/ui/recording_device.h"
#include "sdk/sys/system.h"
#include "sdk/ui/ui_service.h"
#include "tests/host/ui/logged_window.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>

namespace quor {
namespace {

using test::Log;
using test::LoggedWindow;
using test::TestSession;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using ui::DrawingCall;

// Draws itself when it is owner-drawn: a focus rectangle, moved by one pixel if it has the focus.
template <class Control>
class OwnLook : public Control {
    void DrawItem(const ui::DrawItem& item) override {
        const int shift = item.focused ? 1 : 0;
        item.dc.DrawFocusRect(item.rect.Moved(shift, shift));
        item.dc.DrawText(item.selected ? L"selected" : L"not selected", item.rect, DT_LEFT);
    }
};

COLORREF themeColor(int element) { return CZwSystem::instance().ui().theme().color(element); }

DrawingCall filled(int element) {
    return {.kind = DrawingCall::Kind::Fill, .rect = {0, 0, 100, 20}, .color = themeColor(element)};
}

DrawingCall written(const ZrString& text, int element) {
    return {.kind = DrawingCall::Kind::Text,
            .rect = {0, 0, 100, 20},
            .color = themeColor(element),
            .text = text,
            .format = DT_SINGLELINE | DT_VCENTER};
}

class Controls : public testing::Test {
protected:
    Controls() { parent.Create({.style = WS_VISIBLE}); }

    [[nodiscard]] CWnd::Creation creation(unsigned style) {
        return {.parent = &parent, .id = 7, .style = style | WS_VISIBLE, .rect = {0, 0, 100, 20}, .text = L"text"};
    }

    Log log;
    LoggedWindow parent{log, "parent"};
    ui::RecordingDevice device;
};

TEST_F(Controls, AnOwnerDrawnLabelDrawsItselfInItsClientArea) {
    OwnLook<CStatic> label;
    label.Create(creation(SS_OWNERDRAW | SS_NOTIFY));

    ui::paint(label, device);

    EXPECT_THAT(device.lines(), ElementsAre(L"focus 0,0,100,20", L"text \"not selected\" 0,0,100,20 #000000 on "
                                                                 L"#FFFFFF Window"));
}

TEST_F(Controls, AnOwnerDrawnButtonKnowsWhetherItHasTheFocus) {
    OwnLook<CButton> button;
    button.Create(creation(BS_OWNERDRAW));
    ui::paint(button, device);
    button.SetFocus();
    ui::paint(button, device);

    EXPECT_EQ(device.lines()[0], L"focus 0,0,100,20");
    EXPECT_EQ(device.lines()[2], L"focus 1,1,101,21");
}

TEST_F(Controls, TheHostDrawsALabelThatDoesNotDrawItself) {
    const TestSession test;
    OwnLook<CStatic> label;
    label.Create(creation(SS_NOTIFY));

    ui::paint(label, device);

    EXPECT_THAT(device.calls(), ElementsAre(filled(kThemeLabelBackground), written(L"text", kThemeLabelText)));
}

TEST_F(Controls, TheHostDrawsAButtonThatDoesNotDrawItself) {
    const TestSession test;
    OwnLook<CButton> button;
    button.Create(creation(0));

    ui::paint(button, device);

    EXPECT_THAT(device.calls(), ElementsAre(filled(kThemePanelBackground), written(L"text", kThemePanelText)));
}

TEST_F(Controls, TheHostDrawsAFocusRectangleInAButtonWithTheFocus) {
    const TestSession test;
    CButton button;
    button.Create(creation(0));
    button.SetFocus();

    ui::paint(button, device);

    EXPECT_EQ(device.lines().back(), L"focus 0,0,100,20");
}

TEST_F(Controls, AnotherKindOfLabelIsNotOwnerDrawn) {
    const TestSession test;
    OwnLook<CStatic> label;
    label.Create(creation(0xB));

    ui::paint(label, device);

    EXPECT_EQ(device.calls().front(), filled(kThemeLabelBackground));
}

TEST_F(Controls, ALabelTellsItsParentOfAPress) {
    CStatic label;
    label.Create(creation(SS_NOTIFY));

    ui::click(label, {1, 1});

    EXPECT_THAT(log, Contains("parent notified by 7 of row -1").Times(1));
}

TEST_F(Controls, ALabelThatIsNotAskedToTellsNothing) {
    CStatic label;
    label.Create(creation(0));

    ui::click(label, {1, 1});

    EXPECT_THAT(log, Not(Contains("parent notified by 7 of row -1")));
}

TEST_F(Controls, AButtonLetGoSendsItsParentTheCommandOfItsNumber) {
    CButton button;
    button.Create(creation(0));

    ui::click(button, {1, 1});

    EXPECT_THAT(log, Contains("parent command 7").Times(1));
    EXPECT_THAT(log, Not(Contains("parent notified by 7 of row -1")));
}

TEST_F(Controls, AButtonThatOnlyTellsClicksSendsNoCommand) {
    CButton button;
    button.Create(creation(BS_NOTIFY));

    ui::click(button, {1, 1});

    EXPECT_THAT(log, Contains("parent notified by 7 of row -1").Times(1));
    EXPECT_THAT(log, Not(Contains("parent command 7")));
}

TEST_F(Controls, AButtonThatIsLetGoBesideItDoesNothing) {
    CButton button;
    button.Create(creation(0));

    ui::click(button, {100, 1});

    EXPECT_THAT(log, Not(Contains("parent command 7")));
}

TEST_F(Controls, ADisabledButtonDoesNothing) {
    CButton button;
    button.Create(creation(WS_DISABLED));

    ui::click(button, {1, 1});

    EXPECT_THAT(log, Not(Contains("parent command 7")));
}

TEST_F(Controls, AButtonWithoutAParentHasNobodyToTell) {
    CButton button;
    button.Create({.rect = {0, 0, 100, 20}});

    ui::click(button, {1, 1});

    EXPECT_TRUE(button.IsWindow());
}

} // namespace
} // namespace quor
