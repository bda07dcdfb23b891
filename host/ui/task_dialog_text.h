// Task dialogs where there are no windows: as lines of text with a typed answer. Shared by the console, scripts and
// tests.
#pragma once

#include "host/front.h"
#include "sdk/ui/task_dialog.h"

#include <functional>
#include <optional>

namespace quor::ed {
class InputStack;
}

namespace quor::ui {

// Title, question, numbered choices with their explanation indented, the check box.
[[nodiscard]] ZrString taskDialogText(const CZrUiTaskDialog& dialog);
[[nodiscard]] ZrString taskDialogPrompt(const CZrUiTaskDialog& dialog);
// What an answer means: the number of a choice, with "+" behind it to tick the box; Enter takes the first; Esc cancels.
// Blanks around both do not count, and full-width characters, as input methods type them, are as good. Nothing for
// anything else.
[[nodiscard]] std::optional<TaskDialogAnswer> readTaskDialogAnswer(const CZrUiTaskDialog& dialog, const Answer& answer);

// How much of a typed line answers the dialog: its first word, and a "+" that stands alone behind it. The rest answers
// the questions that follow.
[[nodiscard]] std::size_t taskDialogAnswerLength(std::wstring_view line);
// For askTaskDialog(): a line that a person types here is cut by taskDialogAnswerLength(), any other at its blanks.
[[nodiscard]] Answer askPersonOrScript(ed::InputStack& input, Question question);

// Prints the dialog and asks until there is an answer.
[[nodiscard]] TaskDialogAnswer askTaskDialog(const CZrUiTaskDialog& dialog,
                                             const std::function<void(std::wstring_view)>& print,
                                             const std::function<Answer(const Question&)>& ask);

} // namespace quor::ui
