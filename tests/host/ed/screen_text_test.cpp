#include "host/ed/screen_text.h"

#include <gtest/gtest.h>

using quor::ScreenText;

namespace {

TEST(ScreenText, LeadingLineBreakIsLeftOutAtTheStart) { EXPECT_EQ(ScreenText().put(L"\nCommand: "), L"Command: "); }

TEST(ScreenText, LeadingLineBreakIsKeptInTheMiddleOfALine) {
    ScreenText screen;
    (void)screen.put(L"Command: ");
    EXPECT_EQ(screen.put(L"\nmessage"), L"\nmessage");
}

TEST(ScreenText, LeadingLineBreakIsLeftOutAfterAnAnswer) {
    ScreenText screen;
    (void)screen.put(L"Command: ");
    screen.answered();
    EXPECT_EQ(screen.put(L"\nmessage"), L"message");
}

TEST(ScreenText, OnlyOneLineBreakIsLeftOut) { EXPECT_EQ(ScreenText().put(L"\n\na"), L"\na"); }

TEST(ScreenText, TextWithoutLineBreakGoesOnWhereItIs) {
    ScreenText screen;
    (void)screen.put(L"abc");
    EXPECT_EQ(screen.put(L"def"), L"def");
}

TEST(ScreenText, TextThatEndsItsLineLeavesTheCursorAtTheStart) {
    ScreenText screen;
    (void)screen.put(L"abc\n");
    EXPECT_TRUE(screen.atLineStart());
    EXPECT_EQ(screen.put(L"\nCommand: "), L"Command: ");
}

TEST(ScreenText, EmptyTextChangesNothing) {
    ScreenText screen;
    (void)screen.put(L"abc");
    (void)screen.put(L"");
    EXPECT_FALSE(screen.atLineStart());
}

} // namespace
