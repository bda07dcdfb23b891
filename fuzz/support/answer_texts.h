// What people, scripts and mischief answer: the tables that the fuzzer's choices pick from.
#pragma once

#include <span>

namespace quor::fuzz {

using Texts = std::span<const wchar_t* const>;

// Numbers in every format of the drawing's units, at the bounds of the questions that ask for them, and no numbers.
[[nodiscard]] Texts numberTexts();
// Points, directions, colours by three numbers, and broken ones.
[[nodiscard]] Texts pointTexts();
// Names of lights, layers, layouts and colours; patterns.
[[nodiscard]] Texts nameTexts();
// What nobody means.
[[nodiscard]] Texts garbageTexts();
// Files beside those that the scratch folder keeps.
[[nodiscard]] Texts fileTexts();
[[nodiscard]] Texts selectionTexts();
// Commands with a leading apostrophe, allowed in the middle of others or not.
[[nodiscard]] Texts transparentTexts();
// Settings that change how answers are read and lights behave.
[[nodiscard]] Texts settingTexts();
// A whole option of a light command with its answers; a whole command with its first answers.
[[nodiscard]] Texts optionTexts();
[[nodiscard]] Texts commandTexts();

} // namespace quor::fuzz
