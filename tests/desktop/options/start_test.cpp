// What the program does with what its command line names.
#include "host/document.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

TEST(StartTest, ADrawingThatCannotBeOpenedIsToldOnTheCommandLineAndANewOneIsThere) {
    ProgramOptions options = usualOptions();
    options.drawings = {"/no/such/folder/plan.dxf"};
    withProgram(std::move(options), [](Person& person) {
        EXPECT_TRUE(person.screen().contains("/no/such/folder/plan.dxf")) << person.screen().toStdString();
        EXPECT_EQ(person.sees([&] { return person.program().session().documents().all().size(); }), 1U);
        person.types("LIST");
        person.types("ALL");
        EXPECT_TRUE(person.screen().contains("选择对象")) << person.screen().toStdString();
        person.presses(Qt::Key_Escape);
    });
}

TEST(StartTest, AFileThatIsNoDrawingIsToldOnTheCommandLineAndANewOneIsThere) {
    ProgramOptions options = usualOptions();
    options.drawings = {QUOR_TEST_DATA "/scripts/every_option.scr"};
    withProgram(std::move(options), [](Person& person) {
        EXPECT_TRUE(person.screen().contains("every_option.scr")) << person.screen().toStdString();
        EXPECT_EQ(person.sees([&] { return person.program().session().documents().all().size(); }), 1U);
    });
}

TEST(StartTest, DrawingsThatCanBeOpenedAreOpenBesideOneThatCannot) {
    ProgramOptions options = usualOptions();
    options.drawings = {QUOR_SAMPLE_DRAWINGS "/gallery.dxf", "/no/such/plan.dxf",
                        QUOR_TEST_DATA "/dxf/own/every_kind.dxf"};
    withProgram(std::move(options), [](Person& person) {
        EXPECT_EQ(person.sees([&] { return person.program().session().documents().all().size(); }), 2U);
    });
}

TEST(StartTest, AScriptThatCannotBeReadIsToldOnTheCommandLine) {
    ProgramOptions options = usualOptions();
    options.scripts = {"/no/such/lights.scr"};
    withProgram(std::move(options), [](Person& person) {
        EXPECT_TRUE(person.screen().contains("/no/such/lights.scr")) << person.screen().toStdString();
    });
}

TEST(StartTest, AModuleThatCannotBeLoadedIsToldOnTheCommandLine) {
    ProgramOptions options = usualOptions();
    options.modules = {L"no_such_module"};
    withProgram(std::move(options), [](Person& person) {
        EXPECT_TRUE(person.screen().contains("no_such_module")) << person.screen().toStdString();
    });
}

} // namespace
} // namespace quor::desktop::test
