// The question about unsaved changes, and Esc from outside to whatever is open.
#include "desktop/dialogs/dialogs.h"

#include "sdk/ui/task_dialog.h"
#include "tests/desktop/dialogs/dialog_steps.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QMessageBox>

namespace quor::desktop::test {
namespace {

using quor::test::TestSession;

class DialogsTest : public testing::Test {
protected:
    TestSession session_;
    QWidget window_;
    Dialogs dialogs_{session_.session(), window_};

    SaveChoice saveChoice(const std::vector<Step>& steps) {
        later(steps);
        return dialogs_.askToSave(L"plan.dxf");
    }
    Step escape() {
        return [this] { dialogs_.escape(); };
    }
};

CZrUiTaskDialog question(bool cancellable) {
    CZrUiTaskDialog dialog;
    dialog.SetMainInstruction(L"做什么？");
    dialog.AddCommandControl(1, L"这个");
    dialog.SetOptions(cancellable ? kTaskDialogAllowCancellation : 0);
    return dialog;
}

TEST_F(DialogsTest, EnterSaves) { EXPECT_EQ(saveChoice({press(Qt::Key_Return)}), SaveChoice::Save); }

TEST_F(DialogsTest, EscKeepsTheDrawingOpen) { EXPECT_EQ(saveChoice({press(Qt::Key_Escape)}), SaveChoice::Cancel); }

TEST_F(DialogsTest, ClosingTheQuestionKeepsTheDrawingOpen) {
    EXPECT_EQ(saveChoice({[] { openDialog()->close(); }}), SaveChoice::Cancel);
}

TEST_F(DialogsTest, DiscardingHasALetter) {
    EXPECT_EQ(saveChoice({press(Qt::Key_N, Qt::AltModifier)}), SaveChoice::Discard);
}

TEST_F(DialogsTest, SavingHasALetter) { EXPECT_EQ(saveChoice({press(Qt::Key_S, Qt::AltModifier)}), SaveChoice::Save); }

TEST_F(DialogsTest, TheQuestionNamesTheDrawing) {
    QString text;
    (void)saveChoice({[&] { text = qobject_cast<QMessageBox*>(openDialog())->text(); }, press(Qt::Key_Escape)});
    EXPECT_TRUE(text.contains("plan.dxf"));
}

TEST_F(DialogsTest, EscFromOutsideCancelsTheQuestionAboutChanges) {
    EXPECT_EQ(saveChoice({escape()}), SaveChoice::Cancel);
}

TEST_F(DialogsTest, EscFromOutsideCancelsATaskDialog) {
    later({escape()});
    const TaskDialogAnswer answer = dialogs_.showTaskDialog(question(true));
    EXPECT_FALSE(answer.command.has_value());
    EXPECT_FALSE(answer.inputEnded);
}

TEST_F(DialogsTest, EscFromOutsideEndsTheInputWhereATaskDialogCannotBeCancelled) {
    later({escape()});
    const TaskDialogAnswer answer = dialogs_.showTaskDialog(question(false));
    EXPECT_FALSE(answer.command.has_value());
    EXPECT_TRUE(answer.inputEnded);
}

TEST_F(DialogsTest, EscFromOutsideCancelsAFileDialog) {
    later({escape()});
    EXPECT_FALSE(dialogs_.chooseFile({}).file.has_value());
}

TEST_F(DialogsTest, EscFromOutsideCancelsDialogsOnTopOfOthers) {
    SaveChoice inner = SaveChoice::Save;
    later({[&] { inner = dialogs_.askToSave(L"inner"); }, escape()});
    EXPECT_EQ(dialogs_.askToSave(L"outer"), SaveChoice::Cancel);
    EXPECT_EQ(inner, SaveChoice::Cancel);
}

TEST_F(DialogsTest, EscFromOutsideClosesMenus) {
    QMenu menu;
    menu.addAction("something");
    later({escape()});
    EXPECT_EQ(menu.exec(), nullptr);
}

TEST_F(DialogsTest, EscFromOutsideDoesNothingWhereNothingIsOpen) {
    dialogs_.escape();
    EXPECT_EQ(openDialog(), nullptr);
}

} // namespace
} // namespace quor::desktop::test
