// What a person may call a light: the rules of the Name option of the light commands.
#pragma once

#include "host/props/property.h"
#include "sdk/db/light.h"

namespace quor::props {

// Why the light, which is in a drawing, cannot get that name; nothing when it can. Case makes no difference between
// names, and the light's own does not count.
[[nodiscard]] Refusal refusalOfName(const ZrDbLight& light, const ZrString& name);

} // namespace quor::props
