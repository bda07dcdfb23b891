// System variables, per-user values and the question who called, as commands ask for them.
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/sys/string.h"

namespace zwutads {

// Reads a whole-number system variable. False, and `value` unchanged, when there is none of that name or type.
// `quiet`: no message of the host on failure.
bool getVar(const wchar_t* name, short& value, bool quiet = true);
// Sets it; false when it is read-only, out of its range or unknown. Part of the running command's undo group. A
// variable that a module computes keeps the value that its callback gives; setting it tells the palettes that it has
// changed.
bool setVar(const wchar_t* name, short value, bool quiet = true);

// Whether the running command was started by a script, a macro, a program or another command.
[[nodiscard]] bool isCalledLispOrArx();

// Per-user values of the profile's dialog options. Get leaves `value` alone and answers false when it is absent.
bool GetValueFromReg(const wchar_t* name, int& value);
bool SetValueFromReg(const wchar_t* name, int value);

// Whether a block reference of the current drawing is being edited in place.
[[nodiscard]] bool isRefEditting();
// Whether the object belongs to the working set of that editing. False when none is going on.
[[nodiscard]] bool isObjInWorkset(ZrDbObjectId id);

} // namespace zwutads
