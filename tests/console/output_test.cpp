#include "console/output.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <limits>

namespace quor::console {
namespace {

class OutputTest : public testing::Test {
protected:
    Output make(bool quiet = false) {
        return Output(
            [this](std::string_view bytes) {
                ++writes_;
                screen_ += bytes;
                return error_;
            },
            quiet);
    }
    std::string screen_;
    int writes_ = 0;
    int error_ = 0;
};

TEST_F(OutputTest, TextWithALeadingLineBreakStartsOnAFreshLine) {
    Output output = make();
    output.print(L"\n命令: ");
    output.answer(L"LIST");
    output.print(L"\n找到 1 个");
    output.print(L"\n命令: ");
    output.flush();
    EXPECT_EQ(screen_, "命令: LIST\n找到 1 个\n命令: ");
}

TEST_F(OutputTest, NothingIsWrittenBeforeSomebodyWaits) {
    Output output = make();
    output.print(L"a\n");
    EXPECT_EQ(writes_, 0);
    output.flush();
    EXPECT_EQ(writes_, 1);
}

TEST_F(OutputTest, FullBufferIsWrittenUpToItsLastWholeLine) {
    Output output = make();
    output.print(L"first line\n" + ZrString(70000, L'x'));
    EXPECT_EQ(screen_, "first line\n");
    EXPECT_TRUE(output.isAtLineStart());
    output.flush();
    EXPECT_EQ(screen_.size(), 11u + 70000u);
    EXPECT_FALSE(output.isAtLineStart());
}

TEST_F(OutputTest, QuietOutputWritesNothing) {
    Output output = make(true);
    output.print(L"a");
    output.answer(L"b");
    output.freshLine();
    output.flush();
    EXPECT_EQ(writes_, 0);
}

TEST_F(OutputTest, AfterAnErrorNothingMoreIsWritten) {
    Output output = make();
    error_ = EPIPE;
    output.print(L"a");
    output.flush();
    output.print(L"b");
    output.flush();
    EXPECT_EQ(output.error(), EPIPE);
    EXPECT_EQ(writes_, 1);
}

TEST_F(OutputTest, InvalidBytesComeOutAsTheyWentIn) {
    Output output = make();
    output.print(L"a\xDCFF");
    output.flush();
    EXPECT_EQ(screen_, "a\xFF");
}

TEST_F(OutputTest, ControlCharactersOfPromptsAndAnswersAreSpelledOut) {
    Output output = make();
    output.print(L"\n名称 <\x1b[31m红>: ");
    output.answer(L"a\rb\x9b"
                  L"c\x202e");
    output.flush();
    EXPECT_EQ(screen_, "名称 <^[[31m红>: a^MbU+009BcU+202E\n");
}

TEST_F(OutputTest, LineBreaksAndTabsOfTextsStay) {
    Output output = make();
    output.print(L"\na\tb\nc");
    output.flush();
    EXPECT_EQ(screen_, "a\tb\nc");
}

TEST_F(OutputTest, LongLinesAreBrokenAtWordsOnAScreenOnly) {
    Output screen([this](std::string_view bytes) { return screen_ += bytes, 0; }, false, [] { return 20; });
    screen.print(L"\none two three four five\n");
    screen.flush();
    EXPECT_EQ(screen_, "one two three four\n  five\n");

    screen_.clear();
    Output file = make();
    file.print(L"\none two three four five\n" + ZrString(100, L'a') + L" b\n");
    file.flush();
    EXPECT_EQ(screen_, "one two three four five\n" + std::string(100, 'a') + " b\n");
}

TEST_F(OutputTest, QuestionsAreNotBrokenNorIsWhatGoesOnWithALine) {
    Output output([this](std::string_view bytes) { return screen_ += bytes, 0; }, false, [] { return 20; });
    output.prompt(L"\none two three four five: ");
    output.print(L"six seven eight nine ten\none two three four five\n");
    output.flush();
    EXPECT_EQ(screen_, "one two three four five: six seven eight nine ten\none two three four\n  five\n");
}

TEST_F(OutputTest, LinesMayBeAsWideAsTheScreenAsItIsNow) {
    int columns = 120;
    const Output output([](std::string_view) { return 0; }, false, [&] { return columns; });
    EXPECT_EQ(output.columns(), 120);
    columns = 60;
    EXPECT_EQ(output.columns(), 60);
}

TEST_F(OutputTest, OnAScreenThatDoesNotSayLinesMayHave80Columns) {
    EXPECT_EQ(Output([](std::string_view) { return 0; }, false, [] { return 0; }).columns(), 80);
}

TEST_F(OutputTest, WithoutAScreenLinesMayBeAsLongAsTheyNeed) {
    EXPECT_EQ(make().columns(), std::numeric_limits<int>::max());
}

} // namespace
} // namespace quor::console
