// Task dialogs are answered by mouse and by keyboard alone.
#include "desktop/dialogs/task_dialog.h"

#include "desktop/dialogs/command_link.h"
#include "sdk/ui/task_dialog.h"
#include "tests/desktop/dialogs/dialog_steps.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace quor::desktop::test {
namespace {

constexpr int kFirst = 6915;
constexpr int kSecond = 6916;

CZrUiTaskDialog lightingMode() {
    CZrUiTaskDialog dialog;
    dialog.SetDialogWidth(500);
    dialog.SetWindowTitle(L"光源 - 视口光源模式");
    dialog.SetMainInstruction(
        L"打开默认光源时，无法在视口中显示日光和来自点光源、聚光灯和平行光的光。希望执行什么操作？");
    dialog.AddCommandControl(kFirst, L"关闭默认光源(建议)");
    dialog.AddCommandControl(kSecond, L"使默认光源保持打开状态");
    dialog.SetCommandControlExtend(
        kSecond, L"添加用户光源时，默认光源将处于打开状态。要查看用户光源的效果，请手动关闭默认光源。");
    dialog.SetVerificationCheckboxText(L"始终执行我的当前选择");
    dialog.SetOptions(25);
    dialog.SetCommonButtons(8);
    return dialog;
}

CZrUiTaskDialog withoutCancel() {
    CZrUiTaskDialog dialog = lightingMode();
    dialog.SetOptions(kTaskDialogUseCommandLinks);
    dialog.SetCommonButtons(0);
    return dialog;
}

// What comes of the dialog when a person does these things.
TaskDialogAnswer answered(const CZrUiTaskDialog& description, const std::vector<Step>& steps) {
    TaskDialog dialog(description, nullptr);
    later(steps);
    return dialog.ask();
}

QList<CommandLink*> linksOf(const QWidget& dialog) { return dialog.findChildren<CommandLink*>(); }

TEST(TaskDialogTest, EnterTakesTheFirstLink) {
    const TaskDialogAnswer answer = answered(lightingMode(), {press(Qt::Key_Return)});
    EXPECT_EQ(answer.command, kFirst);
    EXPECT_FALSE(answer.checked);
}

TEST(TaskDialogTest, EnterTakesTheRecommendedLinkWhereThereIsOne) {
    CZrUiTaskDialog description = lightingMode();
    description.SetEnableBtn(kSecond);
    EXPECT_EQ(answered(description, {press(Qt::Key_Return)}).command, kSecond);
}

TEST(TaskDialogTest, TheRecommendedLinkIsMarked) {
    CZrUiTaskDialog description = lightingMode();
    description.SetEnableBtn(kSecond);
    const TaskDialog dialog(description, nullptr);
    EXPECT_FALSE(linksOf(dialog)[0]->isRecommended());
    EXPECT_TRUE(linksOf(dialog)[1]->isRecommended());
}

TEST(TaskDialogTest, DownMovesToTheNextLink) {
    EXPECT_EQ(answered(lightingMode(), {press(Qt::Key_Down), press(Qt::Key_Return)}).command, kSecond);
}

TEST(TaskDialogTest, UpMovesBack) {
    EXPECT_EQ(answered(lightingMode(), {press(Qt::Key_Down), press(Qt::Key_Up), press(Qt::Key_Return)}).command,
              kFirst);
}

TEST(TaskDialogTest, TabMovesToTheNextLinkAndSpaceTakesIt) {
    EXPECT_EQ(answered(lightingMode(), {press(Qt::Key_Tab), press(Qt::Key_Space)}).command, kSecond);
}

TEST(TaskDialogTest, ANumberTakesItsLink) {
    EXPECT_EQ(answered(lightingMode(), {press(Qt::Key_2)}).command, kSecond);
    EXPECT_EQ(answered(lightingMode(), {press(Qt::Key_1, Qt::KeypadModifier)}).command, kFirst);
}

TEST(TaskDialogTest, ANumberWithoutALinkDoesNothing) {
    EXPECT_EQ(answered(lightingMode(), {press(Qt::Key_3), press(Qt::Key_0), press(Qt::Key_Return)}).command, kFirst);
}

TEST(TaskDialogTest, TheBoxIsReachedAndTickedByKeyboard) {
    const TaskDialogAnswer answer =
        answered(lightingMode(), {press(Qt::Key_Tab), press(Qt::Key_Tab), press(Qt::Key_Space), press(Qt::Key_2)});
    EXPECT_EQ(answer.command, kSecond);
    EXPECT_TRUE(answer.checked);
}

TEST(TaskDialogTest, CancelIsReachedByKeyboard) {
    const TaskDialogAnswer answer =
        answered(lightingMode(), {press(Qt::Key_Tab), press(Qt::Key_Tab), press(Qt::Key_Tab), press(Qt::Key_Return)});
    EXPECT_FALSE(answer.command.has_value());
    EXPECT_FALSE(answer.inputEnded);
}

TEST(TaskDialogTest, EscCancelsWithoutATick) {
    const TaskDialogAnswer answer =
        answered(lightingMode(), {press(Qt::Key_Tab), press(Qt::Key_Tab), press(Qt::Key_Space), press(Qt::Key_Escape)});
    EXPECT_FALSE(answer.command.has_value());
    EXPECT_FALSE(answer.checked);
    EXPECT_FALSE(answer.inputEnded);
}

TEST(TaskDialogTest, ClosingTheWindowCancels) {
    EXPECT_FALSE(answered(lightingMode(), {[] { openDialog()->close(); }}).command.has_value());
}

TEST(TaskDialogTest, WhatCannotBeCancelledStaysOpenAtEscAndAtClosing) {
    EXPECT_EQ(answered(withoutCancel(),
                       {press(Qt::Key_Escape), [] { openDialog()->close(); }, press(Qt::Key_Escape), press(Qt::Key_2)})
                  .command,
              kSecond);
}

TEST(TaskDialogTest, WhatCannotBeCancelledHasNoCancelButton) {
    const TaskDialog dialog(withoutCancel(), nullptr);
    EXPECT_EQ(dialog.findChild<QPushButton*>("cancel"), nullptr);
}

TEST(TaskDialogTest, AClickOnTheExplanationTakesTheLink) {
    const TaskDialogAnswer answer =
        answered(lightingMode(), {[] {
                     CommandLink* const link = linksOf(*openDialog())[1];
                     QTest::mouseClick(link, Qt::LeftButton, {}, QPoint(link->width() / 2, link->height() - 8));
                 }});
    EXPECT_EQ(answer.command, kSecond);
}

TEST(TaskDialogTest, HasTheWidthThatWasAskedFor) {
    const TaskDialog dialog(lightingMode(), nullptr);
    EXPECT_EQ(dialog.width(), 500);
}

TEST(TaskDialogTest, LongTextsWrapInsideTheDialog) {
    CZrUiTaskDialog description = lightingMode();
    const ZrString longText = L"Keep default lighting turned on when you add user lights, although the effect of the "
                              L"user lights cannot be seen in the viewport until it is turned off";
    description.AddCommandControl(7000, longText);
    TaskDialog dialog(description, nullptr);
    dialog.show();

    const CommandLink* const link = linksOf(dialog)[2];

    EXPECT_LE(link->geometry().right(), dialog.width());
    EXPECT_EQ(link->height(), link->heightForWidth(link->width()));
    EXPECT_GT(link->height(), linksOf(dialog)[0]->height());
}

TEST(TaskDialogTest, TellsScreenReadersWhatEachLinkIs) {
    const TaskDialog dialog(lightingMode(), nullptr);
    const CommandLink* const link = linksOf(dialog)[1];
    EXPECT_EQ(link->accessibleName(), "使默认光源保持打开状态");
    EXPECT_TRUE(link->accessibleDescription().startsWith("添加用户光源时"));
}

} // namespace
} // namespace quor::desktop::test
