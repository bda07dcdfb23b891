#include "tests/support/transcript.h"

#include <gtest/gtest.h>

using namespace quor::test;

namespace {

TEST(Transcript, ReplayOfTheSameOutputGivesTheSameFile) {
    const std::string file = "# About.\n命令: \n> LINE\n起点: \n# Enter next.\n>\nthe end\n";
    TranscriptRecording recording(readTranscript(file));
    recording.print("命令: \n");
    EXPECT_EQ(recording.next()->text, "LINE");
    recording.print("起点: \n");
    EXPECT_EQ(recording.next()->text, "");
    recording.print("the end");
    EXPECT_EQ(recording.finish(), file);
}

TEST(Transcript, BlanksAtTheEndOfAPromptBelongToIt) {
    TranscriptRecording recording(readTranscript("起点:\n> 0,0\n"));
    recording.print("起点: \n");
    recording.next();
    EXPECT_EQ(recording.finish(), "起点: \n> 0,0\n");
}

TEST(Transcript, CommentsStayWithTheirTypedLineWhenOutputChanges) {
    TranscriptRecording recording(readTranscript("# Top.\nold\n# Near.\n> A\n"));
    recording.print("new\nnewer\n");
    recording.next();
    EXPECT_EQ(recording.finish(), "# Top.\nnew\nnewer\n# Near.\n> A\n");
}

TEST(Transcript, PrintedLinesThatLookLikeOthersAreMarked) {
    TranscriptRecording recording(readTranscript(""));
    recording.print("# x\n> y\n\\z\n");
    EXPECT_EQ(recording.finish(), "\\# x\n\\> y\n\\\\z\n");
}

TEST(Transcript, DirectivesAreLinesOfTheirOwn) {
    const auto lines = readTranscript("#! set LUPREC=2\n> A\n");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].kind, TranscriptLine::Kind::Directive);
    EXPECT_EQ(lines[0].text, "#! set LUPREC=2");
}

TEST(Transcript, DifferenceShowsWhatIsExpectedAndWhatCame) {
    EXPECT_EQ(difference("a\nb\nc\n", "a\nx\nc\n"), " a\n-b\n+x\n c\n");
    EXPECT_EQ(difference("a\n", "a\n"), "");
}

} // namespace
