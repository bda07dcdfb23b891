// Values of system variables as people type and read them.
#pragma once

#include "host/sys/result.h"
#include "host/sys/system_variables.h"

namespace quor::sys {

// The value that a text means for a variable, in the current drawing's units; "@" in a point starts from `lastPoint`.
// WrongType when it means none, OutOfRange for a whole number that no variable holds. The row's bounds are not checked.
[[nodiscard]] Result<VariableValue, SetResult> parseVariable(const VariableRow& row, std::wstring_view text,
                                                             const ZrGePoint3d& lastPoint);

// In the current drawing's units of length; parseVariable reads it back.
[[nodiscard]] ZrString formatVariable(const VariableValue& value);
// An angle that stands by itself: counted from the x axis whatever the drawing's base angle and direction.
[[nodiscard]] ZrString formatAngleVariable(double radians);

// Why a value was refused; `row` null: not built in.
[[nodiscard]] ZrString variableRefusal(const ZrString& name, const VariableRow* row, SetResult result);

} // namespace quor::sys
