#include "host/dxf/tag_reader.h"

#include "host/dxf/binary_tags.h"
#include "host/dxf/code_line.h"

#include <algorithm>

namespace quor::dxf {
namespace {

// The group code on the line file[begin, end).
int codeAt(std::string_view file, std::size_t begin, std::size_t end) {
    const std::size_t length = end - begin;
    if (begin + 4 <= file.size())
        return readCodeLine(file.data() + begin, length);
    return parseGroupCode(file.substr(begin, length)).value_or(kBadCode);
}

std::string_view lineBody(std::string_view file, std::size_t begin, std::size_t end) {
    const bool carriageReturn = end > begin && file[end - 1] == '\r';
    return file.substr(begin, end - begin - (carriageReturn ? 1 : 0));
}

} // namespace

TagReader::TagReader(std::string_view file, Form form, std::size_t begin, std::size_t end)
    : file_(file), at_(std::min(begin, file.size())), end_(std::min(end, file.size())), ends_(file, at_), form_(form) {}

void TagReader::seek(std::size_t offset) {
    at_ = std::min(offset, end_);
    ends_.seek(at_);
    damaged_ = false;
}

bool TagReader::next(Tag& tag, const CodeSet& wanted) {
    if (damaged_) {
        return false;
    }
    return form_ == Form::Ascii ? nextAscii(tag, wanted) : nextBinary(tag, wanted);
}

bool TagReader::stopAt(std::size_t offset) {
    at_ = offset;
    damaged_ = offset < end_;
    return false;
}

bool TagReader::nextAscii(Tag& tag, const CodeSet& wanted) {
    // In registers while tags are passed over.
    const std::string_view file = file_;
    const std::size_t end = end_;
    LineEnds ends = ends_;
    std::size_t at = at_;
    while (at < end) {
        const std::size_t codeEnd = ends.next();
        if (codeEnd + 1 >= end) {
            break;
        }
        const int code = codeAt(file, at, codeEnd);
        if (code == kBadCode) {
            break;
        }
        const std::size_t valueEnd = ends.next();
        const std::size_t tagEnd = std::min(valueEnd + 1, end);
        if (wanted.contains(code)) {
            tag.code = code;
            tag.raw = lineBody(file, codeEnd + 1, std::min(valueEnd, end));
            tag.begin = at;
            tag.end = tagEnd;
            tag.form = form_;
            at_ = tagEnd;
            ends_ = ends;
            return true;
        }
        at = tagEnd;
    }
    return stopAt(at);
}

bool TagReader::nextBinary(Tag& tag, const CodeSet& wanted) {
    while (at_ < end_) {
        if (readBinaryTag(file_, form_, at_, end_, tag) != BinaryStep::Ok) {
            break;
        }
        at_ = tag.end;
        if (wanted.contains(tag.code)) {
            return true;
        }
    }
    return stopAt(at_);
}

std::size_t lineOf(std::string_view file, std::size_t offset) {
    const auto end = file.begin() + static_cast<std::ptrdiff_t>(std::min(offset, file.size()));
    return 1 + static_cast<std::size_t>(std::count(file.begin(), end, '\n'));
}

} // namespace quor::dxf
