#include "console/terminal_reader.h"

#include "console/columns.h"
#include "host/sys/visible_text.h"

#include <clocale>
#include <cstdio>
#include <histedit.h>
#include <unistd.h>

namespace quor::console {

namespace {

constexpr int kRecalledLines = static_cast<int>(ed::History::kMostLines);

// The editing library writes characters in the locale's encoding; files and pipes never depend on it.
void useUtf8() {
    for (const char* locale : {"C.UTF-8", "C.utf8", "en_US.UTF-8", ""})
        if (std::setlocale(LC_CTYPE, locale) != nullptr)
            return;
}

} // namespace

struct TerminalReader::Calls {
    static TerminalReader& self(EditLine* editor) {
        void* reader = nullptr;
        el_wget(editor, EL_CLIENTDATA, &reader);
        return *static_cast<TerminalReader*>(reader);
    }
    static wchar_t* prompt(EditLine* editor) { return self(editor).prompt_.data(); }
    static int key(EditLine* editor, wchar_t* c) { return self(editor).keys_.next(*c) ? 1 : 0; }
    static unsigned char complete(EditLine* editor, int) { return self(editor).completeAtCaret(); }
    static unsigned char cancel(EditLine* editor, int) {
        self(editor).cancelled_ = true;
        return CC_NEWLINE;
    }
};

void TerminalReader::EndEditor::operator()(editline* editor) const { el_end(editor); }
void TerminalReader::EndHistory::operator()(historyW* history) const { history_wend(history); }

TerminalReader::TerminalReader(Output& output, ed::History history, Source source)
    : output_(output), history_(std::move(history)), source_(std::move(source)),
      keys_(STDIN_FILENO, [this] { drawAnew(); }) {
    useUtf8();
    recalled_.reset(history_winit());
    editor_.reset(el_init("quorc", stdin, stdout, stderr));
    HistEventW event;
    history_w(recalled_.get(), &event, H_SETSIZE, kRecalledLines);
    history_w(recalled_.get(), &event, H_SETUNIQUE, 1);
    for (const ZrString& line : history_.load())
        history_w(recalled_.get(), &event, H_ENTER, line.c_str());
    bindKeys();
}

TerminalReader::~TerminalReader() = default;

void TerminalReader::bindKeys() {
    EditLine* const editor = editor_.get();
    el_wset(editor, EL_CLIENTDATA, this);
    el_wset(editor, EL_PROMPT, &Calls::prompt);
    el_wset(editor, EL_EDITOR, L"emacs");
    el_wset(editor, EL_HIST, history_w, recalled_.get());
    el_source(editor, nullptr); // the user's own keys
    el_wset(editor, EL_SIGNAL, 0);
    el_wset(editor, EL_GETCFN, &Calls::key);
    el_wset(editor, EL_ADDFN, L"quor-complete", L"Complete the word", &Calls::complete);
    el_wset(editor, EL_ADDFN, L"quor-cancel", L"Cancel", &Calls::cancel);
    el_wset(editor, EL_BIND, L"^I", L"quor-complete", nullptr);
    el_wset(editor, EL_BIND, L"^C", L"quor-cancel", nullptr);
    el_wset(editor, EL_BIND, L"^R", L"em-inc-search-prev", nullptr);
}

void TerminalReader::remember(const ZrString& line) {
    if (line.find_first_not_of(L" \t") == ZrString::npos)
        return;
    HistEventW event;
    const bool isNew = history_w(recalled_.get(), &event, H_FIRST) < 0 || line != event.str;
    if (!isNew)
        return;
    history_w(recalled_.get(), &event, H_ENTER, line.c_str());
    history_.add(line);
}

Line TerminalReader::read(const Question& question) {
    // Only the last line of a prompt can be edited behind.
    const std::size_t lastLine = question.prompt.rfind(L'\n') + 1;
    output_.prompt(question.prompt.substr(0, lastLine));
    output_.freshLine();
    output_.flush();
    prompt_ = visibleText(question.prompt.substr(lastLine));
    question_ = &question;
    drawnColumns_ = output_.columns();
    cancelled_ = false;

    // Before the prompt is seen, so that a Ctrl+D typed at once is not taken by the terminal itself.
    el_wset(editor_.get(), EL_PREP_TERM, 1);
    int count = 0;
    const wchar_t* typed = el_wgets(editor_.get(), &count);
    ZrString line = typed != nullptr && count > 0 ? ZrString(typed, static_cast<std::size_t>(count)) : ZrString();
    question_ = nullptr;
    const bool wholeLine = line.ends_with(L'\n');
    if (wholeLine)
        line.pop_back();
    else
        std::fputs(cancelled_ ? "^C\n" : "\n", stdout);
    std::fflush(stdout);
    output_.answered();
    if (cancelled_)
        return {Line::Kind::Cancel, {}};
    if (typed == nullptr || count <= 0)
        return {Line::Kind::End, {}};
    remember(line);
    return {Line::Kind::Text, std::move(line)};
}

unsigned char TerminalReader::completeAtCaret() {
    const LineInfoW* info = el_wline(editor_.get());
    const std::wstring_view typed(info->buffer, static_cast<std::size_t>(info->cursor - info->buffer));
    const ed::Completion completion = ed::complete(typed, source_(*question_));
    if (completion.candidates.empty())
        return CC_ERROR;
    const std::wstring_view word = typed.substr(completion.from);
    if (completion.common.size() > word.size() || completion.candidates.size() == 1) {
        el_wdeletestr(editor_.get(), static_cast<int>(word.size()));
        el_winsertstr(editor_.get(), completion.common.c_str());
        return CC_REFRESH;
    }
    showBelow(inColumns(completion.candidates, static_cast<std::size_t>(output_.columns())));
    return CC_NORM;
}

int TerminalReader::rowOf(const wchar_t* place) const {
    const LineInfoW* info = el_wline(editor_.get());
    return lastRowOf(prompt_ + ZrString(info->buffer, place), output_.columns());
}

// The library would clear as many rows above the cursor as the line took, and so what was written below the line;
// this refresh draws from where the cursor is.
void TerminalReader::showBelow(std::wstring_view text) {
    const LineInfoW* info = el_wline(editor_.get());
    const int below = rowOf(info->lastchar) - rowOf(info->cursor);
    std::fputs(std::string(static_cast<std::size_t>(below) + 1, '\n').c_str(), stdout);
    std::fflush(stdout);
    output_.answered();
    output_.prompt(text);
    output_.flush();
    el_wset(editor_.get(), EL_REFRESH);
}

// A terminal that gets another width breaks the rows on it anew, before anybody is told.
void TerminalReader::drawAnew() {
    el_wset(editor_.get(), EL_PREP_TERM, 1);
    const int columns = output_.columns();
    if (columns != drawnColumns_) {
        const int above = rowOf(el_wline(editor_.get())->cursor);
        std::fputs(above > 0 ? ("\x1b[" + std::to_string(above) + "A").c_str() : "", stdout);
        std::fputs("\r\x1b[J", stdout);
    }
    drawnColumns_ = columns;
    el_resize(editor_.get());
    el_wset(editor_.get(), EL_REFRESH);
}

} // namespace quor::console
