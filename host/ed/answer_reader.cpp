#include "host/ed/answer_reader.h"

#include <algorithm>

namespace quor::ed {

namespace {
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kEscape = "^C";
constexpr std::string_view kLineEnds = "\r\n";

bool isLineEnd(char c) { return c == '\n' || c == '\r'; }
} // namespace

AnswerReader::AnswerReader(std::string_view text, AnswerSyntax syntax) : text_(text), syntax_(syntax) {
    if (text_.starts_with(kByteOrderMark))
        text_.remove_prefix(kByteOrderMark.size());
}

bool AnswerReader::isSeparator(char c, bool acceptsBlanks) const {
    if (isLineEnd(c))
        return true;
    if (c == ';')
        return syntax_ == AnswerSyntax::Macro;
    return (c == ' ' || c == '\t') && !acceptsBlanks;
}

void AnswerReader::skipComments() {
    while (syntax_ == AnswerSyntax::Script && atLineStart_ && at_ < text_.size() && text_[at_] == ';') {
        at_ = std::min(text_.find_first_of(kLineEnds, at_), text_.size());
        takeSeparator(false);
    }
}

bool AnswerReader::atEnd() {
    skipComments();
    return at_ >= text_.size();
}

// One separator behind an answer belongs to it. A line ends with a line feed, a carriage return, or both.
void AnswerReader::takeSeparator(bool acceptsBlanks) {
    if (text_.substr(at_).starts_with(kLineEnds))
        ++at_;
    if (at_ >= text_.size() || !isSeparator(text_[at_], acceptsBlanks)) {
        atLineStart_ = false;
        return;
    }
    atLineStart_ = isLineEnd(text_[at_]);
    line_ += atLineStart_ ? 1 : 0;
    ++at_;
}

std::optional<RawAnswer> AnswerReader::next(bool acceptsBlanks) {
    if (atEnd())
        return std::nullopt;
    lineOfAnswer_ = line_;
    if (text_.substr(at_).starts_with(kEscape)) {
        at_ += kEscape.size();
        takeSeparator(false);
        return RawAnswer{RawAnswer::Kind::Escape, {}};
    }
    const std::size_t begin = at_;
    while (at_ < text_.size() && !isSeparator(text_[at_], acceptsBlanks))
        ++at_;
    const std::string_view answer = text_.substr(begin, at_ - begin);
    takeSeparator(acceptsBlanks);
    return RawAnswer{answer.empty() ? RawAnswer::Kind::Enter : RawAnswer::Kind::Text, answer};
}

} // namespace quor::ed
