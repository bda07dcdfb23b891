#include "console/console_front_end.h"

#include "host/ed/input_stack.h"
#include "host/session.h"
#include "host/sys/visible_text.h"
#include "host/ui/file_dialog_text.h"
#include "host/ui/palette_text.h"
#include "host/ui/task_dialog_text.h"

namespace quor::console {

namespace {

constexpr std::wstring_view kSpace = L" \t\r\n";

Answer toAnswer(Line line) {
    switch (line.kind) {
    case Line::Kind::End:
        return {Answer::Kind::End, {}, {}};
    case Line::Kind::Broken:
        return {Answer::Kind::Broken, {}, {}};
    case Line::Kind::Cancel:
        return {Answer::Kind::Cancel, {}, {}};
    case Line::Kind::Text:
        break;
    }
    if (line.text.empty())
        return {Answer::Kind::Enter, {}, {}};
    return {Answer::Kind::Text, std::move(line.text), {}};
}

} // namespace

ZrString ConsoleFrontEnd::lastMessage() const {
    const std::size_t last = lastText_.find_last_not_of(kSpace);
    if (last == ZrString::npos)
        return {};
    const std::size_t lineBreak = lastText_.rfind(L'\n', last);
    const std::size_t first = lastText_.find_first_not_of(kSpace, lineBreak == ZrString::npos ? 0 : lineBreak);
    return visibleText(lastText_.substr(first, last + 1 - first));
}

void ConsoleFrontEnd::print(std::wstring_view text) {
    lastText_ = text;
    output_.print(text);
}

Answer ConsoleFrontEnd::ask(const Question& question) {
    return reader_ != nullptr ? toAnswer(reader_->read(question)) : Answer{Answer::Kind::End, {}, {}};
}

void ConsoleFrontEnd::echo(const Question& question, std::wstring_view answer) {
    output_.prompt(question.prompt);
    output_.answer(answer);
}

Answer ConsoleFrontEnd::drag(const Question& question, const std::function<void(const ZrGePoint3d&)>&) {
    return ask(question);
}

TaskDialogAnswer ConsoleFrontEnd::showTaskDialog(const CZrUiTaskDialog& dialog) {
    return ui::askTaskDialog(
        dialog, [this](std::wstring_view text) { print(text); },
        [](const Question& question) { return ui::askPersonOrScript(Session::current().input(), question); });
}

FileAnswer ConsoleFrontEnd::chooseFile(const FileQuestion& file) {
    return ui::askFile(file, [](const Question& question) { return Session::current().input().ask(question); });
}

void ConsoleFrontEnd::paletteShown(const CZkUiPaletteSet& palette) { print(ui::paletteText(palette, columns())); }

} // namespace quor::console
