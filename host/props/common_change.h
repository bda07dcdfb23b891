// One property changed in several objects at once: all of them, or none.
#pragma once

#include "host/props/reading.h"

#include <functional>

namespace quor::db {
class Database;
}

namespace quor::props {

// What the values of that many objects of a drawing depend on.
[[nodiscard]] Context contextOf(db::Database& drawing, std::size_t objects);

// Takes the writing of a checked value and does it, or refuses.
using Make = std::function<Refusal(const std::function<Refusal()>& write)>;
// Reads a typed value and has it written to all objects; what was typed without a change writes nothing. A refusal of
// the writing itself may come after some were changed: `make` takes that back.
[[nodiscard]] Refusal changeCommon(const ZrDbObjectIdArray& ids, const Common& common, const ZrString& typed,
                                   const Context& context, const Make& make);

} // namespace quor::props
