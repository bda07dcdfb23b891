#include "fuzz/support/fuzzed_front_end.h"

#include "fuzz/support/failure.h"
#include "fuzz/support/onlooker.h"
#include "fuzz/support/palette_check.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"
#include "host/ui/file_dialog_text.h"
#include "host/ui/palette_text.h"
#include "host/ui/task_dialog_text.h"
#include "sdk/ui/menu.h"
#include "sdk/ui/palette_set.h"

#include <algorithm>

namespace quor::fuzz {

namespace {

// So many questions inside each other need one Esc each, with much to spare.
constexpr int kMostEscapes = 50;

// A terminal obeys control characters; none that somebody typed or a file holds may reach it.
int checkShown(std::string_view bytes) {
    const ZrString text = fromUtf8(bytes);
    const bool obeyed =
        std::any_of(text.begin(), text.end(), [](wchar_t c) { return c != L'\n' && c != L'\t' && isControl(c); });
    require(!obeyed, "a control character is shown");
    return 0;
}

void addCommands(const CMenu& menu, std::vector<unsigned>& commands) {
    for (const CMenu::Entry& entry : menu.entries()) {
        if (entry.command != 0)
            commands.push_back(entry.command);
        if (entry.submenu != nullptr)
            addCommands(*entry.submenu, commands);
    }
}

} // namespace

FuzzedFrontEnd::FuzzedFrontEnd() : screen_(checkShown) {}

void FuzzedFrontEnd::answerFrom(AnswerMaker& maker, Ending ending) {
    maker_ = &maker;
    ending_ = ending;
}

void FuzzedFrontEnd::print(std::wstring_view text) { screen_.print(text); }

Answer FuzzedFrontEnd::lastAnswer(const Question& question) {
    if (ending_ == Ending::Broken)
        return {Answer::Kind::Broken, {}, {}};
    if (ending_ == Ending::End || question.kind == Question::Kind::Command)
        return {Answer::Kind::End, {}, {}};
    if (++escapes_ <= kMostEscapes)
        return {Answer::Kind::Cancel, {}, {}};
    fail("Esc does not lead back to the command prompt");
}

Answer FuzzedFrontEnd::ask(const Question& question) {
    screen_.print(question.prompt);
    screen_.answered();
    return maker_->atEnd() ? lastAnswer(question) : maker_->personsAnswer(question);
}

void FuzzedFrontEnd::echo(const Question& question, std::wstring_view answer) {
    screen_.print(question.prompt);
    screen_.answer(answer);
}

Answer FuzzedFrontEnd::drag(const Question& question, const std::function<void(const ZrGePoint3d&)>& sample) {
    const Answer answer = ask(question);
    if (answer.kind == Answer::Kind::Point) {
        sample({0, 0, 0});
        sample(answer.point);
        sample(answer.point);
    }
    return answer;
}

TaskDialogAnswer FuzzedFrontEnd::showTaskDialog(const CZrUiTaskDialog& dialog) {
    const std::optional<unsigned> choice = maker_->choice();
    if (!choice)
        return ui::askTaskDialog(
            dialog, [this](std::wstring_view text) { print(text); },
            [this](const Question& question) { return ask(question); });
    TaskDialogAnswer answer;
    answer.checked = *choice % 2 != 0;
    const std::size_t command = *choice / 2 % (dialog.commands().size() + 1);
    if (command < dialog.commands().size())
        answer.command = dialog.commands()[command].id;
    return answer;
}

FileAnswer FuzzedFrontEnd::chooseFile(const FileQuestion& question) {
    return ui::askFile(question, [this](const Question& asked) { return ask(asked); });
}

void FuzzedFrontEnd::realise(CWnd& window) { watch(window); }

void FuzzedFrontEnd::paletteShown(const CZkUiPaletteSet& palette) {
    print(ui::paletteText(palette, columns()));
    checkRows(palette);
}

unsigned FuzzedFrontEnd::trackMenu(const CMenu& menu, CPoint /*screen*/) {
    const std::optional<unsigned> choice = maker_->choice();
    std::vector<unsigned> commands;
    addCommands(menu, commands);
    const std::size_t chosen = choice ? *choice % (commands.size() + 1) : commands.size();
    return chosen < commands.size() ? commands[chosen] : 0;
}

} // namespace quor::fuzz
