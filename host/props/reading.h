// What several objects have in common, read at the price of one look at each.
#pragma once

#include "host/props/property.h"
#include "host/props/row.h"
#include "sdk/ed/selection.h"

namespace quor::props {

// A property that all of the objects have.
struct Common {
    const Property* property;
    Value value;          // of the first object
    bool varies = false;  // another one has another value; it is not compared from then on
    bool isFixed = false; // one of them does not let it be changed
};

// The properties that count for every one of the objects; those that cannot be opened are passed over.
[[nodiscard]] std::vector<Common> readCommon(const ZrDbObjectIdArray& ids, const Context& context);
[[nodiscard]] Row rowOf(const Common& common, const Context& context);
// Whether a person may change it.
[[nodiscard]] bool isEditable(const Common& common, const Context& context);

} // namespace quor::props
