// The program starts, asks for commands, and ends.
#include "desktop/window/main_window.h"
#include "host/document.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

TEST(StartTest, ANewDrawingIsOpenAndTheWindowIsShown) {
    withProgram(usualOptions(), [](Person& person) {
        EXPECT_TRUE(person.sees([&] { return person.program().window().isVisible(); }));
        EXPECT_EQ(person.sees([&] { return person.program().session().documents().all().size(); }), 1U);
    });
}

} // namespace
} // namespace quor::desktop::test
