// The keys of the command line.
#include "tests/desktop/commandline/at_the_line.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>

namespace quor::desktop::test {
namespace {

constexpr const char* kCommandPrompt = "命令: ";
constexpr const char* kFirstPoint = "指定第一个点: ";
constexpr const char* kNextPoint = "指定下一点或 [放弃(U)]: ";

TEST(KeysTest, KeyboardIsInTheInputLineAtTheStart) {
    atTheLine([](AtTheLine& line) {
        EXPECT_TRUE(line.person().sees([&] { return line.line().input().hasFocus(); }));
        EXPECT_EQ(line.prompt(), kCommandPrompt);
    });
}

TEST(KeysTest, EnterAnswersWithWhatWasTyped) {
    atTheLine([](AtTheLine& line) {
        line.writes("LINE");
        line.presses(Qt::Key_Return);
        EXPECT_EQ(line.prompt(), kFirstPoint);
        EXPECT_EQ(line.text(), "");
    });
}

TEST(KeysTest, BlankAnswersLikeEnter) {
    atTheLine([](AtTheLine& line) {
        line.writes("LINE 0,0 ");
        EXPECT_EQ(line.prompt(), kNextPoint);
    });
}

TEST(KeysTest, BlankIsACharacterWhereItBelongsToTheAnswer) {
    atTheLine([](AtTheLine& line) {
        line.types("LAYER");
        line.types("M");
        line.writes("ground floor");
        EXPECT_EQ(line.text(), "ground floor");
    });
}

TEST(KeysTest, EnterAloneRepeatsTheLastCommand) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        line.presses(Qt::Key_Escape);
        line.presses(Qt::Key_Return);
        EXPECT_EQ(line.prompt(), kFirstPoint);
    });
}

TEST(KeysTest, EnterOfTheNumberBlockIsEnter) {
    atTheLine([](AtTheLine& line) {
        line.writes("LINE");
        line.presses(Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(line.prompt(), kFirstPoint);
    });
}

TEST(KeysTest, EscapeClearsTheLineFirstAndThenCancels) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        line.writes("12");
        line.presses(Qt::Key_Escape);
        EXPECT_EQ(line.text(), "");
        EXPECT_EQ(line.prompt(), kFirstPoint);
        line.presses(Qt::Key_Escape);
        EXPECT_EQ(line.prompt(), kCommandPrompt);
    });
}

TEST(KeysTest, EscapeTwiceCancelsAlsoWhileTheListIsOpen) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        line.writes("'H");
        line.presses(Qt::Key_Escape);
        line.presses(Qt::Key_Escape);
        EXPECT_EQ(line.prompt(), kCommandPrompt);
    });
}

TEST(KeysTest, UpAndDownGoThroughWhatWasTyped) {
    atTheLine([](AtTheLine& line) {
        line.types("REDO");
        line.types("U");
        line.presses(Qt::Key_Up);
        line.presses(Qt::Key_Up);
        EXPECT_EQ(line.text(), "REDO");
        line.presses(Qt::Key_Down);
        EXPECT_EQ(line.text(), "U");
        line.presses(Qt::Key_Down);
        EXPECT_EQ(line.text(), "");
    });
}

TEST(KeysTest, WhatWasTypedComesBackInTheNextSession) {
    atTheLine([](AtTheLine& line) {
        line.types("REDO");
        const QString recalled = line.person().sees([&] {
            CommandLine later(line.person().program().session(), line.person().program().front());
            QTest::keyClick(&later.input(), Qt::Key_Up);
            return later.input().text();
        });
        EXPECT_EQ(recalled, "REDO");
    });
}

TEST(KeysTest, CtrlCCopiesWhatIsSelectedInTheLine) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        line.writes("12,34");
        line.presses(Qt::Key_A, Qt::ControlModifier);
        line.presses(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(line.person().sees([] { return QApplication::clipboard()->text(); }), "12,34");
        EXPECT_EQ(line.text(), "12,34");
    });
}

TEST(KeysTest, CtrlCCopiesWhatIsSelectedInTheHistory) {
    atTheLine([](AtTheLine& line) {
        line.types("REDO");
        line.person().does([&] {
            line.line().history().catchUp();
            line.line().history().selectAll();
        });
        line.presses(Qt::Key_C, Qt::ControlModifier);
        EXPECT_TRUE(line.person().sees([] { return QApplication::clipboard()->text(); }).startsWith("命令: REDO\n"));
    });
}

TEST(KeysTest, CtrlCWithoutASelectionIsEscape) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        line.presses(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(line.prompt(), kCommandPrompt);
    });
}

