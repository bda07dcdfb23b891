// Keys of the window, wherever the keyboard is: in the command line's input, as usual, or in the drawing.
#include "desktop/commandline/command_line.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/palettes/palette_dock.h"
#include "desktop/viewport/viewport.h"
#include "tests/desktop/window/at_the_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDockWidget>
#include <QTest>

namespace quor::desktop::test {
namespace {

void drawsTwoLines(AtTheWindow& at) { at.types({"LINE", "0,0", "10,0", "", "LINE", "0,5", "10,5", ""}); }

bool isShown(AtTheWindow& at, const char* dock) {
    return at.person().sees([=, &at] { return at.window().findChild<QDockWidget*>(dock)->isVisible(); });
}

TEST(ShortcutsTest, UndoAndRedoOfAnEmptyLineAreAboutTheDrawing) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.presses(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(at.objects(), 1U);
        EXPECT_EQ(at.inputText(), "");
        at.presses(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(at.objects(), 2U) << at.screen().toStdString();
    });
}

TEST(ShortcutsTest, UndoOfALineWithTextIsAboutTheText) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.writes("CIR");
        at.presses(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(at.objects(), 2U);
        EXPECT_EQ(at.inputText(), "");
    });
}

TEST(ShortcutsTest, AllObjectsAreSelectedFromAnEmptyLine) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.presses(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(at.selected(), 2U);
        at.presses(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(at.selected(), 0U);
    });
}

TEST(ShortcutsTest, AllOfTheTextIsSelectedInALineWithText) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.writes("CIR");
        at.presses(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(at.selected(), 0U);
        EXPECT_EQ(at.person().sees([&] { return at.window().commandLine().input().selectedText(); }), "CIR");
    });
}

TEST(ShortcutsTest, AllAnswersAQuestionForObjects) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.types("ERASE");
        at.presses(Qt::Key_A, Qt::ControlModifier);
        at.types("");
        EXPECT_EQ(at.objects(), 0U);
    });
}

TEST(ShortcutsTest, AllLeavesAQuestionForAPointAlone) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"LINE", "0,0"});
        at.presses(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(at.running(), QStringList("LINE"));
    });
}

TEST(ShortcutsTest, DeleteErasesWhatIsSelected) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.presses(Qt::Key_A, Qt::ControlModifier);
        at.presses(Qt::Key_Delete);
        EXPECT_EQ(at.objects(), 0U);
    });
}

TEST(ShortcutsTest, DeleteDoesNothingWhenNothingIsSelected) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.presses(Qt::Key_Delete);
        EXPECT_EQ(at.objects(), 2U);
        EXPECT_EQ(at.running(), QStringList());
    });
}

TEST(ShortcutsTest, DeleteInALineWithTextEditsIt) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.presses(Qt::Key_A, Qt::ControlModifier);
        at.writes("CIR");
        at.presses(Qt::Key_Home);
        at.presses(Qt::Key_Delete);
        EXPECT_EQ(at.inputText(), "IR");
        EXPECT_EQ(at.objects(), 2U);
    });
}

TEST(ShortcutsTest, EscInAnEmptyLineSelectsNothing) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.presses(Qt::Key_A, Qt::ControlModifier);
        at.presses(Qt::Key_Escape);
        EXPECT_EQ(at.selected(), 0U);
    });
}

TEST(ShortcutsTest, NewCloseAndOpenDrawings) {
    atTheWindow([](AtTheWindow& at) {
        at.presses(Qt::Key_N, Qt::ControlModifier);
        EXPECT_EQ(at.tabTexts().size(), 2);
        at.presses(Qt::Key_W, Qt::ControlModifier);
        EXPECT_EQ(at.tabTexts().size(), 1);
        at.presses(Qt::Key_O, Qt::ControlModifier);
        EXPECT_TRUE(at.person().sees([] { return QApplication::activeModalWidget() != nullptr; }));
        at.presses(Qt::Key_Escape);
    });
}

