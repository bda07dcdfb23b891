// Selection sets: objects of the current drawing that a program has put together, under entity names.
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/rx/error_status.h"
#include "sdk/rx/result_codes.h"

#include <cstdint>

// The name of an object, or of a selection set, for the length of a session: a small value that is handed around as it
// is. Made by zrdbGetZdsName and by the functions below only.
struct ZdsName {
    ZrDbObjectId object;      // null for a selection set
    std::uint32_t number = 0; // of the selection set; 0 for an object
    bool operator==(const ZdsName&) const = default;
};

// The name of an object: eInvalidInput for the null id.
Quor::ErrorStatus zrdbGetZdsName(ZdsName& name, ZrDbObjectId id);
// The object of a name: eInvalidInput when it names none.
Quor::ErrorStatus zrdbGetObjectId(ZrDbObjectId& id, const ZdsName& name);

// Makes a selection set, to be freed by the caller. `mode` "I": the implied (pick-first) selection, in the order in
// which it was selected. RTNORM with at least one object; RTERROR, and no set, when nothing is selected, no drawing is
// open, or the mode is unknown.
int zredSSGet(const wchar_t* mode, ZdsName& set);
// Makes an empty set (`entity` and `set` null), one of a single object (`set` null), or puts an object into a set,
// where each stands once. `result` is the set. RTERROR for what is no object or no set.
int zredSSAdd(const ZdsName* entity, const ZdsName* set, ZdsName& result);
// How many objects it has. RTERROR, and `length` 0, for what is no set.
int zredSSLength(const ZdsName& set, long& length);
// The member at `index`, from 0. RTERROR when there is none.
int zredSSName(const ZdsName& set, long index, ZdsName& entity);
// Gives the set back. RTERROR for what is no set; freeing one that was never made is harmless.
int zredSSFree(const ZdsName& set);

// Makes the set's objects the pick-first selection of the current drawing; null or an empty set: nothing is selected.
// The objects that are erased or belong to another drawing are left out. RTERROR for what is no set.
int zredSSSetFirst(const ZdsName* set);
