#include "console/output.h"

#include "host/front.h"
#include "host/sys/text_wrap.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"

#include <algorithm>

namespace quor::console {

namespace {
constexpr std::size_t kBufferSize = std::size_t{1} << 16;

constexpr wchar_t kFirstVisible = 0x20;
constexpr wchar_t kDelete = 0x7F;
} // namespace

Output::Output(ByteSink sink, bool quiet, ScreenColumns columns)
    : sink_(std::move(sink)), columns_(std::move(columns)), quiet_(quiet) {
    if (!quiet_)
        buffer_.reserve(kBufferSize + kBufferSize / 4);
}

int Output::columns() const {
    if (!columns_)
        return FrontEnd::kAnyColumns;
    const int columns = columns_();
    return columns > 0 ? columns : FrontEnd::kUsualColumns;
}

void Output::append(std::wstring_view text) {
    for (const wchar_t c : text) {
        const bool isLayout = c == L'\n' || c == L'\t';
        if (isLayout || (c >= kFirstVisible && c < kDelete))
            buffer_.push_back(static_cast<char>(c));
        else if (isControl(c))
            buffer_ += toUtf8(visibleText({&c, 1}));
        else
            appendUtf8(buffer_, c);
    }
    if (buffer_.size() >= kBufferSize)
        flushLines();
}

void Output::print(std::wstring_view text) {
    if (quiet_ || !columns_)
        return prompt(text);
    // What goes on with a line that has begun stays behind it.
    const std::size_t begun = screen_.atLineStart() ? 0 : std::min(text.find(L'\n'), text.size());
    prompt(ZrString(text.substr(0, begun)) + wrapped(text.substr(begun), columns()));
}

void Output::prompt(std::wstring_view text) {
    if (!quiet_)
        append(screen_.put(text));
}

void Output::answer(std::wstring_view text) {
    if (quiet_)
        return;
    append(text);
    append(L"\n");
    screen_.answered();
}

void Output::freshLine() {
    if (quiet_ || screen_.atLineStart())
        return;
    append(L"\n");
    screen_.answered();
}

void Output::write(std::size_t count) {
    if (count > 0 && error_ == 0) {
        if (beforeWriting_)
            beforeWriting_();
        error_ = sink_(std::string_view(buffer_).substr(0, count));
        writtenLine_ = buffer_[count - 1] == '\n';
    }
    buffer_.erase(0, count);
}

void Output::flush() { write(buffer_.size()); }

void Output::flushLines() {
    const std::size_t end = buffer_.rfind('\n');
    if (end != std::string::npos)
        write(end + 1);
    else if (buffer_.size() >= kBufferSize)
        flush();
}

} // namespace quor::console
