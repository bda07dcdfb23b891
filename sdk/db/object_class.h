// Of which class an object is, before anybody opens it.
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/rx/class.h"

// The class of an object, erased or open for write too; an entity is not made for it. Null for the null id.
[[nodiscard]] ZrRxClass* zrdbObjectClass(ZrDbObjectId id);
