// Values of properties as people read and type them, in the drawing's units.
#pragma once

#include "host/props/property.h"
#include "host/sys/result.h"

namespace quor::props {

// The symbol behind a number; empty where it has none.
[[nodiscard]] ZrString unitOf(Quantity quantity, const Context& context);
// What an editor begins with: without the unit; empty where there is no value.
[[nodiscard]] ZrString inputText(const Property& property, const Value& value);
// As it is read: with the unit; a dash where there is no value.
[[nodiscard]] ZrString shownText(const Property& property, const Value& value, const Context& context);
// The words of a choice or of yes and no; of a colour those that have a name.
[[nodiscard]] std::vector<ZrString> choicesOf(const Property& property, const Context& context);
// The colours 1 to 7, and before them what an object may follow.
[[nodiscard]] std::vector<ZrString> colorChoices(bool mayFollow);

// What a typed text means for a property, with or without the unit behind it; or why it means nothing, with what is
// allowed.
[[nodiscard]] Result<Value, ZrString> parseValue(const Property& property, std::wstring_view typed,
                                                 const Context& context);
// A colour: "7", its name, "r,g,b", "book$colour"; where it may follow its layer or block also those words.
[[nodiscard]] std::optional<ZrCmColor> parseColor(std::wstring_view typed, bool mayFollow);

} // namespace quor::props
