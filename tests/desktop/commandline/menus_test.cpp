// The menu of the right button, the text window, the size of the text, the theme.
#include "host/ed/command_processor.h"
#include "host/sys/system_variables.h"
#include "tests/desktop/commandline/at_the_line.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QMenu>

namespace quor::desktop::test {
namespace {

QStringList textsOf(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions())
        if (!action->isSeparator())
            texts.push_back(action->text());
    return texts;
}

// The texts of the menu with the recent commands, as it opens.
QStringList recentCommands(AtTheLine& line) {
    return line.person().sees([&] {
        const std::unique_ptr<QMenu> menu(line.line().recentCommandsMenu(nullptr));
        Q_EMIT menu->aboutToShow();
        return textsOf(*menu);
    });
}

// Opens the menu of the right button and chooses an entry.
void chooses(AtTheLine& line, const QString& entry) {
    line.person().does([&] {
        QContextMenuEvent click(QContextMenuEvent::Mouse, {5, 5}, line.line().input().mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&line.line().input(), &click);
    });
    line.person().does([entry] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        const qsizetype at = [&] {
            qsizetype place = 0;
            while (place < menu->actions().size() && menu->actions()[place]->text() != entry)
                ++place;
            return place;
        }();
        ASSERT_LT(at, menu->actions().size());
        QAction* const action = menu->actions()[at];
        menu->close();
        action->trigger();
    });
}

TEST(LineMenuTest, RecentCommandsAreListedOnceTheLastOneFirst) {
    atTheLine([](AtTheLine& line) {
        line.types("REDO");
        line.types("e");
        line.presses(Qt::Key_Escape);
        line.types("_redo");
        EXPECT_EQ(recentCommands(line), (QStringList{"REDO", "ERASE"}));
    });
}

TEST(LineMenuTest, WithoutRecentCommandsTheMenuSaysSo) {
    atTheLine([](AtTheLine& line) { EXPECT_EQ(recentCommands(line), QStringList{"(无)"}); });
}

TEST(LineMenuTest, RecentCommandIsRunWhenItIsChosen) {
    atTheLine([](AtTheLine& line) {
        line.types("ERASE");
        line.presses(Qt::Key_Escape);
        line.person().does([&] {
            const std::unique_ptr<QMenu> menu(line.line().recentCommandsMenu(nullptr));
            Q_EMIT menu->aboutToShow();
            menu->actions().front()->trigger();
        });
        EXPECT_EQ(line.prompt(), "选择对象: ");
    });
}

TEST(LineMenuTest, WholeHistoryIsCopied) {
    atTheLine([](AtTheLine& line) {
        line.types("REDO");
        chooses(line, "复制全部历史(&H)");
        EXPECT_TRUE(line.person().sees([] { return QApplication::clipboard()->text(); }).startsWith("命令: REDO\n"));
    });
}

TEST(LineMenuTest, PasteToTheLineAnswersNothing) {
    atTheLine([](AtTheLine& line) {
        line.person().does([] { QApplication::clipboard()->setText("LINE\n0,0"); });
        chooses(line, "粘贴到命令行(&L)");
        EXPECT_EQ(line.text(), "LINE 0,0");
        EXPECT_EQ(line.prompt(), "命令: ");
    });
}

TEST(LineMenuTest, PasteAnswersLineByLine) {
    atTheLine([](AtTheLine& line) {
        line.person().does([] { QApplication::clipboard()->setText("LINE\n0,0\n"); });
        chooses(line, "粘贴并执行(&P)");
        EXPECT_EQ(line.prompt(), "指定下一点或 [放弃(U)]: ");
    });
}

TEST(LineMenuTest, ClearedHistoryIsEmpty) {
    atTheLine([](AtTheLine& line) {
        line.types("REDO");
        chooses(line, "清除显示(&E)");
        EXPECT_EQ(line.person().sees([&] { return line.line().history().toPlainText(); }), "");
    });
}

TEST(TextWindowTest, F2ShowsItWithTheWholeHistoryAndHidesIt) {
    atTheLine([](AtTheLine& line) {
        const auto isShown = [&] { return line.person().sees([&] { return line.line().isTextWindowShown(); }); };
        line.types("REDO");
        line.presses(Qt::Key_F2);
        EXPECT_TRUE(isShown());
        EXPECT_TRUE(line.person().sees([&] { return line.line().textWindow().view().toPlainText(); }).contains("REDO"));
        line.presses(Qt::Key_F2);
        EXPECT_FALSE(isShown());
    });
}

TEST(TextWindowTest, CommandsShowAndHideIt) {
    atTheLine([](AtTheLine& line) {
        const auto isShown = [&] { return line.person().sees([&] { return line.line().isTextWindowShown(); }); };
        line.types("TEXTSCR");
        EXPECT_TRUE(isShown());
        line.types("GRAPHSCR");
        EXPECT_FALSE(isShown());
    });
}

TEST(TextWindowTest, WhatIsTypedInItStandsInTheInputLine) {
    atTheLine([](AtTheLine& line) {
        line.types("TEXTSCR");
        line.person().does([&] { QTest::keyClicks(&line.line().textWindow().view(), "LI"); });
        EXPECT_EQ(line.text(), "LI");
    });
}

TEST(LineLooksTest, WheelWithCtrlMakesTheTextLargerAndTheNextSessionKeepsIt) {
    atTheLine([](AtTheLine& line) {
        const auto size = [&] { return line.person().sees([&] { return line.line().history().font().pointSizeF(); }); };
        const double before = size();
        line.person().does([&] {
            QWheelEvent turned({5, 5}, line.line().input().mapToGlobal(QPointF(5, 5)), {}, {0, 240}, Qt::NoButton,
                               Qt::ControlModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&line.line().input(), &turned);
        });
        EXPECT_EQ(size(), before + 2);
        const double later = line.person().sees([&] {
            CommandLine next(line.person().program().session(), line.person().program().front());
            return next.history().font().pointSizeF();
        });
        EXPECT_EQ(later, before + 2);
    });
}

TEST(LineLooksTest, ColoursFollowTheTheme) {
    atTheLine([](AtTheLine& line) {
        const auto lightness = [&] {
            return line.person().sees(
                [&] { return line.line().history().viewport()->palette().color(QPalette::Base).lightness(); });
        };
        line.types("COLORTHEME 0");
        EXPECT_LT(lightness(), 80);
        line.types("COLORTHEME 1");
        EXPECT_GT(lightness(), 200);
    });
}

TEST(LineLooksTest, PicturesOfBothThemesAndLanguages) {
    for (const ZrString language : {L"zh", L"en"}) {
        ProgramOptions options = usualOptions();
        options.session.language = language;
        withProgram(options, [&](Person& person) {
            AtTheLine line(person);
            for (const QString theme : {"0", "1"}) {
                line.types("COLORTHEME " + theme);
                line.types("LINE 0,0 4,0 4,3");
                line.presses(Qt::Key_Escape);
                line.types("LAYER");
                line.writes("m");
                const QString name = "command-line-" + toQt(language) + "-" + theme;
                person.takesPicture(name, &line.line());
                person.takesPicture(name + "-list", &line.line().completer().list());
                line.presses(Qt::Key_Escape);
                line.presses(Qt::Key_Escape);
                line.writes("s");
                person.takesPicture(name + "-commands", &line.line().completer().list());
                line.presses(Qt::Key_Escape);
                person.takesPicture(name + "-prompt", &line.line());
            }
        });
    }
}

} // namespace
} // namespace quor::desktop::test