TEST(ShortcutsTest, BothWaysOfSavingAskForANameOfANewDrawing) {
    atTheWindow([](AtTheWindow& at) {
        for (const Qt::KeyboardModifiers held :
             {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
            at.person().does([&] { at.window().activateWindow(); });
            at.presses(Qt::Key_S, held);
            EXPECT_TRUE(at.person().sees([] { return QApplication::activeModalWidget() != nullptr; }));
            at.presses(Qt::Key_Escape);
        }
    });
}

TEST(ShortcutsTest, QuitEndsTheProgram) {
    withProgram(usualOptions(), [](Person& person) {
        person.does([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q, Qt::ControlModifier); });
        EXPECT_TRUE(person.sawItEnd());
    });
}

TEST(ShortcutsTest, PanelsComeAndGo) {
    atTheWindow([](AtTheWindow& at) {
        ASSERT_TRUE(isShown(at, "dock.properties"));
        at.presses(Qt::Key_1, Qt::ControlModifier);
        EXPECT_FALSE(isShown(at, "dock.properties"));
        EXPECT_FALSE(at.isChecked("properties"));
        at.presses(Qt::Key_1, Qt::ControlModifier);
        EXPECT_TRUE(isShown(at, "dock.properties"));
        at.presses(Qt::Key_9, Qt::ControlModifier);
        EXPECT_FALSE(isShown(at, "dock.commandline"));
        at.presses(Qt::Key_9, Qt::ControlModifier);
        EXPECT_TRUE(isShown(at, "dock.commandline"));
    });
}

TEST(ShortcutsTest, PropertiesBehindTheLayersComeToTheFront) {
    atTheWindow([](AtTheWindow& at) {
        at.types("LAYERS");
        at.presses(Qt::Key_1, Qt::ControlModifier);
        EXPECT_TRUE(isShown(at, "dock.properties"));
        EXPECT_TRUE(at.isChecked("properties"));
    });
}

TEST(ShortcutsTest, ListOfLightsIsShown) {
    atTheWindow([](AtTheWindow& at) {
        at.presses(Qt::Key_2, Qt::ControlModifier);
        EXPECT_TRUE(at.person().sees([&] { return at.window().findChild<PaletteDock*>()->isVisible(); }));
    });
}

TEST(ShortcutsTest, LooksOfTheDrawing) {
    atTheWindow([](AtTheWindow& at) {
        at.presses(Qt::Key_4, Qt::ControlModifier);
        EXPECT_TRUE(at.isChecked("shaded"));
        at.presses(Qt::Key_3, Qt::ControlModifier);
        EXPECT_TRUE(at.isChecked("wireframe"));
        at.presses(Qt::Key_5, Qt::ControlModifier);
        EXPECT_TRUE(at.isChecked("perspective"));
        at.presses(Qt::Key_0, Qt::ControlModifier);
        EXPECT_TRUE(at.screen().contains("'_ZOOM")) << at.screen().toStdString();
    });
}

TEST(ShortcutsTest, FunctionKeys) {
    atTheWindow([](AtTheWindow& at) {
        const bool snapped = at.isChecked("snap");
        at.presses(Qt::Key_F3);
        EXPECT_NE(at.isChecked("snap"), snapped);
        at.presses(Qt::Key_F8);
        EXPECT_TRUE(at.isChecked("ortho"));
        at.presses(Qt::Key_F5);
        EXPECT_TRUE(at.screen().contains("_REGEN")) << at.screen().toStdString();
        at.presses(Qt::Key_F2);
        EXPECT_TRUE(at.isChecked("textwindow"));
        at.presses(Qt::Key_F2);
        EXPECT_FALSE(at.isChecked("textwindow"));
    });
}

TEST(ShortcutsTest, HelpComesAtTheCommandPrompt) {
    atTheWindow([](AtTheWindow& at) {
        at.presses(Qt::Key_F1);
        EXPECT_TRUE(at.screen().contains("_HELP")) << at.screen().toStdString();
        at.presses(Qt::Key_Escape);
    });
}

TEST(ShortcutsTest, KeysWorkInTheDrawingToo) {
    atTheWindow([](AtTheWindow& at) {
        drawsTwoLines(at);
        at.goesToTheDrawing();
        at.presses(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(at.objects(), 1U);
        at.presses(Qt::Key_A, Qt::ControlModifier);
        at.presses(Qt::Key_Delete);
        EXPECT_EQ(at.objects(), 0U);
    });
}

} // namespace
} // namespace quor::desktop::test
