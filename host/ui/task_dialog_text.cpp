#include "host/ui/task_dialog_text.h"

#include "host/texts/input.h"

namespace quor::ui {

namespace {

constexpr const wchar_t* kExplanationIndent = L"\n     ";

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
    std::wstring_view text = answer.text;
    const bool checked = text.ends_with(L'+');
    if (checked)
        text.remove_suffix(1);
    const std::size_t number = choiceNumber(text, commands.size());
    return number > 0 ? std::optional(chosen(number, checked)) : std::nullopt;
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
        print(fill(texts::kDialogBadAnswer, dialog.commands().size()));
    }
}

} // namespace quor::ui
