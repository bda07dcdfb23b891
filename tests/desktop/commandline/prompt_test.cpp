// The prompt and its options.
#include "tests/desktop/commandline/at_the_line.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

TEST(PromptTest, ClickOnAnOptionAnswersWithIt) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE 0,0 1,0 1,1");
        line.clicks("闭合(C)");
        EXPECT_TRUE(line.person().screen().endsWith("指定下一点或 [闭合(C)/放弃(U)]: C\n"));
        EXPECT_EQ(line.prompt(), "命令: ");
    });
}

TEST(PromptTest, ClickOnTheDefaultIsEnter) {
    atTheLine([](AtTheLine& line) {
        line.types("LAYER");
        line.clicks("退出");
        EXPECT_EQ(line.prompt(), "命令: ");
    });
}

TEST(PromptTest, ClickBesideTheOptionsAnswersNothing) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE 0,0 1,0 1,1");
        line.person().does([&] { QTest::mouseClick(&line.line().prompt(), Qt::LeftButton, {}, QPoint(3, 10)); });
        EXPECT_EQ(line.prompt(), "指定下一点或 [闭合(C)/放弃(U)]: ");
    });
}

TEST(PromptTest, ButtonThatIsLetGoElsewhereAnswersNothing) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE 0,0 1,0 1,1");
        line.person().does([&] {
            PromptView& prompt = line.line().prompt();
            QTest::mousePress(&prompt, Qt::LeftButton, {}, prompt.rectOf(line.partWith("闭合(C)")).center());
            QTest::mouseRelease(&prompt, Qt::LeftButton, {}, prompt.rectOf(line.partWith("放弃(U)")).center());
        });
        EXPECT_EQ(line.prompt(), "指定下一点或 [闭合(C)/放弃(U)]: ");
    });
}

TEST(PromptTest, ArrowKeysReachTheOptionsAndEnterChooses) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE 0,0 1,0 1,1");
        line.person().does([&] { line.line().prompt().setFocus(Qt::BacktabFocusReason); });
        line.presses(Qt::Key_Right);
        line.presses(Qt::Key_Left);
        line.presses(Qt::Key_Return);
        EXPECT_TRUE(line.person().screen().endsWith("指定下一点或 [闭合(C)/放弃(U)]: C\n"));
        EXPECT_TRUE(line.person().sees([&] { return line.line().input().hasFocus(); }));
    });
}

TEST(PromptTest, ShiftTabLeadsFromTheLineIntoTheWindow) {
    atTheLine([](AtTheLine& line) {
        line.presses(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_FALSE(line.person().sees([&] { return line.line().input().hasFocus(); }));
    });
}

TEST(PromptTest, CursorOverAnOptionIsAHand) {
    atTheLine([](AtTheLine& line) {
        line.types("LAYER");
        line.person().does([&] {
            PromptView& prompt = line.line().prompt();
            QTest::mouseMove(&prompt, prompt.rectOf(line.partWith("新建(M)")).center());
        });
        EXPECT_EQ(line.person().sees([&] { return line.line().prompt().cursor().shape(); }), Qt::PointingHandCursor);
    });
}

TEST(PromptTest, LongPromptStandsAboveTheLineAndAShortOneBesideIt) {
    atTheLine([](AtTheLine& line) {
        const auto promptIsAbove = [&] {
            return line.person().sees(
                [&] { return line.line().prompt().geometry().bottom() < line.line().input().geometry().top(); });
        };
        EXPECT_FALSE(promptIsAbove());
        line.person().does([&] { line.line().window()->resize(500, 700); });
        line.types("LAYER");
        EXPECT_TRUE(promptIsAbove());
    });
}

TEST(PromptTest, PromptIsReadToThoseWhoDoNotSeeIt) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        EXPECT_EQ(line.person().sees([&] { return line.line().prompt().accessibleName(); }), "提示和选项");
        EXPECT_EQ(line.person().sees([&] { return line.line().prompt().accessibleDescription(); }), "指定第一个点: ");
        EXPECT_EQ(line.person().sees([&] { return line.line().input().accessibleName(); }), "命令行");
        EXPECT_EQ(line.person().sees([&] { return line.line().history().accessibleName(); }), "命令历史");
    });
}

} // namespace
} // namespace quor::desktop::test
