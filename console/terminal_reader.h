// Lines from a person at a terminal: editing, history, completion.
#pragma once

#include "console/line_reader.h"
#include "console/output.h"
#include "console/terminal_keys.h"
#include "host/ed/completion.h"
#include "host/ed/history.h"

#include <memory>

struct editline;
struct historyW;

namespace quor::console {

// At most one at a time, on standard input and output.
class TerminalReader final : public LineReader {
public:
    // What Tab may offer at a question; asked when Tab is pressed.
    using Source = std::function<ed::CompletionSource(const Question&)>;

    TerminalReader(Output& output, ed::History history, Source source);
    ~TerminalReader() override;
    TerminalReader(const TerminalReader&) = delete;
    TerminalReader& operator=(const TerminalReader&) = delete;

    Line read(const Question& question) override;

private:
    struct EndEditor {
        void operator()(editline* editor) const;
    };
    struct EndHistory {
        void operator()(historyW* history) const;
    };
    // What the editing library calls back.
    struct Calls;

    void bindKeys();
    void remember(const ZrString& line);
    // Offers what fits at the caret; answers what the editing library is to do next.
    unsigned char completeAtCaret();
    // Shows the text below the line that is typed, and the line again below the text.
    void showBelow(std::wstring_view text);
    // After the terminal got another size, or came back after a pause.
    void drawAnew();
    // On which row, counted from the prompt's, a place of the typed line stands.
    [[nodiscard]] int rowOf(const wchar_t* place) const;

    Output& output_;
    ed::History history_;
    Source source_;
    TerminalKeys keys_;
    std::unique_ptr<historyW, EndHistory> recalled_;
    std::unique_ptr<editline, EndEditor> editor_;
    ZrString prompt_;
    const Question* question_ = nullptr;
    int drawnColumns_ = 0;
    bool cancelled_ = false;
};

} // namespace quor::console
