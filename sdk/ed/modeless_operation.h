// Changes of a drawing that no command makes: what a person does in a palette.
#pragma once

#include "sdk/sys/string.h"

class ZrApDocument;

// Announces that something beside the commands is about to change the current drawing, and that it is done. What
// happens in between is one step of undo under this name. They nest; only the outermost counts. Without a drawing
// nothing happens.
void zrapModelessOperationStart(const wchar_t* name);
void zrapModelessOperationEnd(const wchar_t* name);

// Has the drawing's picture made anew, from what has changed.
void zrapRefreshGraphics(ZrApDocument& document);
// Brings what is shown up to date now: the drawing, the palettes.
void zredUpdateDisplay();
