// The options of LAYER that change layers by their names: on and off, frozen and thawed, locked and unlocked, colour.
#pragma once

#include "sdk/sys/string.h"

namespace quor::db {
class Database;
}

namespace quor::commands {

// Ask for names, several of them with commas between, "*" and "?" standing for any text and any character. The keyword
// is ON, OFF, Freeze, Thaw, LOck or Unlock. RTNORM, or RTCAN for Esc.
[[nodiscard]] int changeLayers(db::Database& drawing, const ZrString& keyword);
[[nodiscard]] int colorLayers(db::Database& drawing);

} // namespace quor::commands
