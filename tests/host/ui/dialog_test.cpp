#include "sdk/ui/dialog.h"

#include "host/ui/dpi.h"
#include "host/ui/input.h"
#include "host/ui/painting.h"
#include "host/ui/recording_device.h"
#include "sdk/sys/system.h"
#include "sdk/ui/controls.h"
#include "sdk/ui/list_control.h"
#include "sdk/ui/ui_service.h"
#include "tests/host/ui/logged_window.h"
#include "tests/support/test_session.h"

#include <array>
#include <gmock/gmock.h>

namespace quor {
namespace {

using test::Log;
using test::TestSession;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using ui::ControlKind;

constexpr std::array<ui::ControlTemplate, 3> kControls{{
    {11, ControlKind::Static, {0, L"光源"}, SS_NOTIFY, {10, 4, 190, 24}},
    {12, ControlKind::List, {0, L""}, LVS_REPORT, {10, 25, 190, 150}},
    {13, ControlKind::Button, {0, L"确定"}, 0, {10, 160, 190, 180}},
}};
constexpr std::array<ui::DialogTemplate, 2> kDialogs{{{1, {200, 190}, kControls}, {2, {50, 60}, {}}}};
const ZwUiResources kResources{{}, kDialogs, {}};

// Writes down when it is initialised, and Enter and Esc.
template <class Base>
class LoggedDialog : public Base {
public:
    explicit LoggedDialog(Log& log) : log_(log) {}
    CStatic* label = nullptr;
    bool vanishes = false;

private:
    void OnInitDialog() override {
        log_.push_back("init with " + std::to_string(this->children().size()) + " controls");
        if (label != nullptr)
            this->SubclassDlgItem(11, *label);
        if (vanishes)
            this->DestroyWindow();
    }
    void OnOK() override { log_.emplace_back("OK"); }
    void OnCancel() override { log_.emplace_back("cancel"); }

    Log& log_;
};

class Attached : public CStatic {
public:
    bool hadWindow = false;

private:
    void PreSubclassWindow() override { hadWindow = IsWindow(); }
};

class Dialogs : public testing::Test {
protected:
    Dialogs() { parent.Create({}); }
    ~Dialogs() override { ui::setScreenDpi(ui::kReferenceDpi); }

