// Task dialogs where there are no windows: as lines of text with a typed answer. Shared by the console, scripts and
// tests.
#pragma once

#include "host/front.h"
#include "sdk/ui/task_dialog.h"

#include <functional>
#include <optional>

namespace quor::ui {

// Title, question, numbered choices with their explanation indented, the check box.
[[nodiscard]] ZrString taskDialogText(const CZrUiTaskDialog& dialog);
[[nodiscard]] ZrString taskDialogPrompt(const CZrUiTaskDialog& dialog);
// What an answer means: the number of a choice, with "+" behind it to tick the box; Enter takes the first; Esc cancels.
// Nothing for anything else.
[[nodiscard]] std::optional<TaskDialogAnswer> readTaskDialogAnswer(const CZrUiTaskDialog& dialog, const Answer& answer);

// Prints the dialog and asks until there is an answer.
[[nodiscard]] TaskDialogAnswer askTaskDialog(const CZrUiTaskDialog& dialog,
                                             const std::function<void(std::wstring_view)>& print,
                                             const std::function<Answer(const Question&)>& ask);

} // namespace quor::ui
