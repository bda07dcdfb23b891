// What the command line offers while somebody types.
#include "tests/desktop/commandline/at_the_line.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace quor::desktop::test {
namespace {

TEST(CompletionListTest, CommandsAreOfferedWhileTheirNameIsTyped) {
    atTheLine([](AtTheLine& line) {
        line.writes("saveas");
        line.presses(Qt::Key_Backspace);
        line.presses(Qt::Key_Backspace);
        EXPECT_TRUE(line.offered().contains("SAVE"));
        EXPECT_TRUE(line.offered().contains("SAVEAS"));
    });
}

TEST(CompletionListTest, AliasesAndSystemVariablesAreOfferedToo) {
    atTheLine([](AtTheLine& line) {
        line.writes("lightingun");
        EXPECT_EQ(line.offered(), QStringList{"LIGHTINGUNITS"});
        line.presses(Qt::Key_Escape);
        line.writes("prop");
        EXPECT_EQ(line.offered(), (QStringList{"PROPERTIES", "PROPS"}));
    });
}

TEST(CompletionListTest, RowsSayWhatTheyStandFor) {
    atTheLine([](AtTheLine& line) {
        line.writes("props");
        line.presses(Qt::Key_Backspace);
        const QString detail = line.person().sees([&] { return line.line().completer().list().rows().back().detail; });
        EXPECT_TRUE(detail.startsWith("PROPERTIES")) << detail.toStdString();
    });
}

TEST(CompletionListTest, EnterTakesWhatWasTypedWhileNoRowIsChosen) {
    atTheLine([](AtTheLine& line) {
        line.writes("L");
        EXPECT_FALSE(line.offered().isEmpty());
        line.presses(Qt::Key_Return);
        EXPECT_EQ(line.prompt(), "指定第一个点: ");
    });
}

TEST(CompletionListTest, DownChoosesARowAndEnterRunsIt) {
    atTheLine([](AtTheLine& line) {
        line.writes("ERAS");
        line.presses(Qt::Key_Down);
        line.presses(Qt::Key_Return);
        EXPECT_EQ(line.prompt(), "选择对象: ");
    });
}

TEST(CompletionListTest, TabCompletesWhatIsCommonToAll) {
    atTheLine([](AtTheLine& line) {
        line.writes("grap");
        line.presses(Qt::Key_Tab);
        EXPECT_EQ(line.text(), "GRAPHSCR");
        EXPECT_TRUE(line.person().sees([&] { return line.line().input().hasFocus(); }));
    });
}

TEST(CompletionListTest, TabGoesThroughTheListWhereNothingMoreIsCommon) {
    atTheLine([](AtTheLine& line) {
        line.writes("SAVE");
        line.presses(Qt::Key_Tab);
        EXPECT_EQ(line.person().sees([&] { return line.line().completer().list().chosen(); }), "SAVE");
        line.presses(Qt::Key_Down);
        line.presses(Qt::Key_Tab);
        EXPECT_EQ(line.text(), "SAVEAS");
    });
}

TEST(CompletionListTest, ClickOnARowRunsIt) {
    atTheLine([](AtTheLine& line) {
        line.writes("ERAS");
        line.person().does([&] {
            CandidateList& list = line.line().completer().list();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.topLevelItem(0)).center());
        });
        EXPECT_EQ(line.prompt(), "选择对象: ");
    });
}

TEST(CompletionListTest, KeywordsAreOfferedAtAQuestion) {
    atTheLine([](AtTheLine& line) {
        line.types("LAYER");
        line.writes("m");
        EXPECT_EQ(line.offered(), QStringList{"Make"});
    });
}

TEST(CompletionListTest, NumbersOpenNoList) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        line.writes("12,3");
        EXPECT_TRUE(line.offered().isEmpty());
    });
}

TEST(CompletionListTest, AltDownListsTheOptionsOfTheQuestion) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE 0,0 1,0 1,1");
        line.presses(Qt::Key_Down, Qt::AltModifier);
        EXPECT_EQ(line.offered(), (QStringList{"闭合(C)", "放弃(U)"}));
        line.presses(Qt::Key_Return);
        EXPECT_TRUE(line.person().screen().endsWith("指定下一点或 [闭合(C)/放弃(U)]: C\n"));
    });
}

TEST(CompletionListTest, AltDownAtTheCommandPromptListsRecentCommands) {
    atTheLine([](AtTheLine& line) {
        line.types("REDO");
        line.types("U");
        line.presses(Qt::Key_Down, Qt::AltModifier);
        EXPECT_EQ(line.offered(), (QStringList{"U", "REDO"}));
    });
}

TEST(CompletionListTest, FilesAreOfferedWhereAPathIsTyped) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("lamp.dwt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    atTheLine([&](AtTheLine& line) {
        line.types("SETVAR");
        line.types("SUPPORTPATH");
        line.writes(folder.path() + "/la");
        line.presses(Qt::Key_Tab);
        EXPECT_EQ(line.text(), folder.filePath("lamp.dwt"));
    });
}

TEST(CompletionListTest, ListClosesWhenTheQuestionIsAnsweredElsewhere) {
    atTheLine([](AtTheLine& line) {
        line.types("LINE");
        line.writes("'H");
        line.person().does([&] { line.person().program().front().givePoint({1, 1, 0}); });
        EXPECT_TRUE(line.offered().isEmpty());
    });
}

} // namespace
} // namespace quor::desktop::test