TEST(KeysTest, PastedLinesAreAnsweredOneAfterTheOther) {
    atTheLine([](AtTheLine& line) {
        line.person().does([] { QApplication::clipboard()->setText("LINE\n0,0\n1,1\n\nLINE 5,5\n6,"); });
        line.presses(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(line.prompt(), kNextPoint);
        EXPECT_EQ(line.text(), "6,");
        EXPECT_TRUE(line.person().screen().contains("指定第一个点: 5,5\n"));
    });
}

TEST(KeysTest, PastedTextWithoutALineBreakWaitsInTheLine) {
    atTheLine([](AtTheLine& line) {
        line.person().does([] { QApplication::clipboard()->setText("LINE"); });
        line.presses(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(line.text(), "LINE");
        EXPECT_EQ(line.prompt(), kCommandPrompt);
    });
}

TEST(KeysTest, PastedLinesGoOnWithWhatStandsInTheLine) {
    atTheLine([](AtTheLine& line) {
        line.writes("LI");
        line.person().does([] { QApplication::clipboard()->setText("NE\r\n"); });
        line.presses(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(line.prompt(), kFirstPoint);
        EXPECT_EQ(line.text(), "");
    });
}

TEST(KeysTest, CharacterTypedElsewhereTakesTheKeyboardIntoTheLine) {
    atTheLine([](AtTheLine& line) {
        line.person().does([&] { line.line().history().setFocus(); });
        line.writes("LI");
        EXPECT_EQ(line.text(), "LI");
        EXPECT_TRUE(line.person().sees([&] { return line.line().input().hasFocus(); }));
    });
}

TEST(KeysTest, EscapeWorksWhereverTheKeyboardIs) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        line.person().does([&] { line.line().history().setFocus(); });
        line.presses(Qt::Key_Escape);
        EXPECT_EQ(line.prompt(), kCommandPrompt);
    });
}

TEST(KeysTest, EnterWorksWhereverTheKeyboardIs) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE 0,0 1,1");
        line.person().does([&] { line.line().history().setFocus(); });
        line.presses(Qt::Key_Return);
        EXPECT_EQ(line.prompt(), kCommandPrompt);
    });
}

TEST(KeysTest, HistoryIsScrolledByItsOwnKeys) {
    atTheLine([](AtTheLine& line) {
        line.types("HELP");
        line.types("");
        line.person().does([&] { line.line().history().setFocus(); });
        line.presses(Qt::Key_PageUp);
        EXPECT_TRUE(line.person().sees([&] { return line.line().history().hasFocus(); }));
    });
}

TEST(KeysTest, QuestionInsideAQuestionGivesItsPlaceBack) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        line.types("'SETVAR");
        EXPECT_NE(line.prompt(), kFirstPoint);
        line.presses(Qt::Key_Return);
        EXPECT_EQ(line.prompt(), kFirstPoint);
    });
}

TEST(KeysTest, KeysOfTheDrawingActOnItFromTheEmptyLine) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE 0,0 1,1 ");
        line.presses(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(line.objects(), 0U);
        EXPECT_EQ(line.text(), "");
        line.person().settles();
        line.presses(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(line.objects(), 1U);
        line.presses(Qt::Key_A, Qt::ControlModifier);
        line.presses(Qt::Key_Delete);
        EXPECT_EQ(line.objects(), 0U);
    });
}

TEST(KeysTest, KeysOfTheDrawingEditTheLineWhereItHoldsText) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE 0,0 1,1 ");
        line.writes("12");
        line.presses(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(line.text(), "");
        line.writes("34");
        line.presses(Qt::Key_A, Qt::ControlModifier);
        line.presses(Qt::Key_Delete);
        EXPECT_EQ(line.text(), "");
        EXPECT_EQ(line.objects(), 1U);
    });
}

TEST(KeysTest, EscapeAtTheCommandPromptShowsNothing) {
    atTheLine([](AtTheLine& line) {
        line.types("REDO");
        const QString before = line.transcript();
        line.presses(Qt::Key_Escape);
        line.presses(Qt::Key_Escape);
        EXPECT_EQ(line.transcript(), before);
        line.types("LINE");
        line.presses(Qt::Key_Escape);
        EXPECT_TRUE(line.transcript().contains(QString(kFirstPoint) + "^C"));
    });
}

TEST(KeysTest, PastedLinesEndWithADialogThatIsCancelled) {
    atTheLine([](AtTheLine& line) {
        line.person().does([] { QApplication::clipboard()->setText("POINTLIGHT\n1,2,3\nLINE\n0,0\n1,1\n\n"); });
        line.presses(Qt::Key_V, Qt::ControlModifier);
        line.presses(Qt::Key_Escape);
        EXPECT_EQ(line.prompt(), kCommandPrompt);
        EXPECT_EQ(line.objects(), 0U);
    });
}

TEST(KeysTest, PastedLinesEndWhereAMenuBeginsSomethingElse) {
    atTheLine([](AtTheLine& line) {
        line.person().does([] { QApplication::clipboard()->setText("POINTLIGHT\n1,2,3\n\nLINE\n0,0\n1,1\n\n"); });
        line.presses(Qt::Key_V, Qt::ControlModifier);
        line.person().does([&] { line.person().program().front().quit(); });
        EXPECT_EQ(line.objects(), 0U);
    });
}

TEST(KeysTest, SelectionOfObjectsEndsWithABlank) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE 0,0 1,1 ");
        line.types("ERASE");
        line.types("ALL");
        line.writes(" ");
        EXPECT_EQ(line.prompt(), kCommandPrompt);
    });
}

} // namespace
} // namespace quor::desktop::test