    const ZwResourceScope resources{&kResources};
    Log log;
    CWnd parent;
    LoggedDialog<CDialog> dialog{log};
};

TEST_F(Dialogs, ADialogIsMadeHiddenInItsParentWithTheSizeOfItsTemplate) {
    EXPECT_TRUE(dialog.Create(1, parent));

    EXPECT_EQ(dialog.GetParent(), &parent);
    EXPECT_FALSE(dialog.isShown());
    EXPECT_EQ(dialog.GetRectInParent(), (CRect{0, 0, 200, 190}));
}

TEST_F(Dialogs, ItsControlsAreThereInTheOrderOfTheTemplateWhenItIsInitialised) {
    dialog.Create(1, parent);

    EXPECT_THAT(log, ElementsAre("init with 3 controls"));
    ASSERT_THAT(dialog.children(), SizeIs(3));
    EXPECT_NE(dynamic_cast<CStatic*>(dialog.children()[0]), nullptr);
    EXPECT_NE(dynamic_cast<CListCtrl*>(dialog.children()[1]), nullptr);
    EXPECT_NE(dynamic_cast<CButton*>(dialog.children()[2]), nullptr);
}

TEST_F(Dialogs, AControlHasWhatItsTemplateSays) {
    dialog.Create(1, parent);

    const CWnd* const label = dialog.GetDlgItem(11);

    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetWindowText(), L"光源");
    EXPECT_EQ(label->GetStyle(), WS_CHILD | WS_VISIBLE | SS_NOTIFY);
    EXPECT_EQ(label->GetRectInParent(), (CRect{10, 4, 190, 24}));
    EXPECT_TRUE(label->IsWindowEnabled());
}

TEST_F(Dialogs, AllLengthsAreThoseOfTheScreen) {
    ui::setScreenDpi(144);

    dialog.Create(1, parent);

    EXPECT_EQ(dialog.GetClientRect(), (CRect{0, 0, 300, 285}));
    EXPECT_EQ(dialog.GetDlgItem(11)->GetRectInParent(), (CRect{15, 6, 285, 36}));
}

TEST_F(Dialogs, ThereIsNoDialogWithoutItsTemplate) {
    EXPECT_FALSE(dialog.Create(3, parent));

    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_THAT(parent.children(), IsEmpty());
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Dialogs, ThereIsNoDialogWithoutAParentWindow) {
    CWnd none;

    EXPECT_FALSE(dialog.Create(1, none));

    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(Dialogs, AModulesTemplatesAreNotFoundInTheHostsOwnResources) {
    const ZwResourceScope hosts(nullptr);

    EXPECT_FALSE(dialog.Create(2, parent));
}

TEST_F(Dialogs, ADialogThatIsThereIsNotMadeAgain) {
    dialog.Create(1, parent);

    EXPECT_FALSE(dialog.Create(2, parent));

    EXPECT_THAT(dialog.children(), SizeIs(3));
}

TEST_F(Dialogs, ADialogThatGoesOnInitialisationWasNotMade) {
    dialog.vanishes = true;

    EXPECT_FALSE(dialog.Create(1, parent));
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(Dialogs, ADestroyedDialogCanBeMadeAgain) {
    dialog.Create(1, parent);
    dialog.DestroyWindow();

    EXPECT_TRUE(dialog.Create(1, parent));

    EXPECT_THAT(dialog.children(), SizeIs(3));
}

TEST_F(Dialogs, AnObjectTakesAControlOver) {
    Attached label;
    dialog.label = &label;

    dialog.Create(1, parent);

    EXPECT_EQ(dialog.GetDlgItem(11), &label);
    EXPECT_EQ(dialog.children()[0], &label);
    EXPECT_EQ(label.GetWindowText(), L"光源");
    EXPECT_TRUE(label.hadWindow);
    EXPECT_THAT(dialog.children(), SizeIs(3));
}

TEST_F(Dialogs, AControlIsTakenOverOnce) {
    CStatic first;
    CStatic second;
    dialog.Create(1, parent);

    EXPECT_TRUE(dialog.SubclassDlgItem(11, first));
    EXPECT_FALSE(dialog.SubclassDlgItem(11, second));

    EXPECT_FALSE(second.IsWindow());
    EXPECT_EQ(dialog.GetDlgItem(11), &first);
}

TEST_F(Dialogs, AControlCanBeTakenOverInEachDialogThatIsMade) {
    CStatic label;
    dialog.Create(1, parent);
    dialog.SubclassDlgItem(11, label);
    dialog.DestroyWindow();
    dialog.Create(1, parent);

    EXPECT_TRUE(dialog.SubclassDlgItem(11, label));

    EXPECT_EQ(dialog.GetDlgItem(11), &label);
}

TEST_F(Dialogs, AControlThatIsGoneCannotBeTakenOver) {
    CStatic label;
    dialog.Create(1, parent);
    dialog.GetDlgItem(11)->DestroyWindow();

    EXPECT_FALSE(dialog.SubclassDlgItem(11, label));
}

TEST_F(Dialogs, ThereIsNothingToTakeOverUnderAnotherNumber) {
    CStatic label;
    dialog.Create(1, parent);

    EXPECT_FALSE(dialog.SubclassDlgItem(99, label));
    EXPECT_FALSE(label.IsWindow());
}

TEST_F(Dialogs, AnObjectWithAWindowTakesNoControlOver) {
    CStatic label;
    label.Create({.text = L"own"});
    dialog.Create(1, parent);

    EXPECT_FALSE(dialog.SubclassDlgItem(11, label));

    EXPECT_EQ(label.GetWindowText(), L"own");
    EXPECT_EQ(dialog.GetDlgItem(11)->GetWindowText(), L"光源");
}

TEST_F(Dialogs, AnObjectThatTookAControlOverLosesItsWindowWithTheDialog) {
    CStatic label;
    {
        LoggedDialog<CDialog> brief(log);
        brief.Create(1, parent);
        brief.SubclassDlgItem(11, label);
    }

    EXPECT_FALSE(label.IsWindow());
    EXPECT_THAT(parent.children(), IsEmpty());
}

TEST_F(Dialogs, EnterAndEscAreTheDialogsWhereverTheKeyboardIsInIt) {
    dialog.Create(1, parent);
    dialog.GetDlgItem(13)->SetFocus();
    log.clear();

    ui::pressKey(VK_RETURN);
    ui::pressKey(VK_ESCAPE);
    ui::pressKey(VK_DOWN);

    EXPECT_THAT(log, ElementsAre("OK", "cancel"));
}

TEST_F(Dialogs, EnterAndEscGoNoFurtherOtherKeysAndTheMouseDo) {
    dialog.Create(1, parent);

    EXPECT_TRUE(dialog.dispatchPreTranslate({.kind = InputMessage::Kind::KeyDown, .key = VK_RETURN}));
    EXPECT_TRUE(dialog.dispatchPreTranslate({.kind = InputMessage::Kind::KeyDown, .key = VK_ESCAPE}));
    EXPECT_FALSE(dialog.dispatchPreTranslate({.kind = InputMessage::Kind::KeyDown, .key = VK_DELETE}));
    EXPECT_FALSE(dialog.dispatchPreTranslate({.kind = InputMessage::Kind::LeftDown, .key = VK_RETURN}));
}

TEST_F(Dialogs, EnterAndEscDoNotCloseADialogBesideTheDrawing) {
    CZrUiDialog beside;
    beside.Create(2, parent);

    ui::pressKey(beside, VK_RETURN);
    ui::pressKey(beside, VK_ESCAPE);

    EXPECT_TRUE(beside.IsWindow());
}

TEST_F(Dialogs, ADialogOfTheHostsLookHasTheThemesBackground) {
    const TestSession test;
    ui::RecordingDevice device;
    CZkUiBaseDialog themed;
    themed.Create(2, parent);

    ui::paint(themed, device);

    EXPECT_THAT(device.calls(), ElementsAre(ui::DrawingCall{.kind = ui::DrawingCall::Kind::Fill,
                                                            .rect = {0, 0, 50, 60},
                                                            .color = CZwSystem::instance().ui().theme().color(84)}));
}

} // namespace
} // namespace quor
