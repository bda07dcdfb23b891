// What a person does who leaves the program, and what they see then.
#pragma once

#include "tests/desktop/support/person.h"

#include <QString>

#include <initializer_list>

namespace quor::desktop::test {

// Closes the main window, as its own button does, and does not wait.
void closeWindow(Person& person);
// Waits for what has the screen then.
void closeWindowAndWait(Person& person);

// The dialog or menu that is open: its object name; empty when there is none.
[[nodiscard]] QString openDialog(Person& person);
[[nodiscard]] QString openMenu(Person& person);
// Whether the command prompt waits, and nothing is open beside it.
[[nodiscard]] bool isAtCommandPrompt(Person& person);
// The question that waits, as it is printed; empty when none does.
[[nodiscard]] QString openPrompt(Person& person);

// Answers the question that waits.
void gives(Person& person, std::initializer_list<const wchar_t*> lines);
// Makes unsaved changes in the current drawing.
void changesDrawing(Person& person);

// In the question what is to become of the changes of a drawing.
enum class Choice { Save, Discard, Cancel };
void chooses(Person& person, Choice choice);
// The same at the end of a story: the program may end with it.
void choosesAndLeaves(Person& person, Choice choice);

// What is wrong with the current drawing once no command runs: an undo group that is still open, a light that nobody
// sees. Empty when nothing is.
[[nodiscard]] std::string wrongWithDrawing(Person& person);

[[nodiscard]] std::size_t entityCount(Person& person);

} // namespace quor::desktop::test
