#include "host/ed/answer_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using quor::ed::AnswerReader;
using quor::ed::AnswerSyntax;
using quor::ed::RawAnswer;

namespace {

std::string shown(const RawAnswer& answer) {
    if (answer.kind == RawAnswer::Kind::Enter)
        return "<enter>";
    return answer.kind == RawAnswer::Kind::Escape ? "<esc>" : std::string(answer.text);
}

using Answers = std::vector<std::string>;

Answers readAll(std::string_view text, AnswerSyntax syntax = AnswerSyntax::Script, bool acceptsBlanks = false) {
    AnswerReader reader(text, syntax);
    Answers answers;
    while (const auto answer = reader.next(acceptsBlanks))
        answers.push_back(shown(*answer));
    return answers;
}

TEST(AnswerReader, BlankTabAndLineEndEndAnAnswer) {
    EXPECT_EQ(readAll("LINE 0,0\t1,1\nX\n"), (Answers{"LINE", "0,0", "1,1", "X"}));
}

TEST(AnswerReader, LastAnswerNeedsNoLineEnd) { EXPECT_EQ(readAll("LINE"), (Answers{"LINE"})); }

TEST(AnswerReader, BlankLineIsEnter) { EXPECT_EQ(readAll("A\n\nB\n"), (Answers{"A", "<enter>", "B"})); }

TEST(AnswerReader, SecondOfTwoBlanksIsEnter) { EXPECT_EQ(readAll("A  B\n"), (Answers{"A", "<enter>", "B"})); }

TEST(AnswerReader, BlankBeforeTheLineEndMakesTheLineEndAnEnter) {
    EXPECT_EQ(readAll("A \nB\n"), (Answers{"A", "<enter>", "B"}));
}

TEST(AnswerReader, CarriageReturnsBelongToTheLineEnd) {
    EXPECT_EQ(readAll("A B\r\n\r\nC\r\n"), (Answers{"A", "B", "<enter>", "C"}));
    EXPECT_EQ(readAll("A\r"), (Answers{"A"}));
}

TEST(AnswerReader, CarriageReturnAloneEndsALine) {
    EXPECT_EQ(readAll("A\r; no\rB C\r\rD"), (Answers{"A", "B", "C", "<enter>", "D"}));
    AnswerReader reader("; first\rA b\rC\r", AnswerSyntax::Script);
    EXPECT_EQ(shown(*reader.next(true)), "A b");
    EXPECT_EQ(reader.line(), 2U);
    EXPECT_EQ(shown(*reader.next(true)), "C");
    EXPECT_EQ(reader.line(), 3U);
    EXPECT_TRUE(reader.atEnd());
}

TEST(AnswerReader, ByteOrderMarkIsSkipped) { EXPECT_EQ(readAll("\xEF\xBB\xBFLINE\n"), (Answers{"LINE"})); }

TEST(AnswerReader, SemicolonAtTheStartOfALineIsAComment) {
    EXPECT_EQ(readAll("; first\nA\n;second\r\nB\n; last"), (Answers{"A", "B"}));
}

TEST(AnswerReader, SemicolonElsewhereIsText) { EXPECT_EQ(readAll("A;b ;c\n"), (Answers{"A;b", ";c"})); }

TEST(AnswerReader, EmptyTextHasNoAnswers) { EXPECT_EQ(readAll(""), Answers{}); }

TEST(AnswerReader, CommentsAloneAreTheEnd) {
    AnswerReader reader("; nothing\n; here\n", AnswerSyntax::Script);
    EXPECT_TRUE(reader.atEnd());
}

TEST(AnswerReader, AnswerThatAcceptsBlanksGoesToTheLineEnd) {
    AnswerReader reader("N a lamp  here\nX\n", AnswerSyntax::Script);
    EXPECT_EQ(shown(*reader.next(false)), "N");
    EXPECT_EQ(shown(*reader.next(true)), "a lamp  here");
    EXPECT_EQ(shown(*reader.next(false)), "X");
}

TEST(AnswerReader, LeadingBlanksOfSuchAnAnswerAreKeptBehindTheOneSeparator) {
    AnswerReader reader("N  lamp \r\n", AnswerSyntax::Script);
    EXPECT_EQ(shown(*reader.next(false)), "N");
    EXPECT_EQ(shown(*reader.next(true)), " lamp ");
}

TEST(AnswerReader, ControlCIsEscapeAndTakesItsSeparatorAlong) {
    EXPECT_EQ(readAll("A\n^C\nB\n"), (Answers{"A", "<esc>", "B"}));
    EXPECT_EQ(readAll("^C^CLINE"), (Answers{"<esc>", "<esc>", "LINE"}));
}

TEST(AnswerReader, ControlCIsEscapeWhereBlanksAreAcceptedToo) {
    EXPECT_EQ(readAll("^C\nname\n", AnswerSyntax::Script, true), (Answers{"<esc>", "name"}));
}

TEST(AnswerReader, LineIsTheOneOfTheLastAnswer) {
    AnswerReader reader("; comment\nA B\n\nC\n", AnswerSyntax::Script);
    (void)reader.next(false);
    EXPECT_EQ(reader.line(), 2U);
    (void)reader.next(false);
    EXPECT_EQ(reader.line(), 2U);
    (void)reader.next(false);
    EXPECT_EQ(reader.line(), 3U);
    (void)reader.next(false);
    EXPECT_EQ(reader.line(), 4U);
}

TEST(AnswerReader, MacroEndsAnAnswerAtBlankAndSemicolon) {
    EXPECT_EQ(readAll("^C^C_LINE 0,0;1,1;;", AnswerSyntax::Macro),
              (Answers{"<esc>", "<esc>", "_LINE", "0,0", "1,1", "<enter>"}));
}

TEST(AnswerReader, MacroAnswerThatAcceptsBlanksEndsAtSemicolon) {
    EXPECT_EQ(readAll("a lamp;b", AnswerSyntax::Macro, true), (Answers{"a lamp", "b"}));
}

TEST(AnswerReader, TypedLineHasNoComments) { EXPECT_EQ(readAll(";a b", AnswerSyntax::Line), (Answers{";a", "b"})); }

TEST(AnswerReader, LongAnswersAreHandedOverWhole) {
    const std::string name(10000, 'x');
    EXPECT_EQ(readAll(name + "\nB"), (Answers{name, "B"}));
}

} // namespace
