// Scripts in the program: the windows live, Esc stops.
#include "desktop/commandline/command_line.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/window/main_window.h"
#include "host/db/database.h"
#include "host/document.h"
#include "host/ed/script_source.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

namespace quor::desktop::test {
namespace {

std::string linesOfScript(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "LINE 0,0 1,1 \n";
    return text;
}

// The person starts it with Enter at the command prompt.
void startScript(Person& person, const std::string& text, const std::function<void()>& meanwhile) {
    person.does([&] {
        person.program().session().input().push(std::make_unique<ed::ScriptSource>(text));
        QTimer::singleShot(10, qApp, meanwhile);
        person.program().front().giveEnter();
    });
}

InputLine& inputOf(Person& person) { return person.program().window().findChild<CommandLine*>("commandLine")->input(); }

TEST(ScriptsTest, EscStopsAScriptBetweenItsCommands) {
    withProgram(usualOptions(), [](Person& person) {
        startScript(person, linesOfScript(200'000), [&] { QTest::keyClick(&inputOf(person), Qt::Key_Escape); });
        EXPECT_TRUE(person.screen().endsWith("已停止执行。\n"));
    });
}

TEST(ScriptsTest, WindowLivesWhileAScriptRuns) {
    withProgram(usualOptions(), [](Person& person) {
        bool questionWasOpen = true;
        startScript(person, linesOfScript(60'000),
                    [&] { questionWasOpen = person.program().front().question() != nullptr; });
        EXPECT_FALSE(questionWasOpen);
    });
}

TEST(ScriptsTest, WhatIsTypedWhileAScriptRunsStandsInTheLineAfterwards) {
    withProgram(usualOptions(), [](Person& person) {
        startScript(person, linesOfScript(60'000), [&] { QTest::keyClicks(&inputOf(person), "12"); });
        EXPECT_EQ(person.sees([&] { return inputOf(person).text(); }), "12");
    });
}

TEST(ScriptsTest, ClosingTheWindowStopsTheScriptAndAsksAboutTheDrawing) {
    withProgram(usualOptions(), [](Person& person) {
        startScript(person, linesOfScript(200'000), [&] { person.program().window().close(); });
        EXPECT_TRUE(person.screen().contains("已停止执行。\n"));
    });
}

} // namespace
} // namespace quor::desktop::test
