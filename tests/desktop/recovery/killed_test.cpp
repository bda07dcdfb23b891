// A program is killed in the middle of work; the next one offers what it left, and nothing is missing.
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_source.h"
#include "tests/desktop/recovery/killed_program.h"
#include "tests/desktop/support/leaving.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

namespace quor::desktop::test {
namespace {

const std::string kPlan = QUOR_TEST_DATA "/dxf/own/luminaires.dxf";
const QString kProgram = QUOR_BUILD_DIR "/bin/quor";
const QString kConsole = QUOR_BUILD_DIR "/bin/quorc";

const std::string kWork = "DEFAULTLIGHTING 0\n"
                          "POINTLIGHT 1,2,3 N\nLamp 1\nI 2 X\n"
                          "SPOTLIGHT 4,5,6 7,8,9 H 20 F 40 X\n"
                          "LINE 0,0 10,10 \n"
                          "ERASE #60 \n";
const std::string kFolderForRole = "QUOR_TEST_KILLED_HOME";

bool comesTrue(Person& person, const std::function<bool()>& condition) {
    constexpr std::chrono::seconds kPatience(30); // copies are made by a timer
    const auto start = std::chrono::steady_clock::now();
    while (!condition() && std::chrono::steady_clock::now() - start < kPatience) {
        person.settles();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return condition();
}

class KilledTest : public testing::Test {
protected:
    KilledTest() {
        std::filesystem::copy_file(kPlan, home_.folder() / "plan.dxf");
        std::filesystem::copy_file(kPlan, home_.folder() / "expected.dxf");
    }
    // The program with the work done, waiting at the command prompt.
    [[nodiscard]] KilledProgram working() {
        return {home_, kProgram, {"plan.dxf", "--script", home_.file("work.scr", kWork)}};
    }
    // What SAVE makes of the same work.
    std::string expected() {
        QProcess console;
        console.setWorkingDirectory(QString::fromStdString(home_.folder().string()));
        console.start(kConsole, {"expected.dxf", "-s", home_.file("saved.scr", kWork + "SAVE\n")});
        console.waitForFinished();
        EXPECT_EQ(console.exitCode(), 0) << console.readAll().toStdString();
        return home_.bytes("expected.dxf");
    }
    [[nodiscard]] ProgramOptions next() const {
        ProgramOptions options = usualOptions();
        options.copies = home_.copies();
        return options;
    }
    // Starts the program anew, recovers and saves what is offered.
    void recoverAndSave() {
        withProgram(next(), [](Person& person) {
            ASSERT_EQ(openDialog(person), "recovery");
            person.presses(Qt::Key_Return);
            EXPECT_EQ(entityCount(person), 13U);
            gives(person, {L"SAVE"});
        });
    }

    Home home_;
};

TEST_F(KilledTest, AtTheCommandPromptNothingIsLost) {
    KilledProgram program = working();
    ASSERT_TRUE(program.hasCopied());
    program.kill();
    recoverAndSave();
    EXPECT_EQ(home_.bytes("plan.dxf"), expected());
}

TEST_F(KilledTest, InTheMiddleOfACommandWhatWasDoneBeforeItIsKept) {
    qputenv(kFolderForRole.c_str(), home_.folder().c_str());
    KilledProgram program(home_, QApplication::applicationFilePath(),
                          {"--gtest_also_run_disabled_tests", "--gtest_filter=RoleTest.*"});
    ASSERT_TRUE(program.hasMade("ready"));
    program.kill();
    recoverAndSave();
    EXPECT_EQ(home_.bytes("plan.dxf"), expected());
}

TEST_F(KilledTest, BySigtermItEndsWithItsStatusAndTheCopyStays) {
    KilledProgram program = working();
    ASSERT_TRUE(program.hasCopied());
    EXPECT_EQ(program.terminate(), 128 + SIGTERM);
    recoverAndSave();
    EXPECT_EQ(home_.bytes("plan.dxf"), expected());
}

TEST_F(KilledTest, WhatWasSavedIsNotOffered) {
    withProgram(next(), [&](Person& person) {
        changesDrawing(person);
        EXPECT_TRUE(comesTrue(person, [&] { return home_.copyCount() == 1; }));
        gives(person, {(L"SAVEAS " + fromQt(home_.file("saved.dxf", {})) + L" _Y").c_str()});
        EXPECT_TRUE(comesTrue(person, [&] { return home_.copyCount() == 0; }));
    });
}

TEST_F(KilledTest, WhatWasClosedIsNotOffered) {
    withProgram(next(), [&](Person& person) {
        changesDrawing(person);
        EXPECT_TRUE(comesTrue(person, [&] { return home_.copyCount() == 1; }));
        gives(person, {L"CLOSE"});
        chooses(person, Choice::Discard);
        EXPECT_EQ(home_.copyCount(), 0U);
    });
}

TEST_F(KilledTest, APersonWhoRecoversNothingNowIsAskedAgain) {
    KilledProgram program = working();
    ASSERT_TRUE(program.hasCopied());
    program.kill();
    withProgram(next(), [](Person& person) {
        person.presses(Qt::Key_Escape);
        EXPECT_TRUE(isAtCommandPrompt(person));
    });
    recoverAndSave();
}

TEST_F(KilledTest, ProgramsThatRunAtOnceDoNotOfferEachOthersDrawings) {
    KilledProgram first = working();
    ASSERT_TRUE(first.hasCopied());
    withProgram(next(), [](Person& person) {
        EXPECT_EQ(openDialog(person), "");
        changesDrawing(person);
    });
    EXPECT_TRUE(first.hasCopied());
}

TEST_F(KilledTest, ALightThatWasBeingPlacedIsNoneOfTheCopy) {
    withProgram(next(), [](Person& person) {
        changesDrawing(person);
        gives(person, {L"DEFAULTLIGHTING 0", L"POINTLIGHT", L"1,1", L"I"});
        person.doesAtLast([] { std::raise(SIGTERM); });
        EXPECT_TRUE(person.sawItEnd());
    });
    withProgram(next(), [](Person& person) {
        ASSERT_EQ(openDialog(person), "recovery");
        person.presses(Qt::Key_Return);
        EXPECT_EQ(entityCount(person), 1U);
        EXPECT_EQ(wrongWithDrawing(person), "");
    });
}

// Not a test: the program that another test kills while a person is asked something.
TEST(RoleTest, DISABLED_WorksInTheMiddleOfACommandUntilItIsKilled) {
    const std::filesystem::path home = qgetenv(kFolderForRole.c_str()).toStdString();
    ProgramOptions options = usualOptions();
    options.copies = home / "state/quor/autosave";
    options.drawings = {home / "plan.dxf"};
    withProgram(std::move(options), [&](Person& person) {
        person.does([&] {
            person.program().session().input().push(std::make_unique<ed::ScriptSource>(kWork));
            person.program().front().giveEnter();
        });
        while (std::filesystem::is_empty(home / "state/quor/autosave"))
            person.settles();
        gives(person, {L"SPOTLIGHT", L"1,1", L"2,2", L"I"});
        std::ofstream(home / "ready") << "";
        while (!person.hasEnded())
            person.settles();
    });
}

} // namespace
} // namespace quor::desktop::test
