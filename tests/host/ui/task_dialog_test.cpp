#include "sdk/ui/task_dialog.h"

#include "host/ed/script_source.h"
#include "host/ui/dpi.h"
#include "host/ui/task_dialog_text.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

using namespace quor;
using quor::test::TestSession;

namespace {

CZrUiTaskDialog dialog() {
    CZrUiTaskDialog result;
    result.SetWindowTitle(L"标题");
    result.SetMainInstruction(L"做什么？");
    result.AddCommandControl(61, L"关闭");
    result.AddCommandControl(62, L"保持");
    result.SetCommandControlExtend(62, L"说明。");
    result.SetVerificationCheckboxText(L"记住");
    result.SetCommonButtons(kTaskDialogCancelButton);
    return result;
}

std::optional<TaskDialogAnswer> typed(const wchar_t* text) {
    return ui::readTaskDialogAnswer(dialog(), {Answer::Kind::Text, text, {}});
}

TEST(TaskDialogText, ShowsTitleQuestionChoicesAndCheckbox) {
    EXPECT_EQ(ui::taskDialogText(dialog()), L"\n标题\n做什么？\n  1. 关闭\n  2. 保持\n     说明。\n"
                                            L"  [ ] 记住 (在编号后加 + 勾选)\n");
    EXPECT_EQ(ui::taskDialogPrompt(dialog()), L"\n请选择 [1-2] <1>: ");
}

TEST(TaskDialogText, NumberChooses) {
    EXPECT_EQ(typed(L"2")->command, 62);
    EXPECT_FALSE(typed(L"2")->checked);
}

TEST(TaskDialogText, PlusTicksTheBox) {
    EXPECT_EQ(typed(L"1+")->command, 61);
    EXPECT_TRUE(typed(L"1+")->checked);
}

TEST(TaskDialogText, BlanksAroundTheNumberAndThePlusDoNotCount) {
    EXPECT_EQ(typed(L" 2 + ")->command, 62);
    EXPECT_TRUE(typed(L" 2 + ")->checked);
    EXPECT_FALSE(typed(L"\t2 ")->checked);
    EXPECT_EQ(typed(L"  ")->command, 61);
}

TEST(TaskDialogText, FullWidthCharactersAreAsGood) {
    EXPECT_EQ(typed(L"２＋")->command, 62);
    EXPECT_TRUE(typed(L"２＋")->checked);
    EXPECT_TRUE(typed(L"１　＋")->checked);
    EXPECT_FALSE(typed(L"１")->checked);
    EXPECT_FALSE(typed(L"３"));
}

TEST(TaskDialogText, AnswerEndsBehindTheFirstWordOrThePlusThatFollows) {
    EXPECT_EQ(ui::taskDialogAnswerLength(L"2"), 1U);
    EXPECT_EQ(ui::taskDialogAnswerLength(L"2 0,0"), 1U);
    EXPECT_EQ(ui::taskDialogAnswerLength(L"2 + 0,0"), 3U);
    EXPECT_EQ(ui::taskDialogAnswerLength(L" 2　＋"), 4U);
    EXPECT_EQ(ui::taskDialogAnswerLength(L""), 0U);
}

TEST(TaskDialogText, NumbersBeyondTheChoicesAreNoAnswer) {
    EXPECT_FALSE(typed(L"0"));
    EXPECT_FALSE(typed(L"3"));
    EXPECT_FALSE(typed(L"99999999999999999999999"));
}

TEST(TaskDialogText, OtherTextIsNoAnswer) {
    EXPECT_FALSE(typed(L"yes"));
    EXPECT_FALSE(typed(L"+"));
    EXPECT_FALSE(typed(L"1++"));
    EXPECT_FALSE(typed(L"1 + +"));
    EXPECT_FALSE(typed(L"1 2"));
}

TEST(TaskDialogText, EnterTakesTheFirstAndEscapeCancels) {
    EXPECT_EQ(ui::readTaskDialogAnswer(dialog(), {Answer::Kind::Enter, {}, {}})->command, 61);
    EXPECT_EQ(ui::readTaskDialogAnswer(dialog(), {Answer::Kind::Cancel, {}, {}})->command, std::nullopt);
}

TEST(TaskDialog, WrongAnswerIsAskedAgain) {
    TestSession test;
    test.front().type({L"5", L"2+"});
    CZrUiTaskDialog shown = dialog();
    EXPECT_EQ(shown.DoModal(), 62);
    EXPECT_TRUE(shown.GetVerificationCheckboxState());
    EXPECT_TRUE(test.front().shows(L"请输入 1 到 2 的编号"));
}

TEST(TaskDialog, WhatIsExpectedIsSaidWithThePlus) {
    TestSession test;
    test.front().type({L"+", L"2++", L"1"});
    CZrUiTaskDialog shown = dialog();
    EXPECT_EQ(shown.DoModal(), 61);
    EXPECT_TRUE(test.front().shows(L"请输入 1 到 2 的编号，要勾选则在编号后加 +，例如 1+；Esc 取消。"));
}

TEST(TaskDialog, WithoutABoxNothingIsSaidOfThePlus) {
    TestSession test;
    test.front().type({L"+", L"1"});
    CZrUiTaskDialog shown = dialog();
    shown.SetVerificationCheckboxText(L"");
    EXPECT_EQ(shown.DoModal(), 61);
    EXPECT_TRUE(test.front().shows(L"请输入 1 到 2 的编号，Esc 取消。"));
}

TEST(TaskDialog, CancelAnswersTheCancelId) {
    TestSession test;
    test.front().type(L"^C");
    EXPECT_EQ(dialog().DoModal(), kTaskDialogCancelled);
}

TEST(TaskDialog, TheOptionAloneAllowsEscToo) {
    TestSession test;
    test.front().type(L"^C");
    CZrUiTaskDialog shown = dialog();
    shown.SetCommonButtons(0);
    shown.SetOptions(kTaskDialogAllowCancellation);
    EXPECT_EQ(shown.DoModal(), kTaskDialogCancelled);
}

TEST(TaskDialog, WhereItCannotBeCancelledEscIsAskedAgain) {
    TestSession test;
    test.front().type({L"^C", L"2"});
    CZrUiTaskDialog shown = dialog();
    shown.SetCommonButtons(0);
    EXPECT_EQ(shown.DoModal(), 62);
    EXPECT_EQ(test.front().asked().size(), 2U);
}

TEST(TaskDialog, WhereItCannotBeCancelledAWindowThatWasClosedComesAgain) {
    TestSession test;
    test.front().answerDialog({std::nullopt, false, false});
    test.front().answerDialog({61, true, false});
    CZrUiTaskDialog shown = dialog();
    shown.SetCommonButtons(0);
    EXPECT_EQ(shown.DoModal(), 61);
    EXPECT_TRUE(shown.GetVerificationCheckboxState());
}

TEST(TaskDialog, TheEndOfTheInputCancelsEveryDialog) {
    TestSession test;
    CZrUiTaskDialog shown = dialog();
    shown.SetCommonButtons(0);
    EXPECT_EQ(shown.DoModal(), kTaskDialogCancelled);
}

TEST(TaskDialog, ScriptAnswersItsDialogs) {
    TestSession test;
    test.session().input().push(std::make_unique<ed::ScriptSource>("2+\n"));
    CZrUiTaskDialog shown = dialog();
    EXPECT_EQ(shown.DoModal(), 62);
    EXPECT_TRUE(shown.GetVerificationCheckboxState());
    EXPECT_TRUE(test.front().asked().empty());
}

TEST(TaskDialog, BlankInAScriptEndsItsAnswer) {
    TestSession test;
    test.session().input().push(std::make_unique<ed::ScriptSource>("2 + \n"));
    CZrUiTaskDialog shown = dialog();
    EXPECT_EQ(shown.DoModal(), 62);
    EXPECT_FALSE(shown.GetVerificationCheckboxState());
}

TEST(TaskDialog, LineThatAPersonTypesMayGoOnWithOtherAnswers) {
    TestSession test;
    test.front().type(L"2 + 5,5");
    const Answer answer = ui::askPersonOrScript(test.session().input(), {});
    EXPECT_EQ(answer.text, L"2 +");
    const Answer next = test.session().input().ask({});
    EXPECT_EQ(next.text, L"5,5");
    EXPECT_EQ(test.front().asked().size(), 1U);
}

TEST(TaskDialog, SizesFollowTheScreen) {
    ui::setScreenDpi(144);
    EXPECT_EQ(ZkUiGetCtrlDPISize(500), 750);
    ui::setScreenDpi(ui::kReferenceDpi);
    EXPECT_EQ(ZkUiGetCtrlDPISize(500), 500);
}

} // namespace
