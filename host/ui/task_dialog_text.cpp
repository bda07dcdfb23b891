#include "host/ui/task_dialog_text.h"

#include "host/ed/input_stack.h"
#include "host/texts/input.h"

#include <algorithm>

namespace quor::ui {

namespace {

constexpr const wchar_t* kExplanationIndent = L"\n     ";

constexpr std::wstring_view kBlanks = L" \t";

// As on a keyboard without an input method: full-width digits, plus sign and blank become the usual ones.
ZrString withoutFullWidth(ZrString text) {
    constexpr wchar_t kFirst = L'\uFF01';
    constexpr wchar_t kLast = L'\uFF5E';
    constexpr wchar_t kWideBlank = L'\u3000';
    for (wchar_t& c : text) {
        if (c >= kFirst && c <= kLast)
            c = static_cast<wchar_t>(c - kFirst + L'!');
        else if (c == kWideBlank)
            c = L' ';
    }
    return text;
}

std::size_t lengthOfBlanks(std::wstring_view text) { return std::min(text.find_first_not_of(kBlanks), text.size()); }
std::wstring_view trimmedEnd(std::wstring_view text) { return text.substr(0, text.find_last_not_of(kBlanks) + 1); }

// The number of a choice, from 1; 0 when it is none.
std::size_t choiceNumber(std::wstring_view text, std::size_t count) {
    std::size_t number = 0;
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9')
            return 0;
        number = number * 10 + static_cast<std::size_t>(c - L'0');
        if (number > count)
            return 0;
    }
    return number;
}

ZrString refusal(const CZrUiTaskDialog& dialog) {
    const Text& text = dialog.checkbox().empty() ? texts::kDialogBadAnswer : texts::kDialogBadAnswerOrTick;
    return fill(text, dialog.commands().size());
}

} // namespace

ZrString taskDialogText(const CZrUiTaskDialog& dialog) {
    ZrString text = L"\n" + dialog.title() + L"\n" + dialog.instruction();
    int number = 0;
    for (const CZrUiTaskDialog::Command& command : dialog.commands()) {
        text += zrFormat(L"\n  %d. %s", {++number, command.text});
        if (!command.explanation.empty())
            text += kExplanationIndent + command.explanation;
    }
    if (!dialog.checkbox().empty())
        text += L"\n  " + fill(texts::kDialogCheckbox, dialog.checkbox());
    return text + L"\n";
}

ZrString taskDialogPrompt(const CZrUiTaskDialog& dialog) {
    return fill(texts::kDialogPrompt, dialog.commands().size());
}

std::optional<TaskDialogAnswer> readTaskDialogAnswer(const CZrUiTaskDialog& dialog, const Answer& answer) {
    const auto& commands = dialog.commands();
    const auto chosen = [&](std::size_t number, bool checked) {
        return TaskDialogAnswer{commands[number - 1].id, checked && !dialog.checkbox().empty(), false};
    };
    const bool inputEnded = answer.kind == Answer::Kind::End || answer.kind == Answer::Kind::Broken;
    if (inputEnded || (answer.kind == Answer::Kind::Cancel && dialog.isCancellable()))
        return TaskDialogAnswer{std::nullopt, false, inputEnded};
    if (answer.kind == Answer::Kind::Enter && !commands.empty())
        return chosen(1, false);
    if (answer.kind != Answer::Kind::Text)
        return std::nullopt;
    const ZrString typed = withoutFullWidth(answer.text);
    std::wstring_view text = trimmedEnd(std::wstring_view(typed).substr(lengthOfBlanks(typed)));
    if (text.empty() && !commands.empty())
        return chosen(1, false);
    const bool checked = text.ends_with(L'+');
    if (checked)
        text = trimmedEnd(text.substr(0, text.size() - 1));
    const std::size_t number = choiceNumber(text, commands.size());
    return number > 0 ? std::optional(chosen(number, checked)) : std::nullopt;
}

std::size_t taskDialogAnswerLength(std::wstring_view line) {
    const ZrString text = withoutFullWidth(ZrString(line));
    const std::size_t begin = lengthOfBlanks(text);
    const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size());
    const std::size_t next = std::min(text.find_first_not_of(kBlanks, end), text.size());
    const bool isTick = next < text.size() && text[next] == L'+';
    return isTick ? std::min(text.find_first_of(kBlanks, next), text.size()) : end;
}

Answer askPersonOrScript(ed::InputStack& input, Question question) {
    question.acceptsBlanks = !input.hasAnswer();
    Answer answer = input.ask(question);
    if (!question.acceptsBlanks || answer.kind != Answer::Kind::Text)
        return answer;
    const ZrString line = std::move(answer.text);
    const std::size_t length = taskDialogAnswerLength(line);
    answer.text = line.substr(0, length);
    if (line.find_first_not_of(kBlanks, length) != ZrString::npos)
        input.typeAhead(std::wstring_view(line).substr(length + 1));
    return answer;
}

TaskDialogAnswer askTaskDialog(const CZrUiTaskDialog& dialog, const std::function<void(std::wstring_view)>& print,
                               const std::function<Answer(const Question&)>& ask) {
    print(taskDialogText(dialog));
    const ZrString prompt = taskDialogPrompt(dialog);
    Question question;
    question.kind = Question::Kind::Text;
    question.prompt = prompt;
    while (true) {
        if (const std::optional<TaskDialogAnswer> answer = readTaskDialogAnswer(dialog, ask(question)))
            return *answer;
        print(refusal(dialog));
    }
}

} // namespace quor::ui
