#include "host/dxf/tag_reader.h"

#include "host/dxf/binary_tags.h"
#include "host/dxf/code_line.h"

#include <algorithm>
#include <cstring>

namespace quor::dxf {
namespace {

// Offset of the next line feed in file[at, end), or end.
std::size_t findLineFeed(std::string_view file, std::size_t at, std::size_t end) {
    const auto* found = static_cast<const char*>(std::memchr(file.data() + at, '\n', end - at));
    return found != nullptr ? static_cast<std::size_t>(found - file.data()) : end;
}

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
    : file_(file), at_(std::min(begin, file.size())), end_(std::min(end, file.size())), form_(form) {}

void TagReader::seek(std::size_t offset) {
    at_ = std::min(offset, end_);
    damaged_ = false;
}

bool TagReader::next(Tag& tag) {
    if (damaged_ || at_ >= end_) {
        return false;
    }
    return form_ == Form::Ascii ? nextAscii(tag) : nextBinary(tag);
}

bool TagReader::stop() {
    damaged_ = true;
    return false;
}

bool TagReader::nextAscii(Tag& tag) {
    const std::size_t codeEnd = findLineFeed(file_, at_, end_);
    const int code = codeAt(file_, at_, codeEnd);
    if (code == kBadCode || codeEnd + 1 >= end_) {
        return stop();
    }
    const std::size_t valueEnd = findLineFeed(file_, codeEnd + 1, end_);
    tag.code = code;
    tag.raw = lineBody(file_, codeEnd + 1, valueEnd);
    tag.begin = at_;
    tag.end = std::min(valueEnd + 1, end_);
    tag.form = form_;
    at_ = tag.end;
    return true;
}

bool TagReader::nextBinary(Tag& tag) {
    if (readBinaryTag(file_, form_, at_, end_, tag) != BinaryStep::Ok) {
        return stop();
    }
    at_ = tag.end;
    return true;
}

std::size_t lineOf(std::string_view file, std::size_t offset) {
    const auto end = file.begin() + static_cast<std::ptrdiff_t>(std::min(offset, file.size()));
    return 1 + static_cast<std::size_t>(std::count(file.begin(), end, '\n'));
}

} // namespace quor::dxf
