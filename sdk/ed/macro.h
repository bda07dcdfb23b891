// Running command text from a program.
#pragma once

// Queues a macro as if a menu item had been chosen: blank and ";" end an answer, "^C" is Esc, "_" the global names.
// It runs when the current command, if any, has ended. `cancelFirst`: as if the macro began with "^C^C".
// `focusToDrawing`: the keyboard goes back from a palette to the drawing. Answers RTNORM, RTERROR for null.
int zredMenuMacro(const wchar_t* macro, bool cancelFirst = false, bool focusToDrawing = false);
