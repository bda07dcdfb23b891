#include "host/ed/answer_reader.h"

namespace quor::ed {

namespace {
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kEscape = "^C";
} // namespace

AnswerReader::AnswerReader(std::string_view text, AnswerSyntax syntax) : text_(text), syntax_(syntax) {
    if (text_.starts_with(kByteOrderMark))
        text_.remove_prefix(kByteOrderMark.size());
}

bool AnswerReader::isSeparator(char c, bool acceptsBlanks) const {
    if (c == '\n')
        return true;
    if (c == ';')
        return syntax_ == AnswerSyntax::Macro;
    return (c == ' ' || c == '\t') && !acceptsBlanks;
}

void AnswerReader::skipComments() {
    while (syntax_ == AnswerSyntax::Script && atLineStart_ && at_ < text_.size() && text_[at_] == ';') {
        const std::size_t end = text_.find('\n', at_);
        at_ = end == std::string_view::npos ? text_.size() : end + 1;
        ++line_;
    }
}

bool AnswerReader::atEnd() {
    skipComments();
    return at_ >= text_.size();
}

// One separator behind an answer belongs to it; a carriage return before a line feed is part of the line end.
void AnswerReader::takeSeparator(bool acceptsBlanks) {
    if (text_.substr(at_).starts_with("\r\n"))
        ++at_;
    if (at_ >= text_.size() || !isSeparator(text_[at_], acceptsBlanks)) {
        atLineStart_ = false;
        return;
    }
    atLineStart_ = text_[at_] == '\n';
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
    const bool beforeLineEnd = at_ < text_.size() && text_[at_] == '\n';
    if (at_ > begin && text_[at_ - 1] == '\r' && (beforeLineEnd || at_ == text_.size()))
        --at_;
    const std::string_view answer = text_.substr(begin, at_ - begin);
    if (at_ < text_.size() && text_[at_] == '\r' && at_ + 1 == text_.size())
        ++at_;
    takeSeparator(acceptsBlanks);
    return RawAnswer{answer.empty() ? RawAnswer::Kind::Enter : RawAnswer::Kind::Text, answer};
}

} // namespace quor::ed
