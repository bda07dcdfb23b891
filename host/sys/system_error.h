// The words for an error number of the system, in the language of the host.
#pragma once

#include "sdk/sys/string.h"

namespace quor {

// `number` is an errno; one that the host has no words for is described by the system.
[[nodiscard]] ZrString systemErrorText(int number);

} // namespace quor
