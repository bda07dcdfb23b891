// What was left behind is recovered, discarded or left for later by keyboard alone.
#include "desktop/dialogs/recovery_dialog.h"

#include "host/autosave/autosave.h"
#include "host/document.h"
#include "tests/desktop/dialogs/dialog_steps.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <QPushButton>

#include <filesystem>

namespace quor::desktop::test {
namespace {

using quor::test::TemporaryFolder;
using quor::test::TestSession;

class RecoveryDialogTest : public testing::Test {
protected:
    // Two drawings of a program that was made to end.
    void SetUp() override {
        {
            TestSession before;
            autosave::Autosave autosave(before.session(), folder());
            before.run({L"LINE", L"0,0", L"1,1", L""});
            before.session().documents().newDocument();
            before.run({L"LINE", L"0,0", L"2,2", L""});
            autosave.writeAllNow();
        }
        now_.emplace(quor::test::TestSessionOptions{.newDrawing = false});
        autosave_.emplace(now_->session(), folder());
    }
    std::size_t offered(const std::vector<Step>& steps) {
        later(steps);
        return offerRecovery(now_->session(), *autosave_, &window_, folder());
    }
    [[nodiscard]] std::filesystem::path folder() const { return scratch_.path() / "autosave"; }
    [[nodiscard]] std::size_t left() const { return autosave::Recovery(folder()).copies().size(); }

    TemporaryFolder scratch_;
    std::optional<TestSession> now_;
    std::optional<autosave::Autosave> autosave_;
    QWidget window_;
};

// Tab leads from the list to the first button.
Step onDiscard() { return press(Qt::Key_Tab); }

TEST_F(RecoveryDialogTest, EnterRecoversAll) {
    EXPECT_EQ(offered({press(Qt::Key_Return)}), 2U);
    EXPECT_EQ(now_->session().documents().all().size(), 2U);
    EXPECT_TRUE(now_->document().isModified());
    EXPECT_EQ(left(), 0U);
}

TEST_F(RecoveryDialogTest, EscLeavesAllForLater) {
    EXPECT_EQ(offered({press(Qt::Key_Escape)}), 0U);
    EXPECT_EQ(left(), 2U);
}

TEST_F(RecoveryDialogTest, WhatIsNotTickedStaysForLater) {
    EXPECT_EQ(offered({press(Qt::Key_Space), press(Qt::Key_R, Qt::AltModifier)}), 1U);
    EXPECT_EQ(left(), 1U);
}

TEST_F(RecoveryDialogTest, WithoutATickNothingCanBeRecovered) {
    bool enabled = true;
    (void)offered({press(Qt::Key_Space), press(Qt::Key_Down), press(Qt::Key_Space),
                   [&] { enabled = openDialog()->findChild<QPushButton*>("recover")->isEnabled(); },
                   press(Qt::Key_Escape)});
    EXPECT_FALSE(enabled);
}

TEST_F(RecoveryDialogTest, DiscardingAsksOnceMoreAndIsReachedByTab) {
    EXPECT_EQ(offered({onDiscard(), press(Qt::Key_Space), press(Qt::Key_D, Qt::AltModifier)}), 0U);
    EXPECT_EQ(left(), 0U);
}

TEST_F(RecoveryDialogTest, EnterAtThatQuestionKeepsThem) {
    (void)offered({onDiscard(), press(Qt::Key_Space), press(Qt::Key_Return), press(Qt::Key_Escape)});
    EXPECT_EQ(left(), 2U);
}

TEST_F(RecoveryDialogTest, NobodyIsAskedWhereNothingIsLeft) {
    (void)offered({press(Qt::Key_Return)});
    EXPECT_EQ(offerRecovery(now_->session(), *autosave_, &window_, folder()), 0U);
}

} // namespace
} // namespace quor::desktop::test
