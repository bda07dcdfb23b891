// Running command text from a program.
#pragma once

// Queues a macro as if a menu item had been chosen: blank and ";" end an answer, "^C" is Esc, "_" the global names.
// It runs when the current command, if any, has ended. Answers RTNORM.
int zredMenuMacro(const wchar_t* macro);
