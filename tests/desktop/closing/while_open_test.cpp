// The person closes the window while something else than a question is open. With nothing to save, the program ends.
#include "desktop/front/desktop_front_end.h"
#include "desktop/palettes/list_view.h"
#include "desktop/qt_text.h"
#include "desktop/viewport/viewport.h"
#include "desktop/window/actions.h"
#include "desktop/window/main_window.h"
#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_source.h"
#include "tests/desktop/support/leaving.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTest>

namespace quor::desktop::test {
namespace {

const std::string kLuminaires = QUOR_TEST_DATA "/dxf/own/luminaires.dxf";
const std::string kLarge = QUOR_TEST_DATA "/dxf/as_sample_AC1015_binary.dxf";

using Steps = std::function<void(Person&)>;

// Ends at once: nobody is asked.
void leavesAtOnce(const Steps& before, ProgramOptions options = usualOptions()) {
    const int status = withProgram(std::move(options), [&](Person& person) {
        before(person);
        closeWindow(person);
        EXPECT_TRUE(person.sawItEnd());
    });
    EXPECT_EQ(status, 0);
}

void leavesWithoutSaving(const Steps& before, ProgramOptions options = usualOptions()) {
    const int status = withProgram(std::move(options), [&](Person& person) {
        before(person);
        closeWindowAndWait(person);
        EXPECT_EQ(openDialog(person), "save");
        EXPECT_EQ(openMenu(person), "");
        choosesAndLeaves(person, Choice::Discard);
        EXPECT_TRUE(person.sawItEnd());
    });
    EXPECT_EQ(status, 0);
}

ProgramOptions withDrawing(const std::string& file) {
    ProgramOptions options = usualOptions();
    options.drawings = {file};
    return options;
}

void triggers(Person& person, const char* action) {
    person.does([&] { person.program().window().actions().action(action).trigger(); });
}

ListView& lights(Person& person) {
    return *person.sees([&] { return person.program().window().findChild<ListView*>(); });
}

TEST(WhileOpenTest, TheCommandPrompt) {
    leavesAtOnce([](Person&) {});
}

TEST(WhileOpenTest, AQuestion) {
    leavesAtOnce([](Person& person) { gives(person, {L"LINE"}); });
}

TEST(WhileOpenTest, ATaskDialog) {
    leavesAtOnce([](Person& person) {
        gives(person, {L"POINTLIGHT"});
        EXPECT_EQ(openDialog(person), "task");
    });
}

TEST(WhileOpenTest, AFileDialog) {
    leavesAtOnce([](Person& person) {
        gives(person, {L"OPEN"});
        EXPECT_EQ(openDialog(person), "file");
    });
}

TEST(WhileOpenTest, WhatTheProgramTellsOfItself) {
    leavesAtOnce([](Person& person) {
        triggers(person, "about");
        EXPECT_NE(openDialog(person), "");
    });
}

TEST(WhileOpenTest, AMainMenu) {
    leavesAtOnce([](Person& person) {
        person.does([&] { person.program().window().actions().menu(MenuPlace::File).popup({10, 10}); });
        EXPECT_NE(openMenu(person), "");
    });
}

TEST(WhileOpenTest, TheDrawingsOwnMenu) {
    leavesAtOnce([](Person& person) {
        person.does([&] { Q_EMIT person.program().window().viewport().contextMenuRequested({10, 10}); });
        EXPECT_NE(openMenu(person), "");
    });
}

TEST(WhileOpenTest, TheMenuOfAPalette) {
    leavesWithoutSaving([](Person& person) {
        gives(person, {L"DEFAULTLIGHTING 0", L"POINTLIGHT", L"1,1", L"X", L"LIGHTLIST"});
        ListView& list = lights(person);
        person.settles();
        person.does([&] {
            QTest::mouseClick(list.viewport(), Qt::RightButton, {}, list.rowRect(0).center() - list.viewport()->pos());
        });
        EXPECT_NE(openMenu(person), "");
    });
}

TEST(WhileOpenTest, AFloatingPaletteAndTheTextWindow) {
    leavesAtOnce([](Person& person) {
        gives(person, {L"LIGHTLIST"});
        triggers(person, "textwindow");
    });
}

TEST(WhileOpenTest, ADrag) {
    leavesWithoutSaving([](Person& person) {
        changesDrawing(person);
        gives(person, {L"DEFAULTLIGHTING 0", L"SPOTLIGHT", L"1,1"});
        person.does([&] { QTest::mouseMove(&person.program().window().viewport(), {50, 60}); });
        EXPECT_TRUE(person.sees([&] { return person.program().front().isDragging(); }));
    });
}

TEST(WhileOpenTest, ARectangleThatSelects) {
    leavesWithoutSaving([](Person& person) {
        changesDrawing(person);
        Viewport& viewport = person.program().window().viewport();
        person.does([&] { QTest::mousePress(&viewport, Qt::LeftButton, {}, {20, 20}); });
        person.does([&] { QTest::mouseMove(&viewport, {90, 80}); });
    });
}

TEST(WhileOpenTest, ATransparentCommand) {
    leavesAtOnce([](Person& person) { gives(person, {L"LINE", L"'ZOOM", L"W"}); });
}

TEST(WhileOpenTest, AScript) {
    leavesWithoutSaving([](Person& person) {
        std::string lines;
        for (int i = 0; i < 100'000; ++i)
            lines += "LINE 0,0 1,1 \n";
        person.does([&] {
            person.program().session().input().push(std::make_unique<ed::ScriptSource>(lines));
            QTimer::singleShot(10, qApp, [&] { person.program().window().close(); });
            person.program().front().giveEnter();
        });
        EXPECT_LT(entityCount(person), 100'000U);
    });
}

TEST(WhileOpenTest, ADrawingThatIsBeingOpened) {
    int told = 0;
    withProgram(usualOptions(), [&](Person& person) {
        (void)person.sees([&] {
            QObject::connect(&person.program().front(), &DesktopFrontEnd::progressed, [&] {
                ++told;
                person.program().window().close();
            });
            return true;
        });
        person.doesAtLast([&] { person.program().front().run(L"OPEN " + fromQt(QString::fromStdString(kLarge))); });
        EXPECT_TRUE(person.sawItEnd());
    });
    EXPECT_GT(told, 0);
}

TEST(WhileOpenTest, ABlockThatIsEdited) {
    leavesWithoutSaving(
        [](Person& person) {
            gives(person, {L"REFEDIT", L"#60", L"", L"LINE 100,0 101,1 "});
            EXPECT_TRUE(person.sees(
                [&] { return person.program().session().documents().current()->drawing().refEdit().isActive(); }));
        },
        withDrawing(kLuminaires));
}

} // namespace
} // namespace quor::desktop::test
