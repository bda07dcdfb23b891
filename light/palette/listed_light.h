// Which objects are lights that the list follows while commands run.
#pragma once

class ZrDbObject;

namespace quor::light {

// Whether it is a light, of a derived class too, on the hidden layer of all lights and in the current space of the
// current drawing. An erased one is told by where it stood.
[[nodiscard]] bool isListedLight(const ZrDbObject* object);

} // namespace quor::light
