#include "console/pipe_reader.h"

#include "console/signals.h"
#include "host/sys/utf8.h"

namespace quor::console {

namespace {
constexpr std::size_t kChunk = std::size_t{1} << 16;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
} // namespace

bool PipeReader::readMore() {
    if (ended_)
        return false;
    output_.flush();
    const bool isFirst = buffer_.empty() && at_ == 0;
    buffer_.erase(0, at_);
    at_ = 0;
    const std::size_t before = buffer_.size();
    buffer_.resize(before + kChunk);
    const std::ptrdiff_t count = source_(buffer_.data() + before, kChunk);
    buffer_.resize(before + (count > 0 ? static_cast<std::size_t>(count) : 0));
    ended_ = count <= 0;
    broken_ = count < 0;
    if (isFirst && std::string_view(buffer_).starts_with(kByteOrderMark))
        at_ = kByteOrderMark.size();
    return !ended_;
}

bool PipeReader::nextLine(std::string& line) {
    std::size_t searched = at_;
    std::size_t end = buffer_.find('\n', searched);
    while (end == std::string::npos) {
        searched = buffer_.size() - at_; // counted from the start of the line, which moves to the front
        if (!readMore())
            break;
        end = buffer_.find('\n', at_ + searched);
    }
    if (end == std::string::npos && at_ >= buffer_.size())
        return false;
    const std::size_t stop = end == std::string::npos ? buffer_.size() : end;
    line = buffer_.substr(at_, stop - at_);
    at_ = end == std::string::npos ? stop : stop + 1;
    if (line.ends_with('\r'))
        line.pop_back();
    return true;
}

Line PipeReader::read(const Question& question) {
    output_.prompt(question.prompt);
    std::string line;
    const bool stopped = signals::interrupted() || output_.error() != 0;
    if (stopped || !nextLine(line) || signals::interrupted()) {
        output_.freshLine();
        return {broken_ && !signals::interrupted() ? Line::Kind::Broken : Line::Kind::End, {}};
    }
    ZrString text = fromUtf8(line);
    output_.answer(text);
    return {Line::Kind::Text, std::move(text)};
}

} // namespace quor::console
