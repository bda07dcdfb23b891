#include "console/pipe_reader.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quor::console {
namespace {

class PipeReaderTest : public testing::Test {
protected:
    // Hands out the text in pieces of this many bytes.
    Line readFrom(std::size_t piece) {
        if (!reader_)
            reader_.emplace(
                [this, piece](char* buffer, std::size_t size) {
                    const std::size_t count = std::min({piece, size, input_.size()});
                    input_.copy(buffer, count);
                    input_.erase(0, count);
                    return static_cast<std::ptrdiff_t>(count);
                },
                output_);
        Question question;
        question.prompt = L"\n? ";
        return reader_->read(question);
    }
    std::string input_;
    std::string screen_;
    Output output_{[this](std::string_view bytes) {
        screen_ += bytes;
        return 0;
    }};
    std::optional<PipeReader> reader_;
};

TEST_F(PipeReaderTest, LinesAreEchoedBehindTheirPrompts) {
    input_ = "LIST\n\nlast";
    EXPECT_EQ(readFrom(100).text, L"LIST");
    EXPECT_EQ(readFrom(100).text, L"");
    EXPECT_EQ(readFrom(100).text, L"last");
    EXPECT_EQ(readFrom(100).kind, Line::Kind::End);
    output_.flush();
    EXPECT_EQ(screen_, "? LIST\n? \n? last\n? \n");
}

TEST_F(PipeReaderTest, LinesThatComeByteByByteAreTheSame) {
    input_ = "点光源\r\nX\n";
    EXPECT_EQ(readFrom(1).text, L"点光源");
    EXPECT_EQ(readFrom(1).text, L"X");
    EXPECT_EQ(readFrom(1).kind, Line::Kind::End);
}

TEST_F(PipeReaderTest, ByteOrderMarkAtTheStartIsSkipped) {
    input_ = "\xEF\xBB\xBFLIST\n\xEF\xBB\xBFX\n";
    EXPECT_EQ(readFrom(100).text, L"LIST");
    EXPECT_EQ(readFrom(100).text, L"\xFEFFX");
}

TEST_F(PipeReaderTest, AReadErrorIsTheBrokenEnd) {
    PipeReader reader([](char*, std::size_t) { return std::ptrdiff_t{-1}; }, output_);
    EXPECT_EQ(reader.read({}).kind, Line::Kind::Broken);
}

TEST_F(PipeReaderTest, InvalidBytesSurvive) {
    input_ = "a\xFF\n";
    EXPECT_EQ(readFrom(100).text, L"a\xDCFF");
}

TEST_F(PipeReaderTest, LineLongerThanTheBufferStaysWhole) {
    input_ = std::string(200000, 'x') + "\nY\n";
    EXPECT_EQ(readFrom(100000).text.size(), 200000u);
    EXPECT_EQ(readFrom(100000).text, L"Y");
}

TEST_F(PipeReaderTest, PromptIsShownBeforeTheProgramWaits) {
    input_ = "A\n";
    std::string seen;
    PipeReader reader(
        [&](char*, std::size_t) {
            seen = screen_;
            return std::ptrdiff_t{0};
        },
        output_);
    Question question;
    question.prompt = L"\n命令: ";
    EXPECT_EQ(reader.read(question).kind, Line::Kind::End);
    EXPECT_EQ(seen, "命令: ");
}

} // namespace
} // namespace quor::console
