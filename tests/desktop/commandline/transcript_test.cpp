#include "desktop/commandline/transcript.h"

#include <gtest/gtest.h>

namespace quor::desktop {
namespace {

TEST(TranscriptTest, TextsBeginOnAFreshLineWithoutEmptyOnes) {
    Transcript transcript;
    transcript.answer("\n命令: ", "LIST");
    transcript.print("\n没有对象。\n");
    transcript.answer("\n命令: ", "");
    EXPECT_EQ(transcript.text(), "命令: LIST\n没有对象。\n命令: \n");
}

TEST(TranscriptTest, TextWithoutALineBreakGoesOnWithTheLine) {
    Transcript transcript;
    transcript.print("one");
    transcript.print(" two");
    transcript.print("\nthree");
    EXPECT_EQ(transcript.text(), "one two\nthree");
}

TEST(TranscriptTest, ControlCharactersAreSpelledOut) {
    Transcript transcript;
    transcript.print(QString("a") + QChar(27) + "b\tc");
    EXPECT_EQ(transcript.text(), "a^[b\tc");
}

TEST(TranscriptTest, PromptAndAnswerAreKnownApart) {
    Transcript transcript;
    transcript.answer("\n命令: ", "LIST");
    ASSERT_EQ(transcript.end(), 2U);
    EXPECT_EQ(transcript.piece(0).voice, Transcript::Voice::Prompt);
    EXPECT_EQ(transcript.piece(1).voice, Transcript::Voice::Answer);
    EXPECT_EQ(transcript.piece(1).text, "LIST\n");
}

TEST(TranscriptTest, OldestLinesAreForgotten) {
    Transcript transcript;
    for (std::size_t i = 0; i < Transcript::kMostLines + 5; ++i)
        transcript.print(QString("line %1\n").arg(i));
    EXPECT_EQ(transcript.first(), 5U);
    EXPECT_TRUE(transcript.text().startsWith("line 5\n"));
    EXPECT_EQ(transcript.text().count('\n'), static_cast<qsizetype>(Transcript::kMostLines));
}

TEST(TranscriptTest, ClearedOneBeginsAnew) {
    Transcript transcript;
    transcript.print("\none\n");
    transcript.clear();
    transcript.print("\ntwo\n");
    EXPECT_EQ(transcript.text(), "two\n");
    EXPECT_EQ(transcript.first(), 1U);
}

} // namespace
} // namespace quor::desktop
