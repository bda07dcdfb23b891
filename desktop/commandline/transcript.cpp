#include "desktop/commandline/transcript.h"

#include "desktop/qt_text.h"
#include "host/sys/visible_text.h"

#include <algorithm>

namespace quor::desktop {

namespace {

// Control characters are spelled out, as on a terminal; a tab is layout.
ZrString readable(std::wstring_view text) {
    const auto isStrange = [](wchar_t c) { return c != L'\t' && isControl(c); };
    if (std::none_of(text.begin(), text.end(), isStrange))
        return ZrString(text);
    ZrString result;
    for (const wchar_t c : text)
        result += isStrange(c) ? visibleText({&c, 1}) : ZrString(1, c);
    return result;
}

} // namespace

void Transcript::print(const QString& text) {
    put(fromQt(text), Voice::Host);
    Q_EMIT changed();
}

void Transcript::answer(const QString& prompt, const QString& answer) {
    put(fromQt(prompt), Voice::Prompt);
    append(toQt(readable(fromQt(answer))) + "\n", Voice::Answer);
    screen_.answered();
    Q_EMIT changed();
}

void Transcript::clear() {
    first_ = end();
    pieces_.clear();
    lines_ = 0;
    screen_ = {};
    Q_EMIT cleared();
}

QString Transcript::text() const {
    QString all;
    for (const Piece& piece : pieces_)
        all += piece.text;
    return all;
}

void Transcript::put(std::wstring_view text, Voice voice) {
    std::wstring_view rest = screen_.put(text);
    while (!rest.empty()) {
        const std::size_t lineBreak = rest.find(L'\n');
        const std::size_t length = std::min(lineBreak, rest.size());
        const QString line = toQt(readable(rest.substr(0, length)));
        const bool ends = lineBreak != std::wstring_view::npos;
        append(ends ? line + "\n" : line, voice);
        rest.remove_prefix(ends ? length + 1 : length);
    }
}

void Transcript::append(const QString& text, Voice voice) {
    pieces_.push_back({text, voice});
    lines_ += text.endsWith('\n') ? 1 : 0;
    forgetOldLines();
}

void Transcript::forgetOldLines() {
    while (lines_ > kMostLines) {
        lines_ -= pieces_.front().text.endsWith('\n') ? 1 : 0;
        pieces_.pop_front();
        ++first_;
    }
}

} // namespace quor::desktop
